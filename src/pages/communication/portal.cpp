// The portal: the identity with which one bot logs on to two hubs, the two hubs, and the nicks
// whose chat isn't passed on. The page also owns the sessions: ticking a hub's row connects it.

#include <array>

#include "hublink/nmdc_text.h"
#include "hublink/portal_values.h"
#include "hublink/sessions.h"
#include "pages/communication/communication.h"
#include "pages/general/bot_list.h"
#include "shell/page.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/table_text.h"

namespace qb::pages {
namespace {

using hublink::HubColumn;
using shell::Answer;
using shell::Buttons;
using shell::Icon;
using shell::Label;
using shell::ListControl;
using shell::Page;
using shell::PageContext;
using shell::TextBox;
using shell::Toolbar;

// The text boxes and their keys in tUser.
constexpr std::array<const char*, 4> kUserKeys = {"sUsername", "sDescription", "sEmail",
                                                  "sClientIP"};
constexpr std::array<const char*, 4> kUserCaptions = {"Username", "Description", "Email", "IP"};
// Only two hubs: the sessions have two slots.
constexpr int kMaxHubs = 2;

class PortalPage : public Page, private hublink::PortalValues {
  public:
    PortalPage(PageContext& context, const hublink::SessionsFactory& hubLink)
        : Page(context, "Communication~Portal", "Communication ~ Portal", {6600, 7500}),
          txtTextBox{&Add<TextBox>("txtTextBox(0)"), &Add<TextBox>("txtTextBox(1)"),
                     &Add<TextBox>("txtTextBox(2)"), &Add<TextBox>("txtTextBox(3)")},
          lblHubs(Add<Label>("lblLabel(0)", "Hub Settings")),
          tlbHubs(Add<Toolbar>("tlbHubs")),
          lvwHubs(Add<ListControl>("lvwHubs", true)),
          lblNicks(Add<Label>("lblLabel(1)", "Nicks To Ignore")),
          tlbNicks(Add<Toolbar>("tlbNicks")),
          lvwNicks(Add<ListControl>("lvwNicks")),
          sessions_(hubLink(*this)) {
        SetNoRestore(true);
        for (size_t i = 0; i < txtTextBox.size(); ++i) {
            txtTextBox[i]->SetCaption(kUserCaptions[i]);
            txtTextBox[i]->onChange = [this] { MarkDirty(); };
        }
        lvwHubs.SetWidth(6600 - 180 - 2 * 120);
        lvwNicks.SetWidth(lvwHubs.Width());
        tlbHubs.onButtonClick = [this](const std::string& key) { ListButton(key, hubs_); };
        tlbNicks.onButtonClick = [this](const std::string& key) { ListButton(key, nicks_); };
        lvwHubs.onDoubleClick = [this](int) { EditRow(hubs_); };
        lvwNicks.onDoubleClick = [this](int) { EditRow(nicks_); };
        lvwHubs.onItemCheck = [this](int row) { HubTicked(row); };
        // A right click selects the row and pops up the hubs' or the nicks' menu.
        lvwHubs.onRightClick = [this](int) { ShowPopupMenu("mnuFirst"); };
        lvwNicks.onRightClick = [this](int) { ShowPopupMenu("mnuSecond"); };
        PublishMenuMethod("gMenuFirstAddClick", [this] { AddRows(hubs_); });
        PublishMenuMethod("gMenuFirstDeleteClick", [this] { DeleteRow(hubs_); });
        PublishMenuMethod("gMenuFirstEditClick", [this] { EditRow(hubs_); });
        PublishMenuMethod("gMenuSecondAddClick", [this] { AddRows(nicks_); });
        PublishMenuMethod("gMenuSecondDeleteClick", [this] { DeleteRow(nicks_); });
        PublishMenuMethod("gMenuSecondEditClick", [this] { EditRow(nicks_); });
        sessions_->onEvent = [this](const hublink::Event& event) { SessionEvent(event); };
        SetBody(
            shell::Column({shell::Item(*txtTextBox[0]), shell::Item(*txtTextBox[1]),
                           shell::Item(*txtTextBox[2]), shell::Item(*txtTextBox[3]),
                           shell::Item(lblHubs), shell::Item(tlbHubs), shell::Item(lvwHubs),
                           shell::Item(lblNicks), shell::Item(tlbNicks), shell::Item(lvwNicks)}));
    }

