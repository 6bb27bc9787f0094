#include "pages/general/news.h"

#include <charconv>
#include <optional>

#include "shell/page.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/fatal_error.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

constexpr int kHeadline = 2;
constexpr int kStory = 3;
constexpr int kSymbol = 4;
constexpr int kNewsId = 5;

// iLastID as the number it is kept as: empty is 0, and text that is no whole number has none.
std::optional<long long> LastId(std::string_view text) {
    const std::string trimmed = store::TrimBlanks(text);
    if (trimmed.empty()) return 0;
    long long value = 0;
    const char* begin = trimmed.data();
    const char* end = begin + trimmed.size();
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error != std::errc() || stop != end) return std::nullopt;
    return value;
}

}  // namespace

const store::FileSchema& NewsSettingsSchema() {
    static const store::FileSchema schema = [] {
        store::FileSchema file{"Vandrell's Scripts\\News\\NewsSettings.tbl",
                               "tNewsSettings",
                               {{store::FieldKind::Number, "iLastID", "0"}},
                               store::FileKind::Settings,
                               true};
        // The header has always had a blank behind its brace; readers don't mind it.
        file.pageForm.headerTail = " ";
        return file;
    }();
    return schema;
}

void AddNewsColumns(shell::ListControl& list) {
    list.AddColumn("column1", "Date", 0);
    list.AddColumn("column2", "News Headline", 0);
    list.AddColumn("column3", "News Story", 0);
    list.AddColumn("column4", "Symbol", 0);
    list.AddColumn("column5", "News ID", 0);
}

bool LoadNewsRows(store::TableFiles& files, shell::ListControl& list) {
    const int first = list.Count() + 1;
    shell::LoadTableRows(files, kNewsFile, list, "=", "tNews", false, true, false);
    for (int row = first; row <= list.Count(); ++row) {
        list.SetCell(row, kNewsId, list.Row(row).text);
        // The fields are taken one by one: a value with fewer than four stops here, with the
        // fields before the missing one already in place.
        const std::string value = list.Cell(row, kHeadline);
        const auto fields = store::SplitAll(value, "|");
        for (size_t field = 0; field < 4; ++field) {
            if (field >= fields.size()) {
                while (list.Count() > row)
                    list.Remove(list.Count());
                return false;
            }
            if (field == 0) {
                list.SetText(row, std::string(fields[0]));
            } else {
                list.SetCell(row, kHeadline + static_cast<int>(field) - 1,
                             std::string(fields[field]));
            }
        }
    }
    return true;
}

std::string NewsText(const shell::ListControl& list) {
    store::TableText text("tNews = {");
    for (int row = 1; row <= list.Count(); ++row) {
        const std::string value = list.Row(row).text + "|" + list.Cell(row, kHeadline) + "|" +
                                  list.Cell(row, kStory) + "|" + list.Cell(row, kSymbol);
        text.Line(1, "[" + list.Cell(row, kNewsId) + "] = \"" + value + "\",");
    }
    return text.End();
}

void LoadNews(store::TableFiles& files, shell::ListControl& lvwNews,
              shell::StatusBar* stsContainer) {
    if (lvwNews.ColumnCount() == 0) AddNewsColumns(lvwNews);
    lvwNews.Clear();
    // A malformed row ends the news at that row; what was loaded is written back all the same,
    // so a story cut at its "=" by the reader is cut in the file too from now on.
    LoadNewsRows(files, lvwNews);
    const store::FileSchema& settings = NewsSettingsSchema();
    const auto lastId =
        LastId(files.ReadTableValue(settings.file, "iLastID", settings.table, true));
    if (!lastId) return;  // no number to write back: both files stay as they are

    // Both files are written back at every start, changed or not. A failure to write them is
    // not worth ending the program for: the news just isn't shown.
    try {
        files.WriteTextFile(
            settings.file,
            store::RenderTable(settings, 0,
                               [&](const store::Field&, int) { return std::to_string(*lastId); }),
            true);
        files.WriteTextFile(kNewsFile, NewsText(lvwNews), true);
    } catch (const store::FatalError&) {
        return;
    }

    if (stsContainer == nullptr || stsContainer->Count() < 4 || lvwNews.Count() == 0) return;
    const int last = lvwNews.Count();
    stsContainer->SetText(3, lvwNews.Cell(last, kHeadline));
    stsContainer->SetTip(3, "Click to read news");
    stsContainer->SetText(4, lvwNews.Cell(last, kStory));
}

