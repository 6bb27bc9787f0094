// Item of the week: the day and time an archive changes its item of the week, and the times it
// announces it, in the main chat or by private message. There is no date anywhere: every time
// is a weekday and a clock time, repeating weekly. One page serves every kind.

#include <array>
#include <memory>

#include "pages/archive/archive.h"
#include "shell/page_frame.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

using shell::DialogKind;
using shell::PageContext;

// A load shows at most this many rows; a rebuild keeps at most kBuilderRows of them.
constexpr int kPageRows = 500;
constexpr int kBuilderRows = 50;
constexpr int kLocation = 3;
constexpr int kTime = 2;

// The files hold a weekday as three capitals, the page shows its name.
constexpr std::array<std::pair<std::string_view, std::string_view>, 7> kDays = {{
    {"SUN", "Sunday"},
    {"MON", "Monday"},
    {"TUE", "Tuesday"},
    {"WED", "Wednesday"},
    {"THU", "Thursday"},
    {"FRI", "Friday"},
    {"SAT", "Saturday"},
}};

// Three letters to the weekday's name; anything else, the name itself too, is no day.
std::string DayFromFile(std::string_view code) {
    for (const auto& [file, page] : kDays) {
        if (file == code) return std::string(page);
    }
    return {};
}

std::string DayToFile(std::string_view name) {
    for (const auto& [file, page] : kDays) {
        if (page == name) return std::string(file);
    }
    return {};
}

// The text before the first blank and the text between it and the next: "SUN 17:59" gives SUN
// and 17:59, a text without a blank itself and nothing.
std::pair<std::string, std::string> SplitAtBlank(std::string_view text) {
    const size_t blank = text.find(' ');
    if (blank == std::string_view::npos) return {std::string(text), {}};
    const std::string_view rest = text.substr(blank + 1);
    return {std::string(text.substr(0, blank)), std::string(rest.substr(0, rest.find(' ')))};
}

std::vector<std::string> Numbered(int from, int to) {
    std::vector<std::string> items;
    for (int n = from; n <= to; ++n)
        items.push_back((n < 10 ? "0" : "") + std::to_string(n));
    return items;
}

std::vector<std::string> DayNames() {
    std::vector<std::string> names;
    for (const auto& day : kDays)
        names.emplace_back(day.second);
    return names;
}

const std::vector<std::string> kLocations = {"Main Chat", "Private Message"};

store::FileSchema SchemaOf(const ArchiveKind& kind) {
    return {WeekFile(kind),
            WeekTable(kind),
            {{store::FieldKind::Flag, "bEnabled", ArchiveDefault("bEnabled")},
             {store::FieldKind::String, "sChangeTime", ArchiveDefault("sChangeTime")}}};
}

const std::array<store::FileSchema, kArchiveKinds>& Schemas() {
    static const auto schemas = PerArchiveKind<store::FileSchema>(
        [](const ArchiveKind& each, size_t) { return SchemaOf(each); });
    return schemas;
}

shell::PageDecl DeclOf(const ArchiveKind& kind, const store::FileSchema& file) {
    using namespace shell::decl;
    using shell::Item;
    constexpr int kWidth = 4400;
    const int listWidth = shell::FillWidth(kWidth);
    return {
        .key = kind.name + "~LinkOfTheWeek",
        .caption = kind.name + " ~ Link Of The Week",
        .size = {kWidth, 5400},
        .files = {&file},
        .controls = {Check("chkCheckBox(0)", "bEnabled", "Enable Link of Week"),
                     Text("txtChangeTime", "", "Change Time"),
                     Toolbar("tlbChangeTime", {shell::SetupEditToolbar}),
                     Toolbar("tlbWeek", {shell::SetupListToolbar}),
                     List("lvwWeek", listWidth,
                          {{"Date", "Date", 1500},
                           {"Time", "Time", 900},
                           {"Location", "Location", listWidth - 2750}})},
        .editors = {{.list = "lvwWeek",
                     .toolbar = "tlbWeek",
                     .popup = "mnuFirst",
                     .methods = "gMenuFirst",
                     .confirmDelete = shell::Prompt{"Do you really want to delete this "
                                                    "Announcement Time?",
                                                    "Delete Announcement Time?"},
                     .buttons = shell::ButtonRule::Fixed,
                     .customEdit = true,
                     .customAdd = true,
                     .deleteKey = true}},
        .layout = shell::Column({Item("chkCheckBox(0)"),
                                 shell::Row({Item("txtChangeTime"), Item("tlbChangeTime")}),
                                 Item("tlbWeek"), Item("lvwWeek")}),
    };
}

