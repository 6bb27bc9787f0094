// The message of the day: for each profile, and for all users, whether a text is sent at login
// and where, in main chat or privately. The texts are files the text editor keeps.

#include "pages/communication/communication.h"
#include "shell/page_frame.h"
#include "store/table_text.h"

namespace qb::pages {

namespace {

constexpr const char* kFolder = "Communication\\MOTD\\";
constexpr const char* kSettings = "Communication\\MOTD\\MOTDSettings.tbl";
constexpr const char* kAllRow = "All";

// A row's two flags as they are written.
struct MotdRow {
    std::string use;
    std::string inMain;
};

// The settings as both writers lay them out: the page writes the profiles' sub-table first, the
// builder the row for all users.
std::string MotdText(int lastProfile, const std::function<MotdRow(int profile)>& profileRow,
                     const MotdRow& all, bool allFirst) {
    store::TableText text("tMOTDSettings = {");
    const auto flags = [&](int depth, const MotdRow& row) {
        text.Bare(depth, "bUse", row.use);
        text.Bare(depth, "bInMain", row.inMain);
    };
    const auto writeAll = [&] {
        text.Open(1, "tAll");
        flags(2, all);
        text.Close(1);
    };
    if (allFirst) writeAll();
    text.Open(1, "tByProfile");
    for (int profile = -1; profile <= lastProfile; ++profile) {
        text.Line(2, "[" + std::to_string(profile) + "] = {");
        flags(3, profileRow(profile));
        text.Close(2);
    }
    text.Close(1);
    if (!allFirst) writeAll();
    return text.End();
}

// The text file of a row: the profile's number, or "all".
std::string MessageFile(const std::string& name) {
    return std::string(kFolder) + "MOTDs\\" + name + ".asc";
}

}  // namespace

// The rebuild has always read the row for all users from a file the folder doesn't hold, the
// mass message's settings, so each rebuild resets that row unless such a file turns up there.
void BuildMotdSettings(store::BuildRun& run) {
    auto& files = run.files;
    const std::string folder = files.SettingsFolder() + "\\Communication\\MOTD";
    const std::string own = folder + "\\MOTDSettings.tbl";
    const std::string other = folder + "\\MassMessageSettings.tbl";
    std::string text;
    {
        const store::TableFiles::ReadScope scope(files);
        const auto old = [&](const std::string& file, const char* key, const std::string& table) {
            std::string value = files.ReadTableValue(file, key, table);
            return value.empty() ? std::string("0") : value;
        };
        const MotdRow all{old(other, "bUse", "tAll"), old(other, "bInMain", "tAll")};
        text = MotdText(
            run.lastProfile,
            [&](int profile) {
                const std::string table = std::to_string(profile);
                return MotdRow{old(own, "bUse", table), old(own, "bInMain", table)};
            },
            all, true);
    }
    files.WriteTextFile(kSettings, text);
    // Each row's text exists, if only empty.
    for (int profile = -1; profile <= run.lastProfile; ++profile)
        store::WriteTextWhenMissing(run, MessageFile(std::to_string(profile)), "");
    store::WriteTextWhenMissing(run, MessageFile("all"), "");
}

namespace {

using shell::ListControl;
using shell::Toolbar;

constexpr int kListWidth = shell::FillWidth(4600);

class frmCommunicationMOTD : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        static const shell::PageDecl page{
            .key = "Communication~MOTD",
            .caption = "Communication ~ MOTD",
            .size = {4600, 6075},
            .controls = {shell::decl::Toolbar("tlbMOTD",
                                              {shell::SetupEditToolbar, shell::SetupAmendToolbar}),
                         Marks(List("lvwMOTD", kListWidth,
                                    {{"column1", "Profile Active", kListWidth - 350 - 1000},
                                     {"column2", "Send To", 1000}},
                                    true))},
            .layout = shell::Column({shell::Item("tlbMOTD"), shell::Item("lvwMOTD")}),
            .noRestore = true,
        };
        return page;
    }

    explicit frmCommunicationMOTD(shell::PageContext& context)
        : Page(context, Decl()),
          tlbMOTD(Get<Toolbar>("tlbMOTD")),
          lvwMOTD(Get<ListControl>("lvwMOTD")) {
        tlbMOTD.onButtonClick = [this](const std::string& key) {
            if (key == "EDIT") Flip(Target());
            if (key == "AMEND") Amend();
        };
        lvwMOTD.onDoubleClick = [this](int row) { Flip(row); };
        lvwMOTD.onRightClick = [this](int) { ShowPopupMenu("mnuFirst"); };
        PublishMenuMethod("gMenuFirstEditClick", [this] { Flip(Target()); });
    }

  private:
    void LoadSettings() override {
        auto& files = context_.files;
        const auto& profiles = context_.profiles;
        lvwMOTD.Clear();
        const auto addRow = [&](std::string key, std::string text, const std::string& table) {
            lvwMOTD.Append(std::move(key), std::move(text));
            const int row = lvwMOTD.Count();
            lvwMOTD.SetChecked(row, files.ReadTableFlagIsOne(kSettings, table, "bUse"));
            lvwMOTD.SetCell(row, 2,
                            files.ReadTableFlagIsOne(kSettings, table, "bInMain") ? "Main" : "PM");
        };
        for (int profile = -1; profile <= profiles.LastNumber(); ++profile) {
            const std::string number = std::to_string(profile);
            // The form has always probed a table of another name first; it finds nothing, but
            // it is a read of the file all the same.
            files.ReadTableValue(kSettings, number, "tByProfiles");
            addRow(number + "ID", profiles.Text(profile + 2), number);
        }
        addRow("AllID", kAllRow, "tAll");
    }

    void SaveSettings() override {
        const auto rowOf = [this](int row) {
            return MotdRow{lvwMOTD.Row(row).checked ? "1" : "0",
                           lvwMOTD.Cell(row, 2) == "Main" ? "1" : "0"};
        };
        const int all = lvwMOTD.Count();
        context_.files.WriteTextFile(
            kSettings, MotdText(
                           context_.profiles.LastNumber(),
                           [&](int profile) { return rowOf(profile + 2); }, rowOf(all), false));
    }

    // The row the buttons act on: the selected one, or the first, which the list has current.
    int Target() const {
        if (lvwMOTD.Selected() != 0) return lvwMOTD.Selected();
        return lvwMOTD.Count() > 0 ? 1 : 0;
    }

    void Flip(int row) {
        if (row == 0) return;
        lvwMOTD.SetCell(row, 2, lvwMOTD.Cell(row, 2) == "Main" ? "PM" : "Main");
        MarkDirty();
    }

    void Amend() {
        const int row = Target();
        if (row == 0) return;
        const bool all = row == lvwMOTD.Count();
        context_.host.OpenTextEditor(MessageFile(all ? "all" : std::to_string(row - 2)), "E");
    }

    Toolbar& tlbMOTD;
    ListControl& lvwMOTD;
};

}  // namespace

shell::PageEntry MotdPage() {
    return shell::PageOf<frmCommunicationMOTD>();
}

}  // namespace qb::pages
