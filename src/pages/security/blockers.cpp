// The bad nick and clone blockers: one page over a row of what differs. Each keeps an action with
// the time of a ban, the profiles it spares (and on the clone blocker those it watches), and a
// list of names: the nicks refused, or the users whose clones may stay.

#include "pages/security/action_codes.h"
#include "pages/security/security.h"
#include "shell/page_frame.h"

namespace qb::pages {

struct Blocker {
    const char* name;  // "BadNickBlocker": the key's last part, the folder, the files' stem
    std::vector<shell::CheckListDecl> checks;  // in the page's order
    std::vector<std::string> buildOrder;       // the builder's order of the settings file
    const char* listName;                      // "NickList": the list file is the stem and this
    store::RowForm rowForm;
    std::optional<std::string> rowValue;  // every row written with this value, unquoted
    const char* list;                     // the list control, its label and its columns
    const char* listLabel;
    const char* valueColumn;
    const char* noun;  // the dialogs' and the prompt's word for a row
    // The dialog edits the row's value (the nick beside its number) rather than its text.
    bool editsValue;

    store::FileSchema settings{};
    store::FileSchema names{};
    shell::PageDecl page{};
};

namespace {

constexpr int kListWidth = 2400;
constexpr int kNamesWidth = 3200;

std::string Folder(const Blocker& blocker) {
    return std::string("Security\\") + blocker.name + "\\" + blocker.name;
}

store::FileSchema SettingsOf(const Blocker& blocker) {
    store::FileSchema file{.file = Folder(blocker) + "Settings.tbl",
                           .table = "t" + std::string(blocker.name) + "Settings",
                           .fields = {BanTimeField("iTempBanTime"), ActionField()},
                           .builderForm = {.order = blocker.buildOrder}};
    for (const shell::CheckListDecl& check : blocker.checks)
        file.fields.push_back({store::FieldKind::ProfileChecks, check.key, "0"});
    return file;
}

// The list the user keeps, made as its header and "}" when missing.
store::FileSchema ListOf(const Blocker& blocker) {
    const std::string table = "t" + std::string(blocker.name) + blocker.listName;
    return {.file = Folder(blocker) + blocker.listName + ".tbl",
            .table = table,
            .fields = {{.kind = store::FieldKind::Rows,
                        .key = table,
                        .defaultValue = "",
                        .rowForm = blocker.rowForm,
                        .quotedRows = !blocker.rowValue,
                        .rowValue = blocker.rowValue}},
            .kind = store::FileKind::Data};
}

shell::PageDecl PageOf(const Blocker& blocker) {
    using namespace shell::decl;
    using shell::Item;
    const std::string noun = blocker.noun;
    const auto dialog = [&](const std::string& verb, int required) {
        return shell::RowDialogDecl{.kind = shell::DialogKind::OneFields,
                                    .caption = verb + " " + noun,
                                    .labels = {noun},
                                    .required = required};
    };
    shell::PageDecl page{
        .key = "Security~" + std::string(blocker.name),
        .caption = "Security ~ " + std::string(blocker.name),
        .size = {10000, 6075},
        .files = {&blocker.settings, &blocker.names},
        .controls =
            {Label("lblLabel(0)", "Action"),
             With({.initial = "Kick", .showsUnlisted = true}, Combo("cboComboBox", "sAction")),
             Label("lblLabel(1)", "TimeBan"), Spin("txtUpDown", "updUpDown", "iTempBanTime"),
             Label("lblLabel(2)", blocker.listLabel),
             Toolbar("tlbListview", {shell::SetupListToolbar}),
             In(blocker.names, Rows(blocker.list, blocker.names.table, kNamesWidth,
                                    {{"column1", "User", kNamesWidth / 2},
                                     {"column2", blocker.valueColumn, kNamesWidth / 2 - 350}}))},
        .editors = {{.list = blocker.list,
                     .toolbar = "tlbListview",
                     .popup = "mnuFirst",
                     .methods = "gMenuFirst",
                     .columns = {blocker.editsValue ? 2 : 1},
                     .add = dialog("Add", 1),
                     .edit = dialog("Edit", 0),
                     // No floor: the last name can go, and DELETE and EDIT go off with it.
                     .confirmDelete =
                         shell::Prompt{"Do you really want to delete this " + noun + "?",
                                       "Delete " + noun + "?"},
                     .addNamesRow = blocker.editsValue}},
        .layout = shell::Row({}),
    };
    shell::Layout settings =
        shell::Column({shell::Row({Item("lblLabel(0)"), Item("cboComboBox")}),
                       shell::Row({Item("lblLabel(1)"), Item("txtUpDown"), Item("updUpDown")}),
                       Item("lblLabel(2)"), Item("tlbListview"), Item(blocker.list)});
    page.layout->items.push_back(shell::Weighted(settings, 4));
    shell::AddCheckLists(page, *page.layout, blocker.checks, 3, kListWidth);
    return page;
}

// The row's schemas and page, made once the row stands where it stays.
const Blocker& Made(Blocker& blocker) {
    blocker.settings = SettingsOf(blocker);
    blocker.names = ListOf(blocker);
    blocker.page = PageOf(blocker);
    return blocker;
}

}  // namespace

// Bad nicks are numbered from 1 at every save, so a nick's number changes when a row above it
// goes; the page reads each nick from the second column.
const Blocker& BadNickBlocker() {
    static Blocker blocker{
        .name = "BadNickBlocker",
        .checks = {{"tExemptProfiles", "lvwExemptProfiles", "Exempt Profiles"}},
        .buildOrder = {"sAction", "iTempBanTime", "tExemptProfiles"},
        .listName = "NickList",
        .rowForm = store::RowForm::Numbered,
        .rowValue = std::nullopt,
        .list = "lvwBadNickList",
        .listLabel = "Bad Nicks",
        .valueColumn = "Nick",
        .noun = "Bad Nick",
        .editsValue = true,
    };
    static const Blocker& made = Made(blocker);
    return made;
}

// Exempt users are ["nick"] = 1, the nick the row's text.
const Blocker& CloneBlocker() {
    static Blocker blocker{
        .name = "CloneBlocker",
        .checks = {{"tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles"},
                   {"tExemptProfiles", "lvwExemptProfiles", "Exempt Profiles"}},
        .buildOrder = {"sAction", "iTempBanTime", "tExemptProfiles", "tEnabledProfiles"},
        .listName = "ExemptUsers",
        .rowForm = store::RowForm::Named,
        .rowValue = "1",
        .list = "lvwExemptUsers",
        .listLabel = "Exempt Users",
        .valueColumn = "Value",
        .noun = "Exempt User",
        .editsValue = false,
    };
    static const Blocker& made = Made(blocker);
    return made;
}

const shell::PageDecl& BlockerPage(const Blocker& blocker) {
    return blocker.page;
}
const store::FileSchema& BlockerSettingsSchema(const Blocker& blocker) {
    return blocker.settings;
}
const store::FileSchema& BlockerListSchema(const Blocker& blocker) {
    return blocker.names;
}

}  // namespace qb::pages