  private:
    // The hub list and the nick list are edited alike; this is what differs.
    struct RowKind {
        ListControl& list;
        Toolbar& toolbar;
        const char* noun;  // in the captions and the delete question
        std::vector<const char*> labels;
        int limit;  // rows at most; 0 for no limit
    };

    void Setup() override {
        shell::SetupListToolbar(tlbHubs);
        shell::SetupListToolbar(tlbNicks);
        lvwHubs.AddColumn("HubAddress", "Hub Address", 2800);
        lvwHubs.AddColumn("ClientPassword", "Client Password", 1600);
        lvwHubs.AddColumn("ClientPort", "Client Port", 1100);
        lvwHubs.AddColumn("HubName", "HubName", 0);
        lvwNicks.AddColumn("ID", "ID", 0);
        lvwNicks.AddColumn("Nicks", "Nicks", lvwNicks.Width() - 350);
    }

    void LoadSettings() override {
        auto& files = context_.files;
        for (size_t i = 0; i < txtTextBox.size(); ++i) {
            txtTextBox[i]->SetText(files.ReadTableValue(kPortalFile, kUserKeys[i], "tUser"));
        }
        // Ticks belong to the sessions, which a reload leaves running.
        lvwHubs.Clear();
        for (int n = 1; n <= kMaxHubs; ++n) {
            const std::string table = std::to_string(n);
            std::string address = files.ReadTableValue(kPortalFile, "sHubAddress", table);
            if (address.empty()) continue;
            const int row = lvwHubs.Count() + 1;
            lvwHubs.Append(NewRowKey(row), address);
            lvwHubs.SetCell(row, 2, files.ReadTableValue(kPortalFile, "sClientPassword", table));
            lvwHubs.SetCell(row, 3, files.ReadTableValue(kPortalFile, "sClientPort", table));
            // The only writer of HubName: a hub added or edited later keeps what it had.
            lvwHubs.SetCell(row, 4, std::move(address));
        }
        // Load only ever turns NEW off.
        if (lvwHubs.Count() == kMaxHubs) tlbHubs.SetButtonEnabled(1, false);
        lvwNicks.Clear();
        shell::LoadTableRows(files, kPortalFile, lvwNicks, "=", "tIgnoreNicks", false, false,
                             false);
        if (lvwNicks.Count() == 0) IgnoreTheBots();
    }

    // A portal with no ignore list ignores the pack's own bots, so that the scripts' notices on
    // one hub don't reach the other. Unsaved: this is no change of the user's.
    void IgnoreTheBots() {
        for (const std::string& table : BuildBotList()) {
            std::string name = context_.files.ReadTableValue(kBotsFile, "sName", table);
            // A missing Bots.tbl reads as no names, and an empty nick would ignore every line
            // that has no sender.
            if (name.empty() || HasNick(name)) continue;
            const int row = lvwNicks.Count() + 1;
            lvwNicks.Append(NewRowKey(row), "1");
            lvwNicks.SetCell(row, 2, std::move(name));
        }
    }

    void RestoreDefaults() override {}  // the page has no RESTORE

    void SaveSettings() override {
        store::TableText text("tPortalSettings = {");
        text.Open(1, "tUser");
        for (size_t i = 0; i < txtTextBox.size(); ++i) {
            text.Quoted(2, kUserKeys[i], txtTextBox[i]->Text());
        }
        text.Close(1);
        text.Open(1, "tHubs");
        for (int row = 1; row <= lvwHubs.Count(); ++row) {
            text.Open(2, "[" + std::to_string(row) + "]");
            text.Quoted(3, "sHubAddress", lvwHubs.Row(row).text);
            text.Quoted(3, "sClientPassword", lvwHubs.Cell(row, 2));
            text.Quoted(3, "sClientPort", lvwHubs.Cell(row, 3));
            text.Close(2);
        }
        text.Close(1);
        text.Open(1, "tIgnoreNicks");
        for (int row = 1; row <= lvwNicks.Count(); ++row) {
            text.Row(2, row, "\"" + lvwNicks.Cell(row, 2) + "\"");
        }
        text.Close(1);
        // The scripts read the table without its closing brace, and the file has never had one.
        MakePortalFolder();
        context_.files.WriteTextFile(kPortalFile, text.Text());
    }

