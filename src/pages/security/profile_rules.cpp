// Profile rules: per profile, the share, slot and hub limits a user must meet, and for each rule
// one message to the user who breaks it and one address to redirect him to. The scripts check
// the rules; the page only keeps them.

#include <charconv>
#include <cstdio>

#include "pages/security/security.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/table_text.h"

namespace qb::pages {

namespace {

constexpr const char* kFile = "Security\\ProfileRules\\ProfileRules.tbl";
constexpr const char* kTable = "tProfileRules";
constexpr const char* kMessages = "tMessages";
constexpr const char* kRedirects = "tRedirects";

// A rule, by the name its rows show: the file's keys are the name with a letter in front. Each
// has its own dialog.
struct Rule {
    const char* name;
    const char* defaultLimit;
    shell::DialogKind dialog;
    const char* caption;
    std::vector<std::string> labels;
    int max;  // the dialog's up-downs run from 0 to this
};

// In the order of each profile's rows. The two shares keep the caption "Edit File" that their
// dialog has always had.
const std::vector<Rule>& Rules() {
    using shell::DialogKind;
    static const std::vector<Rule> rules = {
        {"MinShare", "0", DialogKind::UpDownCombo, "Edit File", {"Min Share", "Units"}, 1000},
        {"MaxShare", "0", DialogKind::UpDownCombo, "Edit File", {"Max Share", "Units"}, 1000},
        {"MinSlots", "0", DialogKind::OneUpDown, "Edit Min Slots", {"Min Slots"}, 10000},
        {"MaxSlots", "0", DialogKind::OneUpDown, "Edit Max Slots", {"Max Slots"}, 10000},
        {"MaxHubs", "0", DialogKind::OneUpDown, "Edit Max Hubs", {"Max Hubs"}, 10000},
        {"HubSlotRatio",
         "0/0",
         DialogKind::TwoUpDowns,
         "Edit Hub Slot Ratio",
         {"Hubs", "Slots"},
         1000},
    };
    return rules;
}

constexpr size_t kShares = 2;  // the first two rules, kept in bytes and shown in a unit
constexpr size_t kRatio = 5;   // the last, a quoted "hubs/slots"

// A limit's key in a profile's table, by the rule's place and name: numbers with an i, the ratio
// with an s.
std::string LimitKey(size_t rule, const std::string& name) {
    return (rule == kRatio ? "s" : "i") + name;
}
std::string LimitKey(size_t rule) {
    return LimitKey(rule, Rules()[rule].name);
}

void WriteLimit(store::TableText& text, size_t rule, const std::string& key,
                const std::string& value) {
    if (rule == kRatio) {
        text.Quoted(2, key, value);
    } else {
        text.Bare(2, key, value);
    }
}

struct Unit {
    const char* name;
    double bytes;
};
constexpr Unit kUnits[] = {
    {"KB", 1024.0}, {"MB", 1048576.0}, {"GB", 1073741824.0}, {"TB", 1099511627776.0}};

bool ParseNumber(std::string_view text, double& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

// A number as the scripts' home system prints one: at most 15 significant digits, and the
// exponent form from 1E+15 on.
std::string NumberText(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.15G", number);
    return text;
}

// A share in bytes in the unit its length picks: the number of characters, not the size, so
// 1000000 shows as an MB figure below one. A share that is no number shows as it stands.
std::string ShareShown(const std::string& bytes) {
    double number = 0;
    if (bytes.empty() || !ParseNumber(bytes, number)) return bytes;
    const size_t length = bytes.size();
    const Unit& unit = length < 7     ? kUnits[0]
                       : length < 10  ? kUnits[1]
                       : length >= 13 ? kUnits[3]
                                      : kUnits[2];
    return NumberText(number / unit.bytes) + " " + unit.name;
}

// The bytes of a share shown as number, blank, unit; a unit it doesn't know counts as TB. A share
// without a number and a unit is written as it stands.
std::string ShareBytes(const std::string& shown) {
    const size_t blank = shown.find(' ');
    double number = 0;
    if (blank == std::string::npos || !ParseNumber(shown.substr(0, blank), number)) return shown;
    const std::string unit = shown.substr(blank + 1);
    double bytes = kUnits[3].bytes;
    for (const Unit& known : kUnits) {
        if (unit == known.name) bytes = known.bytes;
    }
    return NumberText(number * bytes);
}

}  // namespace

// Every message and redirect keeps the file's text or is empty; every limit keeps the file's
// value for its profile number, else 0, and the ratio "0/0".
void BuildProfileRules(store::BuildRun& run) {
    const store::TableFiles::ReadScope scope(run.files);
    const std::string path = run.files.SettingsFolder() + "\\" + kFile;
    const auto old = [&](const std::string& key, const std::string& table,
                         const std::string& byDefault) {
        std::string value = run.files.ReadTableValue(path, key, table);
        return value.empty() ? byDefault : value;
    };
    store::TableText text(std::string(kTable) + " = {");
    for (const char* table : {kMessages, kRedirects}) {
        text.Open(1, table);
        for (const Rule& rule : Rules()) {
            const std::string key = "s" + std::string(rule.name);
            text.Quoted(2, key, old(key, table, ""));
        }
        text.Close(1);
    }
    for (int profile = -1; profile <= run.lastProfile; ++profile) {
        const std::string number = std::to_string(profile);
        text.Open(1, "[" + number + "]");
        for (size_t rule = 0; rule < Rules().size(); ++rule)
            WriteLimit(text, rule, LimitKey(rule),
                       old(LimitKey(rule), number, Rules()[rule].defaultLimit));
        text.Close(1);
    }
    run.files.WriteTextFile(kFile, text.End());
}

namespace {

using shell::ListControl;

// lvwPermissions: the profile's name on its first row, the rule, its value, the profile number.
enum RuleColumn { kProfile = 1, kSetting, kData, kNumber };

class frmSecurityProfileRuleRules : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        using shell::Item;
        constexpr int kRulesWidth = 4900;
        constexpr int kTextsWidth = 4100;
        const auto texts = [](const char* list, const char* words) {
            return shell::RowEditorDecl{
                .list = list,
                .toolbar = std::string("tlb") + (list + 3),
                .columns = {2},
                .edit = shell::RowDialogDecl{.kind = shell::DialogKind::OneFields,
                                             .caption = std::string("Edit {row} ") + words,
                                             .labels = {"{row}"}},
                .buttons = shell::ButtonRule::Fixed};
        };
        const auto textList = [](const char* name) {
            return List(name, kTextsWidth,
                        {{"column1", "Setting", 1300}, {"column2", "Data", kTextsWidth - 1650}});
        };
        static const shell::PageDecl page{
            .key = "Security~ProfileRules~Rules",
            .caption = "Security ~ ProfileRules ~ Rules",
            .size = {9600, 7200},
            .controls = {Label("lblLabel(0)", "Permissions"),
                         Toolbar("tlbPermissions", {shell::SetupEditToolbar}),
                         List("lvwPermissions", kRulesWidth,
                              {{"column1", "Profile", 1500},
                               {"column2", "Setting", 1300},
                               {"column3", "Data", kRulesWidth - 3150},
                               {"column4", "iProfile", 0}}),
                         Label("lblLabel(1)", "Messages"),
                         Toolbar("tlbMessages", {shell::SetupEditToolbar}), textList("lvwMessages"),
                         Label("lblLabel(2)", "Redirects"),
                         Toolbar("tlbRedirects", {shell::SetupEditToolbar}),
                         textList("lvwRedirects")},
            // Each rule of a profile has a dialog of its own, which the page opens itself.
            .editors = {{.list = "lvwPermissions",
                         .toolbar = "tlbPermissions",
                         .methods = "gMenu",
                         .buttons = shell::ButtonRule::Fixed,
                         .customEdit = true},
                        texts("lvwMessages", "Message"),
                        texts("lvwRedirects", "Redirect Address")},
            .layout = shell::Row(
                {shell::Column(
                     {Item("lblLabel(0)"), Item("tlbPermissions"), Item("lvwPermissions")}),
                 shell::Column({Item("lblLabel(1)"), Item("tlbMessages"), Item("lvwMessages"),
                                Item("lblLabel(2)"), Item("tlbRedirects"), Item("lvwRedirects")})}),
            .noRestore = true,
        };
        return page;
    }