class frmArchiveWeek : public shell::Page {
  public:
    frmArchiveWeek(PageContext& context, const shell::PageDecl& decl, const ArchiveKind& kind)
        : Page(context, decl),
          kind_(kind),
          chkCheckBox(Get<shell::CheckBox>("chkCheckBox(0)")),
          txtChangeTime(Get<shell::TextBox>("txtChangeTime")),
          tlbChangeTime(Get<shell::Toolbar>("tlbChangeTime")),
          tlbWeek(Get<shell::Toolbar>("tlbWeek")),
          lvwWeek(Get<shell::ListControl>("lvwWeek")) {
        // The box takes no typing: the change time is set through its EDIT alone.
        txtChangeTime.SetReadOnly(true);
        tlbChangeTime.onButtonClick = [this](const std::string& key) {
            if (key == "EDIT") EditChangeTime();
        };
        Editor("lvwWeek").onAdd = [this] { AddAnnouncement(); };
        Editor("lvwWeek").onEdit = [this](int row) { EditAnnouncement(row); };
    }

  private:
    void LoadSettings() override {
        lvwWeek.Clear();
        Page::LoadSettings();
        auto& files = context_.files;
        const std::string file = WeekFile(kind_);
        const auto [day, time] =
            SplitAtBlank(files.ReadTableValue(file, "sChangeTime", WeekTable(kind_)));
        txtChangeTime.SetText(DayFromFile(day) + " " + time);
        // The rows are numbered tables, read with the reader that ends the program over a
        // missing file: a week page never opens over nothing.
        for (int number = 1; number <= kPageRows; ++number) {
            const std::string table = std::to_string(number);
            const auto [code, clock] = SplitAtBlank(files.ReadTableFlag(file, table, "sTime"));
            if (code.empty()) break;
            const bool inMain = files.ReadTableFlagIsOne(file, table, "bInMain");
            AppendRow("*ID" + RandomPart(), DayFromFile(code), clock, inMain ? "Main" : "PM");
        }
        // Only a load sets the row buttons: a list emptied by DELETE keeps them on.
        const bool rows = lvwWeek.Count() > 0;
        tlbWeek.SetButtonEnabled("DELETE", rows);
        tlbWeek.SetButtonEnabled("EDIT", rows);
    }

    void RestoreDefaults() override {
        Page::RestoreDefaults();
        txtChangeTime.SetText(ArchiveDefault("sChangeTime"));
        lvwWeek.Clear();
        // "Sunday*18:00*PM"
        const std::string announce = ArchiveDefault("sAnnounceTime");
        const size_t first = announce.find('*');
        const size_t second = announce.find('*', first + 1);
        AppendRow("1ID", announce.substr(0, first), announce.substr(first + 1, second - first - 1),
                  announce.substr(second + 1));
    }

    // The change time goes as the box shows it: bare and with the day's name, where the builder
    // quotes it with the day's code. The next load knows no such day, and shows the time alone.
    void SaveSettings() override {
        store::TableText text(WeekTable(kind_) + " = {");
        text.Bare(1, "bEnabled", chkCheckBox.Value() == 1 ? "1" : "0");
        text.Bare(1, "sChangeTime", txtChangeTime.Text());
        for (int row = 1; row <= lvwWeek.Count(); ++row) {
            text.Open(1, "[" + std::to_string(row) + "]");
            text.Quoted(2, "sTime",
                        DayToFile(lvwWeek.Row(row).text) + " " + lvwWeek.Cell(row, kTime));
            text.Bare(2, "bInMain", lvwWeek.Cell(row, kLocation) == "Main" ? "1" : "0");
            text.Close(1);
        }
        context_.files.WriteTextFile(WeekFile(kind_), text.End());
    }

    void AppendRow(std::string key, std::string day, std::string time, std::string location) {
        shell::ListRow& row = lvwWeek.Append(std::move(key), std::move(day));
        row.cells = {std::move(time), std::move(location)};
    }

    std::string RandomPart() {
        return store::FormatGeneral(context_.files.NextRandom() * 1000000000.0);
    }

    shell::DialogRequest Request(DialogKind kind, std::string caption, int required,
                                 const std::string& mode) const {
        shell::DialogRequest request;
        request.kind = kind;
        request.caption = std::move(caption);
        request.labels = {"Day", "Hour", "Minute"};
        request.comboItems = {DayNames(), Numbered(0, 23), Numbered(0, 59)};
        if (kind == DialogKind::FourCombos) {
            request.labels.emplace_back("Location");
            request.comboItems.push_back(kLocations);
        }
        request.required = required;
        request.mode = mode;
        return request;
    }

    static std::string LocationOf(const std::string& answer) {
        return answer == kLocations.front() ? "Main" : "PM";
    }