    // No builder makes the portal's folder, so a fresh settings tree lacks it; a save makes it
    // rather than fail on the user's typing.
    void MakePortalFolder() {
        auto& files = context_.files;
        std::string folder = files.SettingsFolder();
        for (const char* part : {"\\Communication", "\\Portal"}) {
            folder += part;
            if (!files.FolderExists(folder)) files.CreateFolder(folder);
        }
    }

    // ---- Rows ---------------------------------------------------------------------------------

    std::string NewRowKey(int count) { return shell::NewRowKey(context_.files, count); }

    bool HasNick(std::string_view nick) const {
        for (int row = 1; row <= lvwNicks.Count(); ++row) {
            if (lvwNicks.Cell(row, 2) == nick) return true;
        }
        return false;
    }

    void ListButton(const std::string& key, RowKind& kind) {
        if (key == "NEW") AddRows(kind);
        if (key == "DELETE") DeleteRow(kind);
        if (key == "EDIT") EditRow(kind);
    }

    shell::DialogRequest Dialog(const RowKind& kind, const char* verb) const {
        shell::DialogRequest request;
        const bool hubs = &kind.list == &lvwHubs;
        request.kind = hubs ? shell::DialogKind::ThreeFields : shell::DialogKind::OneFields;
        request.caption = std::string(verb) + " " + kind.noun;
        request.labels.assign(kind.labels.begin(), kind.labels.end());
        // The first field is the one that must be there: the address, or the nick.
        request.required = hubs ? 2 : 1;
        return request;
    }

    // The row's fields as the dialog shows them: a hub's address, password and port; a nick.
    std::array<std::string, 4> Fields(const RowKind& kind, int row) const {
        if (&kind.list == &lvwNicks) return {kind.list.Cell(row, 2), {}, {}, {}};
        return {kind.list.Row(row).text, kind.list.Cell(row, 2), kind.list.Cell(row, 3), {}};
    }

    void StoreFields(const RowKind& kind, int row, const std::array<std::string, 4>& fields) {
        if (&kind.list == &lvwNicks) {
            kind.list.SetCell(row, 2, fields[0]);
            return;
        }
        kind.list.SetText(row, fields[0]);
        kind.list.SetCell(row, 2, fields[1]);
        kind.list.SetCell(row, 3, fields[2]);
    }

    void AddRows(RowKind& kind) {
        if (kind.limit != 0 && kind.list.Count() >= kind.limit) return;
        for (;;) {
            shell::DialogRequest request = Dialog(kind, "Add");
            request.mode = "A";
            const shell::DialogResult result = context_.host.ShowDialog(request);
            if (result.mode.empty()) return;
            const int row = kind.list.Count() + 1;
            // A nick row's text is only a running number; the nick is the second column.
            const bool nicks = &kind.list == &lvwNicks;
            kind.list.Append(NewRowKey(row), nicks ? std::to_string(row) : std::string());
            StoreFields(kind, row, result.fields);
            MarkDirty();
            if (kind.limit != 0 && kind.list.Count() == kind.limit) {
                kind.toolbar.SetButtonEnabled(1, false);
                return;
            }
            if (result.mode != "A") return;
        }
    }

    void EditRow(RowKind& kind) {
        const int row = kind.list.Selected();
        if (row == 0) return;
        shell::DialogRequest request = Dialog(kind, "Edit");
        request.values = Fields(kind, row);
        request.mode = "E";
        const shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return;
        StoreFields(kind, row, result.fields);
        MarkDirty();
    }

    void DeleteRow(RowKind& kind) {
        const int row = kind.list.Selected();
        if (row == 0) return;
        const std::string noun = kind.noun;
        const Answer answer =
            context_.host.ShowMessage({"Do you really want to delete this " + noun + "?",
                                       "Delete " + noun + "?", Buttons::OKCancel, Icon::Question});
        if (answer != Answer::OK) return;
        // A live session of the row goes on: its slot is the row number it was ticked at.
        kind.list.Remove(row);
        kind.list.Select(kind.list.Count() > 0 ? 1 : 0);
        MarkDirty();
        // The test is for the limit itself, which a delete never leaves; so NEW stays off
        // until the page is opened again.
        if (kind.limit != 0 && kind.list.Count() == kind.limit) {
            kind.toolbar.SetButtonEnabled(1, true);
        }
    }