    explicit frmSecurityProfileRuleRules(shell::PageContext& context)
        : Page(context, Decl()),
          lvwPermissions(Get<ListControl>("lvwPermissions")),
          lvwMessages(Get<ListControl>("lvwMessages")),
          lvwRedirects(Get<ListControl>("lvwRedirects")) {
        Editor("lvwPermissions").onEdit = [this](int row) { EditRule(row); };
        // One pop-up menu of three Edit entries serves the three lists: each list shows its own.
        const std::pair<ListControl*, const char*> entries[] = {
            {&lvwPermissions, "mnuOnlyEditEdit"},
            {&lvwMessages, "mnuOnlyEditTwoEdit"},
            {&lvwRedirects, "mnuOnlyEditThreeEdit"}};
        for (const auto& [list, entry] : entries) {
            list->onRightClick = [this, shown = std::string(entry)](int) {
                for (const char* each :
                     {"mnuOnlyEditEdit", "mnuOnlyEditTwoEdit", "mnuOnlyEditThreeEdit"}) {
                    SetPopupEntryVisible(each, each == shown);
                }
                ShowPopupMenu("mnuOnlyEdit");
            };
        }
        PublishMenuMethod("gMenuEditTwoClick", [this] { Editor("lvwMessages").Edit(); });
        PublishMenuMethod("gMenuEditThreeClick", [this] { Editor("lvwRedirects").Edit(); });
    }

