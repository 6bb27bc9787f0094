// The client checker: which clients and versions may connect, which connection types are refused,
// what is done to a user who fails, and which profiles skip the check.

#include <algorithm>
#include <charconv>

#include "pages/security/action_codes.h"
#include "pages/security/security.h"
#include "shell/page.h"
#include "shell/page_frame.h"
#include "shell/profile_checks.h"
#include "shell/table_lists.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

using shell::Answer;
using shell::Buttons;
using shell::Icon;
using shell::Label;
using shell::ListControl;
using shell::Page;
using shell::PageContext;

constexpr shell::PageSize kSize{8400, 6600};
constexpr int kClientsWidth = 4800;
constexpr int kCheckListWidth = 2400;
// What a column leaves for the list's scroll bar.
constexpr int kScrollBar = 275;

class ClientCheckerPage : public Page {
  public:
    explicit ClientCheckerPage(PageContext& context)
        : Page(context, "Security~ClientChecker", "Security ~ ClientChecker", kSize),
          lblClients(Add<Label>("lblLabel(0)", "Clients")),
          tlbClients(Add<shell::Toolbar>("tlbClients")),
          lvwClients(Add<ListControl>("lvwClients")),
          lblTimeBan(Add<Label>("lblLabel(1)", "TimeBan")),
          txtUpDown(Add<shell::TextBox>("txtUpDown")),
          updUpDown(Add<shell::UpDown>("updUpDown", 1, 1440, 5)),
          lblAction(Add<Label>("lblLabel(3)", "Action")),
          cboComboBox(Add<shell::ComboBox>("cboComboBox")),
          lblBlocked(Add<Label>("lblLabel(2)", "Blocked Connection Types")),
          lvwBlockedTypes(Add<ListControl>("lvwBlockedTypes", true)),
          lblExempt(Add<Label>("lblLabel(4)", "Exempt Profiles")),
          lvwEnabledProfiles(Add<ListControl>("lvwEnabledProfiles", true)) {
        lvwClients.SetWidth(kClientsWidth);
        lvwBlockedTypes.SetWidth(kCheckListWidth);
        lvwEnabledProfiles.SetWidth(kCheckListWidth);
        // The time is typed through the up-down only, so that it stays in its bounds.
        txtUpDown.SetReadOnly(true);
        SetTime("10");
        updUpDown.onChange = [this] {
            txtUpDown.SetText(std::to_string(updUpDown.Value()));
            MarkDirty();
        };
        cboComboBox.onClick = [this] { MarkDirty(); };
        lvwBlockedTypes.onItemCheck = [this](int) { MarkDirty(); };
        lvwEnabledProfiles.onItemCheck = [this](int) { MarkDirty(); };
        tlbClients.onButtonClick = [this](const std::string& key) {
            if (key == "NEW") AddClients();
            if (key == "DELETE") DeleteClient();
            if (key == "EDIT") EditClient();
        };
        lvwClients.onDoubleClick = [this](int) { EditClient(); };
        lvwClients.onRightClick = [this](int) { ShowPopupMenu("mnuFirst"); };
        PublishMenuMethod("gMenuFirstAddClick", [this] { AddClients(); });
        PublishMenuMethod("gMenuFirstDeleteClick", [this] { DeleteClient(); });
        PublishMenuMethod("gMenuFirstEditClick", [this] { EditClient(); });
        // A discard reloads the files and leaves nothing to save.
        SetDiscardClears(true);
        SetBody(shell::Row(
            {shell::Weighted(
                 shell::Column({shell::Item(lblClients), shell::Item(tlbClients),
                                shell::Item(lvwClients),
                                shell::Row({shell::Item(lblTimeBan), shell::Item(txtUpDown),
                                            shell::Item(updUpDown), shell::Stretch()}),
                                shell::Row({shell::Item(lblAction), shell::Item(cboComboBox),
                                            shell::Stretch()})}),
                 3),
             shell::Weighted(
                 shell::Column({shell::Item(lblBlocked), shell::Item(lvwBlockedTypes),
                                shell::Item(lblExempt), shell::Item(lvwEnabledProfiles)}),
                 2)}));
    }

  private:
    void Setup() override {
        shell::SetupListToolbar(tlbClients);
        lvwClients.AddColumn("column1", "Client", kClientsWidth * 2 / 5);
        lvwClients.AddColumn("column2", "Min Version", kClientsWidth * 2 / 5 - kScrollBar);
        lvwClients.AddColumn("column3", "Allow", kClientsWidth / 5);
        lvwBlockedTypes.AddColumn("column1", "", kCheckListWidth - kScrollBar);
        lvwEnabledProfiles.AddColumn("column1", "", kCheckListWidth - kScrollBar);
    }