    // A row is added only beside another: on an empty list NEW does nothing.
    void AddAnnouncement() {
        if (lvwWeek.Count() == 0) return;
        for (;;) {
            // Every field is needed, and Add stays open for the next row.
            const shell::DialogResult result = context_.host.ShowDialog(
                Request(DialogKind::FourCombos, "Add Announcement", 6, "A"));
            if (result.mode != "1" && result.mode != "A") break;
            const auto& fields = result.fields;
            AppendRow("id" + RandomPart(), fields[0], fields[1] + ":" + fields[2],
                      LocationOf(fields[3]));
            MarkDirty();
            if (result.mode != "A") break;
        }
    }

    void EditAnnouncement(int row) {
        // The edits need every field and have no Add.
        shell::DialogRequest request = Request(DialogKind::FourCombos, " Announcement", 5, "E");
        const std::string& time = lvwWeek.Cell(row, kTime);
        request.values = {lvwWeek.Row(row).text, time.substr(0, 2),
                          time.substr(std::min<size_t>(3, time.size()), 2),
                          lvwWeek.Cell(row, kLocation) == "Main" ? kLocations[0] : kLocations[1]};
        const shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return;
        lvwWeek.SetText(row, result.fields[0]);
        lvwWeek.SetCell(row, kTime, result.fields[1] + ":" + result.fields[2]);
        lvwWeek.SetCell(row, kLocation, LocationOf(result.fields[3]));
        MarkDirty();
    }

    // The change time is edited only while the list has a row, as NEW adds one.
    void EditChangeTime() {
        if (lvwWeek.Count() == 0) return;
        shell::DialogRequest request = Request(DialogKind::ThreeCombos, " Announcement", 5, "E");
        const auto [day, time] = SplitAtBlank(txtChangeTime.Text());
        request.values = {day, time.substr(0, 2), time.substr(std::min<size_t>(3, time.size()), 2),
                          ""};
        const shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return;
        txtChangeTime.SetText(result.fields[0] + " " + result.fields[1] + ":" + result.fields[2]);
        MarkDirty();
    }

    const ArchiveKind& kind_;
    shell::CheckBox& chkCheckBox;
    shell::TextBox& txtChangeTime;
    shell::Toolbar& tlbChangeTime;
    shell::Toolbar& tlbWeek;
    shell::ListControl& lvwWeek;
};

size_t KindIndex(const ArchiveKind& kind) {
    return static_cast<size_t>(&kind - ArchiveKinds().data());
}

const shell::PageDecl& WeekDecl(const ArchiveKind& kind) {
    static const auto pages = PerArchiveKind<shell::PageDecl>(
        [](const ArchiveKind& each, size_t index) { return DeclOf(each, Schemas()[index]); });
    return pages.at(KindIndex(kind));
}

}  // namespace

std::string WeekFile(const ArchiveKind& kind) {
    return "TheVellum\\" + kind.name + "\\" + kind.name + "ItemOfTheWeek.tbl";
}

std::string WeekTable(const ArchiveKind& kind) {
    return "t" + kind.name + "ItemOfTheWeek";
}

shell::PageEntry WeekPageOf(const ArchiveKind& kind) {
    return {WeekDecl(kind), [&kind](PageContext& context) {
                return std::make_unique<frmArchiveWeek>(context, WeekDecl(kind), kind);
            }};
}

// The builder quotes the change time with the day's code, keeps at most 50 rows, and where the
// file has none writes one row: Sunday at 18:00, by private message.
store::BuildStep WeekBuild(const ArchiveKind& kind) {
    const std::string file = WeekFile(kind);
    return {store::FolderOf(file), [file, table = WeekTable(kind)](store::BuildRun& run) {
                const store::TableFiles::ReadScope scope(run.files);
                const std::string path = run.files.SettingsFolder() + "\\" + file;
                const auto old = [&](const std::string& key, const std::string& in,
                                     const std::string& otherwise) {
                    std::string value = run.files.ReadTableValue(path, key, in, false);
                    return value.empty() ? otherwise : value;
                };
                store::TableText text(table + " = {");
                text.Bare(1, "bEnabled", old("bEnabled", table, ArchiveDefault("bEnabled")));
                text.Quoted(1, "sChangeTime", old("sChangeTime", table, "SUN 17:59"));
                int rows = 0;
                for (int number = 1; number <= kBuilderRows; ++number) {
                    const std::string at = std::to_string(number);
                    const std::string time = old("sTime", at, "");
                    if (time.empty()) break;
                    text.Open(1, "[" + at + "]");
                    text.Quoted(2, "sTime", time);
                    text.Bare(2, "bInMain", old("bInMain", at, "0"));
                    text.Close(1);
                    ++rows;
                }
                if (rows == 0) {
                    text.Open(1, "[1]");
                    text.Quoted(2, "sTime", "SUN 18:00");
                    text.Bare(2, "bInMain", "0");
                    text.Close(1);
                }
                run.files.WriteTextFile(file, text.End());
            }};
}

}  // namespace qb::pages