  private:
    void LoadSettings() override {
        lvwPermissions.Clear();
        for (auto [list, table] :
             {std::pair{&lvwMessages, kMessages}, {&lvwRedirects, kRedirects}}) {
            list->Clear();
            shell::LoadTableRows(context_.files, kFile, *list, "=", table, false, false, false);
            // A row shows its key from the second letter: sMinShare as MinShare.
            for (int row = 1; row <= list->Count(); ++row)
                list->SetText(row, list->Row(row).text.substr(
                                       std::min<size_t>(1, list->Row(row).text.size())));
        }
        const store::ProfileList& profiles = context_.profiles;
        int n = 0;
        for (int profile = -1; profile <= profiles.LastNumber(); ++profile) {
            const std::string number = std::to_string(profile);
            for (size_t rule = 0; rule < Rules().size(); ++rule) {
                std::string value = context_.files.ReadTableValue(kFile, LimitKey(rule), number);
                // An empty value is no value: a limit the file lacks shows its default, so that
                // a save never writes a limit without one.
                if (value.empty()) value = Rules()[rule].defaultLimit;
                if (rule < kShares) value = ShareShown(value);
                const bool first = rule == 0;
                shell::ListRow& row = lvwPermissions.Append(
                    std::to_string(++n) + "ID", first ? profiles.Text(profile + 2) : "");
                row.cells = {Rules()[rule].name, std::move(value), first ? number : ""};
            }
        }
    }

    // Each rule's own dialog, on the row's value: a share split into its number and unit, the
    // ratio into hubs and slots. A ratio without its "/" can't be opened.
    void EditRule(int row) {
        const std::string& setting = lvwPermissions.Cell(row, kSetting);
        const std::string& data = lvwPermissions.Cell(row, kData);
        size_t rule = 0;
        while (rule < Rules().size() && Rules()[rule].name != setting)
            ++rule;
        if (rule == Rules().size()) return;
        const Rule& shown = Rules()[rule];
        shell::DialogRequest request{
            .kind = shown.dialog, .caption = shown.caption, .labels = shown.labels, .mode = "E"};
        const char* separator = rule < kShares ? " " : rule == kRatio ? "/" : nullptr;
        if (separator == nullptr) {
            request.values[0] = data;
            request.bounds = {{0, shown.max, 1}};
        } else {
            const size_t at = data.find(separator);
            if (rule == kRatio && at == std::string::npos) return;
            request.values[0] = data.substr(0, at);
            request.values[1] = at == std::string::npos ? "" : data.substr(at + 1);
            request.bounds = {{0, shown.max, 1}, {0, shown.max, 1}};
            if (rule < kShares) request.comboItems = {{"KB", "MB", "GB", "TB"}};
        }
        const shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return;
        lvwPermissions.SetCell(row, kData,
                               separator == nullptr
                                   ? result.fields[0]
                                   : result.fields[0] + separator + result.fields[1]);
        MarkDirty();
    }

    // The messages and redirects as the lists hold them, then the six rows of each profile
    // taken from the top of the list, which the save consumes: the load fills it again.
    void SaveSettings() override {
        store::TableText text(std::string(kTable) + " = {");
        for (auto [list, table] :
             {std::pair{&lvwMessages, kMessages}, {&lvwRedirects, kRedirects}}) {
            text.Open(1, table);
            for (int row = 1; row <= list->Count(); ++row)
                text.Quoted(2, "s" + list->Row(row).text, list->Cell(row, 2));
            text.Close(1);
        }
        int row = 1;
        for (int profile = -1; profile <= context_.profiles.LastNumber(); ++profile) {
            text.Open(1, "[" + std::to_string(profile) + "]");
            for (size_t rule = 0; rule < Rules().size() && row <= lvwPermissions.Count();
                 ++rule, ++row) {
                const std::string& data = lvwPermissions.Cell(row, kData);
                WriteLimit(text, rule, LimitKey(rule, lvwPermissions.Cell(row, kSetting)),
                           rule < kShares ? ShareBytes(data) : data);
            }
            text.Close(1);
        }
        // Every row the load made is consumed: the profiles can't change while the page is open.
        lvwPermissions.Clear();
        context_.files.WriteTextFile(kFile, text.End());
        Reload();
    }

    ListControl& lvwPermissions;
    ListControl& lvwMessages;
    ListControl& lvwRedirects;
};

}  // namespace

shell::PageEntry ProfileRuleRulesPage() {
    return shell::PageOf<frmSecurityProfileRuleRules>();
}

}  // namespace qb::pages
