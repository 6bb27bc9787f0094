// AutoCorrect: word pairs the scripts replace in what the chosen profiles type, and the actions
// whose text they leave alone. Which actions there are is up to the filters file.

#include "pages/communication/communication.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

constexpr const char* kFolder = "Communication\\AutoCorrect\\";
constexpr const char* kFiltersTable = "tAutoCorrectFilters";

}  // namespace

const store::FileSchema& AutoCorrectSettingsSchema() {
    static const store::FileSchema schema{
        std::string(kFolder) + "AutoCorrectSettings.tbl",
        "tAutoCorrectSettings",
        {{store::FieldKind::Flag, "bNotifyOps", "1"},
         {store::FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const store::FileSchema& AutoCorrectWordsSchema() {
    static const store::FileSchema schema{
        .file = std::string(kFolder) + "AutoCorrectWords.tbl",
        .table = "tAutoCorrectWords",
        .fields = {{.kind = store::FieldKind::Rows,
                    .key = "tAutoCorrectWords",
                    .defaultValue = "",
                    .rowForm = store::RowForm::Named}},
        .kind = store::FileKind::Data,
    };
    return schema;
}

// The filters as a rebuild knows them: a list it makes empty when missing.
const store::FileSchema& AutoCorrectFiltersSchema() {
    static const store::FileSchema schema{
        std::string(kFolder) + "AutoCorrectFilters.tbl", kFiltersTable, {}, store::FileKind::Data};
    return schema;
}

namespace {

// The filters as the page writes them: a file of flags, one per row the list holds.
const store::FileSchema& FilterFlags() {
    static const store::FileSchema schema{AutoCorrectFiltersSchema().file,
                                          kFiltersTable,
                                          {{store::FieldKind::Flag, "bFilter", "0"}},
                                          store::FileKind::Data};
    return schema;
}

shell::RowDialogDecl WordDialog(std::string caption) {
    // Nothing bars the dialog's Add: the list takes words in a run.
    return {.kind = shell::DialogKind::TwoFields,
            .caption = std::move(caption),
            .labels = {"Original Word", "Replacement Word"},
            .required = 1};
}

constexpr int kWordsWidth = 4600;
constexpr int kSideWidth = 3000;

}  // namespace

const shell::PageDecl& AutoCorrectPage() {
    using namespace shell::decl;
    using shell::Item;
    static const shell::PageDecl page{
        .key = "Communication~AutoCorrect",
        .caption = "Communication ~ AutoCorrect",
        .size = {8400, 7200},
        .files = {&AutoCorrectSettingsSchema(), &AutoCorrectWordsSchema(), &FilterFlags()},
        .controls = {Check("chkNotifyOps", "bNotifyOps", "Notify Ops"),
                     Toolbar("tlbAutoCorrectWords", {shell::SetupListToolbar}),
                     In(AutoCorrectWordsSchema(),
                        Rows("lvwAutoCorrectWords", "tAutoCorrectWords", kWordsWidth,
                             {{"column1", "Original", (kWordsWidth - 350) / 2},
                              {"column2", "Replacement", (kWordsWidth - 350) / 2}})),
                     In(FilterFlags(),
                        With({.onlyLeadingB = true, .restoreKeepsTicks = true},
                             FlagRows("lvwFilters", kFiltersTable, kSideWidth,
                                      {{"column1", "Filtered Actions", kSideWidth - 350}}))),
                     ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                   kSideWidth)},
        .editors = {{.list = "lvwAutoCorrectWords",
                     .toolbar = "tlbAutoCorrectWords",
                     .popup = "mnuFirst",
                     .methods = "gMenuFirst",
                     .columns = {1, 2},
                     .add = WordDialog("Add AutoCorrect Word"),
                     .edit = WordDialog("Edit AutoCorrect Word"),
                     .confirmDelete =
                         shell::Prompt{"Do you really want to delete this Word?", "Delete Word?"},
                     .floor = 1,
                     .floorPrompt = {"There must be a minimum of one Word", "Cannot delete",
                                     shell::Icon::Critical},
                     .deleteKey = true}},
        .layout = shell::Row({shell::Column({Item("chkNotifyOps"), Item("tlbAutoCorrectWords"),
                                             Item("lvwAutoCorrectWords")}),
                              shell::Column({Item("lvwFilters"), Item("lvwEnabledProfiles")})}),
    };
    return page;
}

}  // namespace qb::pages
