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
using shell::ListControl;
using shell::Page;
using shell::PageContext;
using shell::TextBox;

// The text boxes and their keys in tUser.
constexpr std::array<const char*, 4> kUserKeys = {"sUsername", "sDescription", "sEmail",
                                                  "sClientIP"};
constexpr std::array<const char*, 4> kUserCaptions = {"Username", "Description", "Email", "IP"};
// Only two hubs: the sessions have two slots.
constexpr int kMaxHubs = 2;

shell::RowDialogDecl HubDialog(std::string caption) {
    // The address is the one field that must be there.
    return {.kind = shell::DialogKind::ThreeFields,
            .caption = std::move(caption),
            .labels = {"Hub Address", "Client Password", "Client Port"},
            .required = 2};
}

shell::RowDialogDecl NickDialog(std::string caption) {
    return {.kind = shell::DialogKind::OneFields,
            .caption = std::move(caption),
            .labels = {"Nick"},
            .required = 1};
}

class frmCommunicationPortal : public Page, private hublink::PortalValues {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        constexpr int kWidth = shell::FillWidth(6600);
        static const shell::PageDecl page{
            .key = "Communication~Portal",
            .caption = "Communication ~ Portal",
            .size = {6600, 7500},
            .controls = {Marks(Text("txtTextBox(0)", "", kUserCaptions[0])),
                         Marks(Text("txtTextBox(1)", "", kUserCaptions[1])),
                         Marks(Text("txtTextBox(2)", "", kUserCaptions[2])),
                         Marks(Text("txtTextBox(3)", "", kUserCaptions[3])),
                         Label("lblLabel(0)", "Hub Settings"),
                         Toolbar("tlbHubs", {shell::SetupListToolbar}),
                         List("lvwHubs", kWidth,
                              {{"HubAddress", "Hub Address", 2800},
                               {"ClientPassword", "Client Password", 1600},
                               {"ClientPort", "Client Port", 1100},
                               {"HubName", "HubName", 0}},
                              true),
                         Label("lblLabel(1)", "Nicks To Ignore"),
                         Toolbar("tlbNicks", {shell::SetupListToolbar}),
                         List("lvwNicks", kWidth,
                              {{"ID", "ID", 0}, {"Nicks", "Nicks", kWidth - 350}})},
            // Two hubs at most: the sessions have two slots. A nick row's text is only a
            // running number; the nick is its second column.
            .editors = {{.list = "lvwHubs",
                         .toolbar = "tlbHubs",
                         .popup = "mnuFirst",
                         .methods = "gMenuFirst",
                         .columns = {1, 2, 3},
                         .add = HubDialog("Add Hub"),
                         .edit = HubDialog("Edit Hub"),
                         .confirmDelete =
                             shell::Prompt{"Do you really want to delete this Hub?", "Delete Hub?"},
                         .limit = kMaxHubs,
                         .target = shell::RowTarget::Selected,
                         .selectFirstAfterDelete = true,
                         .buttons = shell::ButtonRule::Fixed},
                        {.list = "lvwNicks",
                         .toolbar = "tlbNicks",
                         .popup = "mnuSecond",
                         .methods = "gMenuSecond",
                         .columns = {2},
                         .add = NickDialog("Add Nick"),
                         .edit = NickDialog("Edit Nick"),
                         .confirmDelete = shell::Prompt{"Do you really want to delete this Nick?",
                                                        "Delete Nick?"},
                         .target = shell::RowTarget::Selected,
                         .selectFirstAfterDelete = true,
                         .buttons = shell::ButtonRule::Fixed}},
            .noRestore = true,
        };
        return page;
    }

    frmCommunicationPortal(PageContext& context, const hublink::SessionsFactory& hubLink)
        : Page(context, Decl()),
          txtTextBox{&Get<TextBox>("txtTextBox(0)"), &Get<TextBox>("txtTextBox(1)"),
                     &Get<TextBox>("txtTextBox(2)"), &Get<TextBox>("txtTextBox(3)")},
          lvwHubs(Get<ListControl>("lvwHubs")),
          lvwNicks(Get<ListControl>("lvwNicks")),
          sessions_(hubLink(*this)) {
        lvwHubs.onItemCheck = [this](int row) { HubTicked(row); };
        sessions_->onEvent = [this](const hublink::Event& event) { SessionEvent(event); };
    }

  private:
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
            lvwHubs.Append(shell::NewRowKey(files, row), address);
            lvwHubs.SetCell(row, 2, files.ReadTableValue(kPortalFile, "sClientPassword", table));
            lvwHubs.SetCell(row, 3, files.ReadTableValue(kPortalFile, "sClientPort", table));
            // The only writer of HubName: a hub added or edited later keeps what it had.
            lvwHubs.SetCell(row, 4, std::move(address));
        }
        lvwNicks.Clear();
        shell::LoadTableRows(files, kPortalFile, lvwNicks, "=", "tIgnoreNicks", false, false,
                             false);
        if (lvwNicks.Count() == 0) IgnoreTheBots();
        Page::LoadSettings();
    }

    // A portal with no ignore list ignores the pack's own bots, so that the scripts' notices on
    // one hub don't reach the other. Unsaved: this is no change of the user's.
    void IgnoreTheBots() {
        for (const std::string& table : BuildBotList(context_.version)) {
            std::string name = context_.files.ReadTableValue(kBotsFile, "sName", table);
            // A missing Bots.tbl reads as no names, and an empty nick would ignore every line
            // that has no sender.
            if (name.empty() || HasNick(name)) continue;
            const int row = lvwNicks.Count() + 1;
            lvwNicks.Append(shell::NewRowKey(context_.files, row), "1");
            lvwNicks.SetCell(row, 2, std::move(name));
        }
    }

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
        // No builder makes the portal's folder, so a fresh settings tree lacks it; a save makes
        // it rather than fail on the user's typing. The scripts read the table without its
        // closing brace, and the file has never had one.
        MakeFoldersOf(kPortalFile);
        context_.files.WriteTextFile(kPortalFile, text.Text());
    }

    bool HasNick(std::string_view nick) const {
        for (int row = 1; row <= lvwNicks.Count(); ++row) {
            if (lvwNicks.Cell(row, 2) == nick) return true;
        }
        return false;
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
    ListControl& lvwHubs;
    ListControl& lvwNicks;
    // Last, so that the sockets go first when the page goes.
    std::unique_ptr<hublink::Sessions> sessions_;
};

}  // namespace

shell::PageEntry PortalPage(const hublink::SessionsFactory& hubLink) {
    return {frmCommunicationPortal::Decl(), [hubLink](PageContext& context) {
                return std::make_unique<frmCommunicationPortal>(context, hubLink);
            }};
}

}  // namespace qb::pages