    // ---- Sessions -----------------------------------------------------------------------------

    void HubTicked(int row) {
        lvwHubs.Select(row);
        if (lvwHubs.Row(row).checked) {
            StartSlot(row);
        } else {
            sessions_->Stop(row, lvwHubs.Row(row).text);
        }
    }

    void StartSlot(int row) {
        for (const TextBox* box : txtTextBox) {
            if (!box->Text().empty()) continue;
            context_.host.ShowMessage({"Please fill in all text boxes",
                                       "Mandatory Information Required", Buttons::OK,
                                       Icon::Exclamation});
            lvwHubs.SetChecked(row, false);
            return;
        }
        int othersTicked = 0;
        for (int other = 1; other <= lvwHubs.Count(); ++other) {
            if (other != row && lvwHubs.Row(other).checked) ++othersTicked;
        }
        if (othersTicked >= kMaxHubs) {
            lvwHubs.SetChecked(row, false);
            return;
        }
        const std::string& address = lvwHubs.Row(row).text;
        const std::string_view port = hublink::After(address, ":");
        if (port.empty()) {
            context_.host.ShowMessage(
                {"The hub address \"" + address +
                     "\" has no port. Write it as the hub's host, a colon and its port, such "
                     "as hub.example.org:411.",
                 "Hub Address Without Port", Buttons::OK, Icon::Exclamation});
            lvwHubs.SetChecked(row, false);
            return;
        }
        stsStatusBar.SetText(2, "");
        sessions_->Start(row, {std::string(hublink::Before(address, ":")), std::string(port),
                               lvwHubs.Cell(row, 3)});
    }

    void SessionEvent(const hublink::Event& event) {
        using Kind = hublink::Event::Kind;
        switch (event.kind) {
            case Kind::CutOff:
                stsStatusBar.SetText(
                    2, "Hub " + std::to_string(event.slot) + " was disconnected: it " + event.text);
                break;
            case Kind::NickRefused:
                context_.files.Randomize();
                break;
            case Kind::UdpError:
                context_.host.ShowMessage({"Error occured: \r\n" + event.text,
                                           std::to_string(event.code), Buttons::OK,
                                           Icon::Exclamation});
                break;
            default:
                // A dropped connection, a bad password, a refused nick: no word to the user,
                // and the row stays ticked until the user unticks it.
                break;
        }
    }

    // ---- What the sessions read ---------------------------------------------------------------

    std::string Username() const override { return txtTextBox[0]->Text(); }
    std::string Description() const override { return txtTextBox[1]->Text(); }
    std::string Email() const override { return txtTextBox[2]->Text(); }

    std::string HubCell(int row, HubColumn column) const override {
        if (row < 1 || row > lvwHubs.Count()) return {};
        switch (column) {
            case HubColumn::Address:
                return lvwHubs.Row(row).text;
            case HubColumn::Password:
                return lvwHubs.Cell(row, 2);
            case HubColumn::ClientPort:
                return lvwHubs.Cell(row, 3);
            case HubColumn::HubName:
                return lvwHubs.Cell(row, 4);
        }
        return {};
    }

    bool Ignores(std::string_view nick) const override { return HasNick(nick); }

    std::array<TextBox*, 4> txtTextBox;
    Label& lblHubs;
    Toolbar& tlbHubs;
    ListControl& lvwHubs;
    Label& lblNicks;
    Toolbar& tlbNicks;
    ListControl& lvwNicks;
    RowKind hubs_{
        lvwHubs, tlbHubs, "Hub", {"Hub Address", "Client Password", "Client Port"}, kMaxHubs};
    RowKind nicks_{lvwNicks, tlbNicks, "Nick", {"Nick"}, 0};
    // Last, so that the sockets go first when the page goes.
    std::unique_ptr<hublink::Sessions> sessions_;
};

}  // namespace

void RegisterPortalPage(shell::PageRegistry& registry, const hublink::SessionsFactory& hubLink) {
    registry.Register("Communication~Portal", [hubLink](PageContext& context) {
        return std::make_unique<PortalPage>(context, hubLink);
    });
}

}  // namespace qb::pages