    void LoadSettings() override {
        const store::FileSchema& schema = ClientCheckerSettingsSchema();
        auto& files = context_.files;
        cboComboBox.ClearItems();
        for (const ActionCode& action : ActionCodes())
            cboComboBox.AddItem(std::string(action.name));
        cboComboBox.SetText("Kick");
        lvwBlockedTypes.Clear();
        lvwEnabledProfiles.Clear();
        lvwClients.Clear();

        // An empty value is no value: the controls keep what they show until the file is read.
        if (std::string code = files.ReadTableValue(schema.file, "sAction", schema.table);
            !code.empty()) {
            const std::string name = ActionName(code);
            ShowAction(name.empty() ? code : name);
        }
        SetTime("10");
        if (std::string time = files.ReadTableValue(schema.file, "iBanTime", schema.table);
            !time.empty()) {
            SetTime(std::move(time));
        }

        // The rows are the keys without their type letter: bPassive shows as "Passive".
        shell::LoadTableRows(files, schema.file, lvwBlockedTypes, "=", "tBlock", true, false,
                             false);
        for (int row = 1; row <= lvwBlockedTypes.Count(); ++row) {
            const std::string& text = lvwBlockedTypes.Row(row).text;
            lvwBlockedTypes.SetText(row, text.size() > 1 ? text.substr(1, 99) : std::string());
        }
        shell::LoadProfileChecks(lvwEnabledProfiles, context_, schema.file, "tEnabledProfiles");

        // A client's value is its allow flag, "^" and its minimum version.
        shell::LoadTableRows(files, ClientVersionsSchema().file, lvwClients, "=",
                             ClientVersionsSchema().table, false, false, false);
        for (int row = 1; row <= lvwClients.Count(); ++row) {
            const std::string value = lvwClients.Cell(row, 2);
            const size_t caret = value.find('^');
            const std::string allow = value.substr(0, caret);
            lvwClients.SetCell(
                row, 2, caret == std::string::npos ? std::string() : value.substr(caret + 1));
            lvwClients.SetCell(row, 3, store::IsNumericallyOne(allow) ? "True" : "False");
        }
        EnableRowButtons();
    }

    void RestoreDefaults() override {
        const store::FileSchema& schema = ClientCheckerSettingsSchema();
        for (ListControl* list : {&lvwEnabledProfiles, &lvwBlockedTypes}) {
            for (int row = 1; row <= list->Count(); ++row)
                list->SetChecked(row, false);
        }
        SetTime(store::DefaultOf(schema, "iBanTime"));
        ShowAction(ActionName(store::DefaultOf(schema, "sAction")));
        // The clients are the user's list, not a setting with a default.
    }

    void SaveSettings() override {
        // The blocked types are the rows the list holds, each keyed "b" and its text.
        store::FileSchema schema = ClientCheckerSettingsSchema();
        for (store::Field& field : schema.fields) {
            if (field.key != "tBlock") continue;
            field.rows.clear();
            for (const shell::ListRow& row : lvwBlockedTypes.Rows())
                field.rows.push_back("b" + row.text);
        }
        const std::string text =
            store::RenderTable(schema, context_.profiles.LastNumber(),
                               [this](const store::Field& field, int row) -> std::string {
                                   if (field.key == "iBanTime") return txtUpDown.Text();
                                   if (field.key == "sAction") {
                                       const std::string code = ActionCodeOf(cboComboBox.Text());
                                       return code.empty() ? cboComboBox.Text() : code;
                                   }
                                   if (field.key == "tBlock")
                                       return lvwBlockedTypes.Row(row + 1).checked ? "1" : "0";
                                   return shell::ProfileCheckValue(lvwEnabledProfiles, row);
                               });
        context_.files.WriteTextFile(schema.file, text);

        store::TableText versions(ClientVersionsSchema().table + " = {");
        for (int row = 1; row <= lvwClients.Count(); ++row) {
            const std::string flag = lvwClients.Cell(row, 3) == "True" ? "1" : "0";
            versions.Line(1, "[\"" + lvwClients.Row(row).text + "\"] = \"" + flag + "^" +
                                 lvwClients.Cell(row, 2) + "\",");
        }
        context_.files.WriteTextFile(ClientVersionsSchema().file, versions.End());
    }

    // ---- Controls -------------------------------------------------------------------------------

