// The search spy: the phrases no user may search for, each with what is done to one who does,
// and the profiles it watches and spares.

#include "pages/security/action_codes.h"
#include "pages/security/security.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

// The actions of a phrase: every action but TempBan, which has no time here.
const std::vector<store::Choice>& PhraseActions() {
    static const std::vector<store::Choice> actions = [] {
        std::vector<store::Choice> all = ActionChoices();
        std::erase_if(all, [](const store::Choice& action) { return action.stored == "T"; });
        return all;
    }();
    return actions;
}

}  // namespace

// The builder has always written the immune profiles first, the page the enabled ones.
const store::FileSchema& SearchSpySettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        .file = "Security\\SearchSpy\\SearchSpySettings.tbl",
        .table = "tSearchSpySettings",
        .fields = {{FieldKind::ProfileChecks, "tAllowedProfiles", "0"},
                   {FieldKind::ProfileChecks, "tImmuneProfiles", "0"}},
        .builderForm = {.order = {"tImmuneProfiles", "tAllowedProfiles"}},
    };
    return schema;
}

// ["phrase"] = "K", a row each: the user's list, made empty when missing. A stored code the
// actions lack (a T) shows and saves as it stands.
const store::FileSchema& SearchSpyFilesSchema() {
    static const store::FileSchema schema{
        .file = "Security\\SearchSpy\\SearchSpyFiles.tbl",
        .table = "tSearchSpyFiles",
        .fields = {{.kind = store::FieldKind::Rows,
                    .key = "tSearchSpyFiles",
                    .defaultValue = "",
                    .choices = PhraseActions(),
                    .rowForm = store::RowForm::Named}},
        .kind = store::FileKind::Data,
    };
    return schema;
}

const shell::PageDecl& SearchSpyPage() {
    using namespace shell::decl;
    using shell::Item;
    constexpr int kFilesWidth = 3600;
    constexpr int kListWidth = 2400;
    const auto dialog = [](std::string caption, std::string label, int required) {
        return shell::RowDialogDecl{.kind = shell::DialogKind::TextCombo,
                                    .caption = std::move(caption),
                                    .labels = {std::move(label), "Action"},
                                    .required = required,
                                    .comboItems = {NamesOf(PhraseActions())},
                                    .values = {"", "Kick"}};
    };
    static const shell::PageDecl page{
        .key = "Security~SearchSpy",
        .caption = "Security ~ SearchSpy",
        .size = {9000, 6075},
        .files = {&SearchSpySettingsSchema(), &SearchSpyFilesSchema()},
        .controls = {Label("lblLabel(0)", "Forbidden Files"),
                     Toolbar("tlbFiles", {shell::SetupListToolbar}),
                     In(SearchSpyFilesSchema(),
                        Rows("lvwFiles", "tSearchSpyFiles", kFilesWidth,
                             {{"column1", "Filename", kFilesWidth * 2 / 3},
                              {"column2", "Action", kFilesWidth / 3 - 350}})),
                     Label("lblLabel(1)", "Enabled Profiles"),
                     ProfileChecks("lvwAllowedProfiles", "tAllowedProfiles", "", kListWidth),
                     Label("lblLabel(2)", "Immune Profiles"),
                     ProfileChecks("lvwImmuneProfiles", "tImmuneProfiles", "", kListWidth)},
        .editors = {{.list = "lvwFiles",
                     .toolbar = "tlbFiles",
                     .popup = "mnuFirst",
                     .methods = "gMenuFirst",
                     .columns = {1, 2},
                     .add = dialog("Add File", "File", 1),
                     .edit = dialog("Edit File", "{row} File", 0),
                     // The words of another page's list, kept as they have always been.
                     .confirmDelete =
                         shell::Prompt{"Do you really want to delete this File?", "Delete Intro?"},
                     .floor = 1,
                     .floorPrompt = {"There must be a minimum of one File", "Cannot delete",
                                     shell::Icon::Exclamation}}},
        .layout = shell::Row(
            {shell::Weighted(
                 shell::Column({Item("lblLabel(0)"), Item("tlbFiles"), Item("lvwFiles")}), 3),
             shell::Weighted(shell::Column({Item("lblLabel(1)"), Item("lvwAllowedProfiles")}), 2),
             shell::Weighted(shell::Column({Item("lblLabel(2)"), Item("lvwImmuneProfiles")}), 2)}),
    };
    return page;
}

}  // namespace qb::pages
