#include "pages/general/news.h"

#include <charconv>
#include <optional>

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

// frmGeneralNews: the news rows, which can only be read and deleted.
class frmGeneralNews : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        constexpr int kWidth = shell::FillWidth(6300);
        constexpr int kColumns = kWidth - 350;
        static const shell::PageDecl page{
            .key = "General~News",
            .caption = "General ~ News",
            .size = {6300, 7200},
            .controls = {Toolbar("tlbListview",
                                 {shell::SetupDeleteToolbar, shell::SetupEditToolbar}),
                         List("lvwNews", kWidth,
                              {{"column1", "Date", kColumns / 5},
                               {"column2", "News Headline", kColumns * 4 / 5},
                               {"column3", "News Story", 0},
                               {"column4", "Symbol", 0},
                               {"column5", "News ID", 0}})},
            // EDIT edits nothing: it shows the article.
            .editors = {{.list = "lvwNews",
                         .toolbar = "tlbListview",
                         .popup = "mnuUserActions",
                         .methods = "gMenu",
                         .confirmDelete =
                             shell::Prompt{"Do you really want to delete this News Article?",
                                           "Delete News Article?"},
                         .customEdit = true}},
            .noRestore = true,
        };
        return page;
    }

    explicit frmGeneralNews(shell::PageContext& context)
        : Page(context, Decl()), lvwNews(Get<ListControl>("lvwNews")) {
        Editor("lvwNews").onEdit = [this](int row) { ShowArticle(row); };
    }

  private:
    void LoadSettings() override {
        lvwNews.Clear();
        LoadNewsRows(context_.files, lvwNews);
        Page::LoadSettings();
    }

    void SaveSettings() override {
        context_.files.WriteTextFile(kNewsFile, NewsText(lvwNews), true);
    }

    // SAVE shows the file as it now stands.
    void FormToolbarClick(const std::string& key) override {
        Page::FormToolbarClick(key);
        if (key == "SAVE") Reload();
    }

    // The icon is the one the article's symbol asks for.
    void ShowArticle(int row) {
        shell::Icon icon = shell::Icon::Information;
        const std::string& symbol = lvwNews.Cell(row, kSymbol);
        if (symbol == "2") icon = shell::Icon::Question;
        if (symbol == "3") icon = shell::Icon::Exclamation;
        if (symbol == "4") icon = shell::Icon::Critical;
        context_.host.ShowMessage({lvwNews.Cell(row, kStory),
                                   lvwNews.Row(row).text + " - " + lvwNews.Cell(row, kHeadline),
                                   shell::Buttons::OK, icon});
    }

    ListControl& lvwNews;
};

}  // namespace

shell::PageEntry NewsPage() {
    return shell::PageOf<frmGeneralNews>();
}

}  // namespace qb::pages
