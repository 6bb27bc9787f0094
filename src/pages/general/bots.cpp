// The bots: the bot each function speaks through, and who hears of bot changes. Bots.tbl has no
// builder: the page writes it whole.

#include "pages/general/bot_list.h"
#include "pages/general/general.h"
#include "shell/page_frame.h"
#include "store/table_text.h"

namespace qb::pages {

const store::FileSchema& BotSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        "General\\Bots\\BotSettings.tbl",
        "tBotSettings",
        {
            {FieldKind::Flag, "bNotifyOps", "1"},
            {FieldKind::ProfileChecks, "tEnabledProfiles", "0"},
        },
    };
    return schema;
}

// ---- The page --------------------------------------------------------------------------------

namespace {

using shell::ListControl;

// lvwBots: the function is the row's text, then these columns.
constexpr int kName = 2;
constexpr int kDescription = 3;
constexpr int kEmail = 4;
constexpr int kIsReg = 5;

// frmGeneralBots: the bot each function speaks through, and who is told of bot changes.
class frmGeneralBots : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        constexpr int kWidth = shell::FillWidth(3400);
        static const shell::PageDecl page{
            .key = "General~Bots",
            .caption = "General ~ Bots",
            .size = {3400, 6075},
            .files = {&BotSettingsSchema()},
            .controls = {Check("chkNotifyOps", "bNotifyOps", "Notify Ops of change"),
                         ProfileChecks("lvwAllowedProfiles", "tEnabledProfiles", "Allowed Profiles",
                                       kWidth),
                         Toolbar("tlbBots", {shell::SetupEditToolbar}),
                         List("lvwBots", kWidth,
                              {{"Function", "Function", 1500},
                               {"Name", "Name", 1800},
                               {"Description", "Description", 2000},
                               {"Email", "Email", 2400},
                               {"IsReg", "IsReg", 600}})},
            .editors = {{.list = "lvwBots",
                         .toolbar = "tlbBots",
                         .popup = "mnuBots",
                         .methods = "gMenuBots",
                         .columns = {kName, kDescription, kEmail},
                         .edit = shell::RowDialogDecl{.kind = shell::DialogKind::ThreeFields,
                                                      .caption = "Edit Bot",
                                                      .labels = {"Name", "Description", "Email"},
                                                      .frameCaption = "{row} Bot"},
                         .target = shell::RowTarget::Selected,
                         .buttons = shell::ButtonRule::EditOnPick}},
        };
        return page;
    }

    explicit frmGeneralBots(shell::PageContext& context)
        : Page(context, Decl()), lvwBots(Get<ListControl>("lvwBots")) {}

  private:
    // A row per bot of the pack, whatever the file holds: a function the file lacks shows an
    // empty row.
    void LoadSettings() override {
        auto& files = context_.files;
        lvwBots.Clear();
        for (const std::string& table : BuildBotList(context_.version)) {
            const int row = lvwBots.Count() + 1;
            lvwBots.Append(RowKey(row), files.ReadTableValue(kBotsFile, "sFunction", table));
            lvwBots.SetCell(row, kName, files.ReadTableValue(kBotsFile, "sName", table));
            lvwBots.SetCell(row, kDescription, files.ReadTableValue(kBotsFile, "sDesc", table));
            lvwBots.SetCell(row, kEmail, files.ReadTableValue(kBotsFile, "sEmail", table));
            lvwBots.SetCell(row, kIsReg, files.ReadTableValue(kBotsFile, "bIsReg", table));
        }
        Page::LoadSettings();
    }

    // Every function of the edition with its group's bot, in the groups' order, which is not
    // the order a load shows them in.
    void RestoreDefaults() override {
        Page::RestoreDefaults();
        lvwBots.Clear();
        for (const BotFunction& function : BotFunctions()) {
            if (!store::Passes(function.editions, store::kEdition, context_.version)) continue;
            const BotIdentity bot = DefaultBot(function.group);
            const int row = lvwBots.Count() + 1;
            lvwBots.Append(RowKey(row), std::string(function.function));
            lvwBots.SetCell(row, kName, bot.name);
            lvwBots.SetCell(row, kDescription, bot.description);
            lvwBots.SetCell(row, kEmail, bot.email);
            lvwBots.SetCell(row, kIsReg, "0");
        }
        // EDIT waits for a row to be picked again.
        Editor("lvwBots").Loaded();
    }

    void SaveSettings() override {
        Page::SaveSettings();
        context_.files.WriteTextFile(kBotsFile, BotsText());
    }

    static std::string RowKey(int row) { return std::to_string(row) + "ID"; }

    // One sub-table per row, named after its function. The scripts register every bot as
    // unregistered, so bIsReg is written 0 whatever the file had.
    std::string BotsText() const {
        store::TableText text("tBots = {");
        for (int row = 1; row <= lvwBots.Count(); ++row) {
            const std::string& function = lvwBots.Row(row).text;
            text.Open(1, "t" + function);
            text.Quoted(2, "sName", lvwBots.Cell(row, kName));
            text.Quoted(2, "sDesc", lvwBots.Cell(row, kDescription));
            text.Quoted(2, "sEmail", lvwBots.Cell(row, kEmail));
            text.Line(2, "bIsReg = 0,");
            text.Quoted(2, "sFunction", function);
            text.Close(1);
        }
        return text.End();
    }

    ListControl& lvwBots;
};

}  // namespace

shell::PageEntry BotsPage() {
    return shell::PageOf<frmGeneralBots>();
}

}  // namespace qb::pages
