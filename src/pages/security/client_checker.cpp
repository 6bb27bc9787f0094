// The client checker: which clients and versions may connect, which connection types are refused,
// what is done to a user who fails, and which profiles skip the check.

#include "pages/security/action_codes.h"
#include "pages/security/security.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {

const store::FileSchema& ClientCheckerSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        .file = "Security\\ClientChecker\\ClientCheckerSettings.tbl",
        .table = "tClientCheckerSettings",
        .fields =
            {
                BanTimeField("iBanTime"),
                ActionField(),
                {.kind = FieldKind::ProfileChecks, .key = "tEnabledProfiles", .defaultValue = "0"},
                // A rebuild clears every blocked type, though the file's other values survive it.
                {.kind = FieldKind::NamedFlags,
                 .key = "tBlock",
                 .defaultValue = "0",
                 .rows = {"bSockets", "bPassive", "bActive", "bUndeclared"},
                 .resetByRebuild = true},
            },
        // The builder has always written the keys in an order of its own.
        .builderForm = {{"sAction", "iBanTime", "tBlock", "tEnabledProfiles"}, "", {}},
    };
    return schema;
}

// The clients and their least versions: a list the user fills, made empty when missing.
const store::FileSchema& ClientVersionsSchema() {
    static const store::FileSchema schema{"Security\\ClientChecker\\ClientVersions.tbl",
                                          "tClientVersions",
                                          {},
                                          store::FileKind::Data};
    return schema;
}

namespace {

using shell::ListControl;
using namespace shell::decl;

constexpr int kClientsWidth = 4800;
constexpr int kCheckListWidth = 2400;
// What a column leaves for the list's scroll bar.
constexpr int kScrollBar = 275;

shell::RowDialogDecl ClientDialog(std::string caption, std::string firstLabel) {
    return {.kind = shell::DialogKind::TwoTextCombo,
            .caption = std::move(caption),
            .labels = {std::move(firstLabel), "Min Version", "Allow"},
            .required = 4,  // both texts and the combo
            .comboItems = {{"True", "False"}}};
}

shell::ControlDecl CheckList(shell::ControlDecl list) {
    list.columns = {{"column1", "", kCheckListWidth - kScrollBar}};
    return list;
}

// The clients are the page's own: each value is the allow flag, "^" and the least version.
class frmSecurityClientCheckerSettings : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        static const shell::PageDecl page{
            .key = "Security~ClientChecker",
            .caption = "Security ~ ClientChecker",
            .size = {8400, 6600},
            .files = {&ClientCheckerSettingsSchema()},
            .controls = {Label("lblLabel(0)", "Clients"),
                         Toolbar("tlbClients", {shell::SetupListToolbar}),
                         List("lvwClients", kClientsWidth,
                              {{"column1", "Client", kClientsWidth * 2 / 5},
                               {"column2", "Min Version", kClientsWidth * 2 / 5 - kScrollBar},
                               {"column3", "Allow", kClientsWidth / 5}}),
                         Label("lblLabel(1)", "TimeBan"),
                         Spin("txtUpDown", "updUpDown", "iBanTime"), Label("lblLabel(3)", "Action"),
                         With({.initial = "Kick", .showsUnlisted = true},
                              Combo("cboComboBox", "sAction")),
                         Label("lblLabel(2)", "Blocked Connection Types"),
                         With({.keepLetters = 99}, CheckList(FlagRows("lvwBlockedTypes", "tBlock",
                                                                      kCheckListWidth, {}))),
                         Label("lblLabel(4)", "Exempt Profiles"),
                         CheckList(ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "",
                                                 kCheckListWidth))},
            .editors = {{.list = "lvwClients",
                         .toolbar = "tlbClients",
                         .popup = "mnuFirst",
                         .methods = "gMenuFirst",
                         .columns = {1, 2, 3},
                         .add = ClientDialog("Add Client", "Client"),
                         // The caption every page's row editor has had; Add is off in an edit.
                         .edit =
                             [] {
                                 shell::RowDialogDecl edit =
                                     ClientDialog("Edit File", "{row} Client");
                                 edit.addButton = false;
                                 return edit;
                             }(),
                         .confirmDelete = shell::Prompt{"Do you really want to delete this Client?",
                                                        "Delete Client?"},
                         // The list may start empty, but the user can't empty it.
                         .floor = 1,
                         .floorPrompt = {"There must be a minimum of one Client", "Cannot delete",
                                         shell::Icon::Exclamation},
                         .trimValues = true}},
            .layout = shell::Row(
                {shell::Weighted(
                     shell::Column(
                         {shell::Item("lblLabel(0)"), shell::Item("tlbClients"),
                          shell::Item("lvwClients"),
                          shell::Row({shell::Item("lblLabel(1)"), shell::Item("txtUpDown"),
                                      shell::Item("updUpDown"), shell::Stretch()}),
                          shell::Row({shell::Item("lblLabel(3)"), shell::Item("cboComboBox"),
                                      shell::Stretch()})}),
                     3),
                 shell::Weighted(
                     shell::Column({shell::Item("lblLabel(2)"), shell::Item("lvwBlockedTypes"),
                                    shell::Item("lblLabel(4)"), shell::Item("lvwEnabledProfiles")}),
                     2)}),
            // A discard reloads the files and leaves nothing to save.
            .discardClears = true,
        };
        return page;
    }

    explicit frmSecurityClientCheckerSettings(shell::PageContext& context)
        : Page(context, Decl()), lvwClients(Get<ListControl>("lvwClients")) {}

  private:
    void LoadSettings() override {
        Page::LoadSettings();
        lvwClients.Clear();
        const store::FileSchema& versions = ClientVersionsSchema();
        shell::LoadTableRows(context_.files, versions.file, lvwClients, "=", versions.table, false,
                             false, false);
        for (int row = 1; row <= lvwClients.Count(); ++row) {
            const std::string value = lvwClients.Cell(row, 2);
            const size_t caret = value.find('^');
            const std::string allow = value.substr(0, caret);
            lvwClients.SetCell(
                row, 2, caret == std::string::npos ? std::string() : value.substr(caret + 1));
            lvwClients.SetCell(row, 3, store::IsNumericallyOne(allow) ? "True" : "False");
        }
    }

    // The clients are the user's list, not a setting with a default: RESTORE leaves them.

    void SaveSettings() override {
        Page::SaveSettings();
        store::TableText versions(ClientVersionsSchema().table + " = {");
        for (int row = 1; row <= lvwClients.Count(); ++row) {
            const std::string flag = lvwClients.Cell(row, 3) == "True" ? "1" : "0";
            versions.Line(1, "[\"" + lvwClients.Row(row).text + "\"] = \"" + flag + "^" +
                                 lvwClients.Cell(row, 2) + "\",");
        }
        context_.files.WriteTextFile(ClientVersionsSchema().file, versions.End());
    }

    ListControl& lvwClients;
};

}  // namespace

shell::PageEntry ClientCheckerPage() {
    return shell::PageOf<frmSecurityClientCheckerSettings>();
}

}  // namespace qb::pages
