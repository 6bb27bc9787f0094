#include "pages/general/bot_list.h"
#include "pages/general/general.h"
#include "shell/page.h"
#include "shell/page_frame.h"
#include "shell/profile_checks.h"
#include "store/table_text.h"
#include "store/text_rules.h"

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

// Bots.tbl has no builder: the bots page writes it whole.
void RegisterBotBuilders(store::BuilderRegistry& builders) {
    builders.Add("General\\Bots", BotSettingsSchema());
}

// ---- The page --------------------------------------------------------------------------------

namespace {

using shell::CheckBox;
using shell::ListControl;
using shell::Page;
using shell::PageContext;
using shell::Toolbar;

// lvwBots: the function is the row's text, then these columns.
constexpr int kName = 2;
constexpr int kDescription = 3;
constexpr int kEmail = 4;
constexpr int kIsReg = 5;

std::string RowKey(int row) {
    return std::to_string(row) + "ID";
}

// frmGeneralBots: the bot each function speaks through, and who is told of bot changes.
class BotsPage : public Page {
  public:
    explicit BotsPage(PageContext& context)
        : Page(context, "General~Bots", "General ~ Bots", {3400, 6075}),
          chkNotifyOps(Add<CheckBox>("chkNotifyOps", "Notify Ops of change")),
          lvwAllowedProfiles(Add<ListControl>("lvwAllowedProfiles", true)),
          tlbBots(Add<Toolbar>("tlbBots")),
          lvwBots(Add<ListControl>("lvwBots")) {
        lvwAllowedProfiles.SetWidth(3400 - 180 - 2 * 120);
        lvwBots.SetWidth(lvwAllowedProfiles.Width());
        chkNotifyOps.onClick = [this] { MarkDirty(); };
        lvwAllowedProfiles.onItemCheck = [this](int) { MarkDirty(); };
        lvwBots.onItemClick = [this](int) { tlbBots.SetButtonEnabled("EDIT", true); };
        lvwBots.onDoubleClick = [this](int) { EditBot(); };
        lvwBots.onRightClick = [this](int) { ShowPopupMenu("mnuBots"); };
        tlbBots.onButtonClick = [this](const std::string& key) {
            if (key == "EDIT") EditBot();
        };
        PublishMenuMethod("gMenuBotsEditClick", [this] { EditBot(); });
        SetBody(shell::Column({shell::Item(chkNotifyOps), shell::Item(lvwAllowedProfiles),
                               shell::Item(tlbBots), shell::Item(lvwBots)}));
    }

  private:
    void Setup() override {
        shell::AddProfileColumn(lvwAllowedProfiles, "Allowed Profiles");
        shell::SetupEditToolbar(tlbBots);
        lvwBots.AddColumn("Function", "Function", 1500);
        lvwBots.AddColumn("Name", "Name", 1800);
        lvwBots.AddColumn("Description", "Description", 2000);
        lvwBots.AddColumn("Email", "Email", 2400);
        lvwBots.AddColumn("IsReg", "IsReg", 600);
    }

    void LoadSettings() override {
        auto& files = context_.files;
        const auto& schema = BotSettingsSchema();
        shell::LoadProfileChecks(lvwAllowedProfiles, context_, schema.file, "tEnabledProfiles");
        chkNotifyOps.SetValue(
            store::IsNumericallyOne(files.ReadTableValue(schema.file, "bNotifyOps", schema.table))
                ? 1
                : 0);
        // A row per bot of the pack, whatever the file holds: a function the file lacks shows
        // an empty row.
        ClearBots();
        for (const std::string& table : BuildBotList()) {
            const int row = lvwBots.Count() + 1;
            lvwBots.Append(RowKey(row), files.ReadTableValue(kBotsFile, "sFunction", table));
            lvwBots.SetCell(row, kName, files.ReadTableValue(kBotsFile, "sName", table));
            lvwBots.SetCell(row, kDescription, files.ReadTableValue(kBotsFile, "sDesc", table));
            lvwBots.SetCell(row, kEmail, files.ReadTableValue(kBotsFile, "sEmail", table));
            lvwBots.SetCell(row, kIsReg, files.ReadTableValue(kBotsFile, "bIsReg", table));
        }
    }

    // Every function of the edition with its group's bot, in the groups' order, which is not
    // the order a load shows them in.
    void RestoreDefaults() override {
        shell::ResetProfileChecks(lvwAllowedProfiles, context_.profiles);
        chkNotifyOps.SetValue(
            store::IsNumericallyOne(store::DefaultOf(BotSettingsSchema(), "bNotifyOps")) ? 1 : 0);
        ClearBots();
        for (const BotFunction& function : BotFunctions()) {
            if (!store::Passes(function.editions)) continue;
            const BotIdentity bot = DefaultBot(function.group);
            const int row = lvwBots.Count() + 1;
            lvwBots.Append(RowKey(row), std::string(function.function));
            lvwBots.SetCell(row, kName, bot.name);
            lvwBots.SetCell(row, kDescription, bot.description);
            lvwBots.SetCell(row, kEmail, bot.email);
            lvwBots.SetCell(row, kIsReg, "0");
        }
    }

    void SaveSettings() override {
        const auto& schema = BotSettingsSchema();
        context_.files.WriteTextFile(
            schema.file, store::RenderTable(schema, context_.profiles.LastNumber(),
                                            [this](const store::Field& field, int profile) {
                                                if (field.kind == store::FieldKind::ProfileChecks) {
                                                    return shell::ProfileCheckValue(
                                                        lvwAllowedProfiles, profile);
                                                }
                                                return std::to_string(chkNotifyOps.Value());
                                            }));
        context_.files.WriteTextFile(kBotsFile, BotsText());
    }

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

    // EDIT waits for a row to be picked again.
    void ClearBots() {
        lvwBots.Clear();
        tlbBots.SetButtonEnabled("EDIT", false);
    }

    void EditBot() {
        const int row = lvwBots.Selected();
        if (row == 0) return;
        shell::DialogRequest request;
        request.kind = shell::DialogKind::ThreeFields;
        request.caption = "Edit Bot";
        request.frameCaption = lvwBots.Row(row).text + " Bot";
        request.labels = {"Name", "Description", "Email"};
        request.values = {lvwBots.Cell(row, kName),
                          lvwBots.Cell(row, kDescription),
                          lvwBots.Cell(row, kEmail),
                          {}};
        request.mode = "E";
        const shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return;
        lvwBots.SetCell(row, kName, result.fields[0]);
        lvwBots.SetCell(row, kDescription, result.fields[1]);
        lvwBots.SetCell(row, kEmail, result.fields[2]);
        MarkDirty();
    }

    CheckBox& chkNotifyOps;
    ListControl& lvwAllowedProfiles;
    Toolbar& tlbBots;
    ListControl& lvwBots;
};

}  // namespace

void RegisterBotPages(shell::PageRegistry& registry) {
    registry.Register("General~Bots",
                      [](PageContext& context) { return std::make_unique<BotsPage>(context); });
}

}  // namespace qb::pages