    // The text box shows the time as it stands; the up-down follows where it can.
    void SetTime(std::string text) {
        int value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error == std::errc() && end == text.data() + text.size()) {
            updUpDown.SetValue(std::clamp(value, updUpDown.Min(), updUpDown.Max()));
        }
        txtUpDown.SetText(std::move(text));
    }

    // An action the table lacks is shown as the file has it.
    void ShowAction(const std::string& text) {
        cboComboBox.SetListOnly(false);
        cboComboBox.SetText(text);
        cboComboBox.SetListOnly(true);
    }

    void EnableRowButtons() {
        const bool rows = lvwClients.Count() > 0;
        tlbClients.SetButtonEnabled("DELETE", rows);
        tlbClients.SetButtonEnabled("EDIT", rows);
    }

    // ---- Client rows --------------------------------------------------------------------------

    // The row the buttons act on: the selected one, or the first, which the list has current.
    int Current() const { return lvwClients.Selected() != 0 ? lvwClients.Selected() : 1; }

    static shell::DialogRequest ClientDialog(std::string caption, std::string firstLabel) {
        shell::DialogRequest request;
        request.kind = shell::DialogKind::TwoTextCombo;
        request.caption = std::move(caption);
        request.labels = {std::move(firstLabel), "Min Version", "Allow"};
        request.comboItems = {{"True", "False"}};
        request.required = 4;  // both texts and the combo
        return request;
    }

    void StoreClient(int row, const std::array<std::string, 4>& fields) {
        lvwClients.SetText(row, fields[0]);
        lvwClients.SetCell(row, 2, fields[1]);
        lvwClients.SetCell(row, 3, fields[2]);
    }

    // A client already listed may be added again: the scripts take the last.
    void AddClients() {
        for (;;) {
            shell::DialogRequest request = ClientDialog("Add Client", "Client");
            request.mode = "A";
            const shell::DialogResult result = context_.host.ShowDialog(request);
            if (result.mode != "1" && result.mode != "A") break;
            const int row = lvwClients.Count() + 1;
            lvwClients.Append(std::to_string(row) + "*" +
                                  store::FormatGeneral(context_.files.NextRandom() * 10000000.0) +
                                  "*ID",
                              "");
            StoreClient(row, result.fields);
            MarkDirty();
            if (result.mode != "A") break;
        }
        if (lvwClients.Count() > 0) EnableRowButtons();
    }

    // The caption is the one every page's row editor has had.
    void EditClient() {
        if (lvwClients.Count() == 0) return;
        const int row = Current();
        const std::string client = store::TrimBlanks(lvwClients.Row(row).text);
        shell::DialogRequest request = ClientDialog("Edit File", client + " Client");
        request.values = {client,
                          store::TrimBlanks(lvwClients.Cell(row, 2)),
                          store::TrimBlanks(lvwClients.Cell(row, 3)),
                          {}};
        request.mode = "E";
        const shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return;
        StoreClient(row, result.fields);
        MarkDirty();
    }

    // The list may start empty, but the user can't empty it.
    void DeleteClient() {
        if (lvwClients.Count() == 0) return;
        if (lvwClients.Count() == 1) {
            context_.host.ShowMessage({"There must be a minimum of one Client", "Cannot delete",
                                       Buttons::OK, Icon::Exclamation});
            return;
        }
        const Answer answer =
            context_.host.ShowMessage({"Do you really want to delete this Client?",
                                       "Delete Client?", Buttons::OKCancel, Icon::Question});
        if (answer != Answer::OK) return;
        lvwClients.Remove(Current());
        MarkDirty();
        if (lvwClients.Count() == 0) EnableRowButtons();
    }

    Label& lblClients;
    shell::Toolbar& tlbClients;
    ListControl& lvwClients;
    Label& lblTimeBan;
    shell::TextBox& txtUpDown;
    shell::UpDown& updUpDown;
    Label& lblAction;
    shell::ComboBox& cboComboBox;
    Label& lblBlocked;
    ListControl& lvwBlockedTypes;
    Label& lblExempt;
    ListControl& lvwEnabledProfiles;
};

}  // namespace

const store::FileSchema& ClientCheckerSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        .file = "Security\\ClientChecker\\ClientCheckerSettings.tbl",
        .table = "tClientCheckerSettings",
        .fields =
            {
                {.kind = FieldKind::Number, .key = "iBanTime", .defaultValue = "60"},
                // The code of "TempBan".
                {.kind = FieldKind::String, .key = "sAction", .defaultValue = "T"},
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

const store::FileSchema& ClientVersionsSchema() {
    static const store::FileSchema schema{"Security\\ClientChecker\\ClientVersions.tbl",
                                          "tClientVersions",
                                          {},
                                          store::FileKind::Data};
    return schema;
}

void RegisterClientCheckerPage(shell::PageRegistry& registry) {
    registry.Register("Security~ClientChecker", [](PageContext& context) {
        return std::make_unique<ClientCheckerPage>(context);
    });
}

void RegisterClientCheckerBuilders(store::BuilderRegistry& builders) {
    builders.Add("Security\\ClientChecker", ClientCheckerSettingsSchema());
    builders.Add("Security\\ClientChecker", ClientVersionsSchema());
}

}  // namespace qb::pages