// ---- The news page ---------------------------------------------------------------------------

namespace {

using shell::ListControl;
using shell::Page;
using shell::PageContext;

constexpr int kPageWidth = 6300;
constexpr int kPageHeight = 7200;

// frmGeneralNews: the news rows, which can only be read and deleted.
class NewsPage : public Page {
  public:
    explicit NewsPage(PageContext& context)
        : Page(context, "General~News", "General ~ News", {kPageWidth, kPageHeight}),
          tlbListview(Add<shell::Toolbar>("tlbListview")),
          lvwNews(Add<ListControl>("lvwNews")) {
        lvwNews.SetWidth(kPageWidth - 180 - 2 * 120);
        lvwNews.onDoubleClick = [this](int) {
            if (lvwNews.Count() > 0) Edit();
        };
        lvwNews.onRightClick = [this](int) { ShowPopupMenu("mnuUserActions"); };
        tlbListview.onButtonClick = [this](const std::string& key) {
            if (key == "EDIT") Edit();
            if (key == "DELETE") Delete();
        };
        PublishMenuMethod("gMenuEditClick", [this] { Edit(); });
        PublishMenuMethod("gMenuDeleteClick", [this] { Delete(); });
        SetNoRestore(true);
        SetBody(shell::Column({shell::Item(tlbListview), shell::Item(lvwNews)}));
    }

  private:
    void Setup() override {
        shell::SetupDeleteToolbar(tlbListview);
        shell::SetupEditToolbar(tlbListview);
        AddNewsColumns(lvwNews);
        const int width = lvwNews.Width() - 350;
        lvwNews.SetColumnWidth(1, width / 5);
        lvwNews.SetColumnWidth(2, width * 4 / 5);
    }

    void LoadSettings() override {
        lvwNews.Clear();
        LoadNewsRows(context_.files, lvwNews);
        const bool rows = lvwNews.Count() > 0;
        tlbListview.SetButtonEnabled("DELETE", rows);
        tlbListview.SetButtonEnabled("EDIT", rows);
    }

    void RestoreDefaults() override {}

    void SaveSettings() override {
        context_.files.WriteTextFile(kNewsFile, NewsText(lvwNews), true);
    }

    // SAVE shows the file as it now stands.
    void FormToolbarClick(const std::string& key) override {
        Page::FormToolbarClick(key);
        if (key == "SAVE") Reload();
    }

    // The row the buttons act on: the selected one, or the first, which the list has current
    // until the user picks another.
    int Current() const { return lvwNews.Selected() != 0 ? lvwNews.Selected() : 1; }

    // EDIT edits nothing: it shows the article, with the icon its symbol asks for.
    void Edit() {
        if (lvwNews.Count() == 0) return;
        const int row = Current();
        shell::Icon icon = shell::Icon::Information;
        const std::string& symbol = lvwNews.Cell(row, 4);
        if (symbol == "2") icon = shell::Icon::Question;
        if (symbol == "3") icon = shell::Icon::Exclamation;
        if (symbol == "4") icon = shell::Icon::Critical;
        context_.host.ShowMessage({lvwNews.Cell(row, 3),
                                   lvwNews.Row(row).text + " - " + lvwNews.Cell(row, 2),
                                   shell::Buttons::OK, icon});
    }

    void Delete() {
        if (lvwNews.Count() == 0) return;
        if (!Confirm("Do you really want to delete this News Article?", "Delete News Article?")) {
            return;
        }
        lvwNews.Remove(Current());
        if (lvwNews.Count() == 0) {
            for (const char* key : {"DELETE", "EDIT"})
                tlbListview.SetButtonEnabled(key, false);
        }
        MarkDirty();
    }

    shell::Toolbar& tlbListview;
    ListControl& lvwNews;
};

}  // namespace

void RegisterNewsPages(shell::PageRegistry& registry) {
    registry.Register("General~News",
                      [](PageContext& context) { return std::make_unique<NewsPage>(context); });
}

}  // namespace qb::pages
