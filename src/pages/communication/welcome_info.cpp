// Welcome info: the facts about the hub and its network the scripts show a user at login, and the
// network's hubs.

#include "pages/communication/communication.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

struct Fact {
    const char* key;
    const char* label;
};

// The texts, in the order the page shows and writes them.
constexpr Fact kFacts[] = {
    {"sNetworkFounder", "Network Founder"},
    {"sNetworkName", "Network Name"},
    {"sNetworkFounded", "Network Founded Date"},
    {"sHubOwner", "Hub Owner"},
    {"sHubEmail", "Hub Email"},
    {"sHublistAddress", "Hublist Address"},
    {"sWebSite", "Hub Web Site"},
    {"sNetworkAddress", "Network Address"},
};

}  // namespace

const store::FileSchema& WelcomeInfoSettingsSchema() {
    static const store::FileSchema schema = [] {
        using store::FieldKind;
        store::FileSchema file{
            "Communication\\WelcomeInfo\\WelcomeInfoSettings.tbl",
            "tWelcomeInfoSettings",
            {{FieldKind::Flag, "bShowOps", "1"}, {FieldKind::Flag, "bOnlyOnline", "1"}}};
        for (const Fact& fact : kFacts)
            file.fields.push_back({FieldKind::String, fact.key, ""});
        // The scripts read a minimum share that no page shows: the rebuild keeps it, a page
        // save drops it.
        file.fields.push_back({FieldKind::String, "sMinShare", ""});
        file.fields.push_back({FieldKind::ProfileChecks, "tEnabledProfiles", "0"});
        // The builder has always crossed the network's name and address: each line carries the
        // other's old value, so every rebuild swaps the two.
        for (const store::Field& field : file.fields)
            file.builderForm.order.push_back(field.key);
        std::swap(file.builderForm.order[3], file.builderForm.order[9]);
        file.builderForm.lines["sNetworkAddress"] = {.name = "sNetworkName"};
        file.builderForm.lines["sNetworkName"] = {.name = "sNetworkAddress"};
        return file;
    }();
    return schema;
}

const store::FileSchema& WelcomeInfoNetworkHubsSchema() {
    static const store::FileSchema schema{
        .file = "Communication\\WelcomeInfo\\WelcomeInfoNetworkHubs.tbl",
        .table = "tWelcomeInfoNetworkHubs",
        .fields = {{.kind = store::FieldKind::Rows,
                    .key = "tWelcomeInfoNetworkHubs",
                    .defaultValue = "",
                    .rowForm = store::RowForm::Numbered}},
        .kind = store::FileKind::Data,
    };
    return schema;
}

const shell::PageDecl& WelcomeInfoSettingsPage() {
    static const shell::PageDecl page = [] {
        using namespace shell::decl;
        using shell::Item;
        shell::PageDecl decl{
            .key = "Communication~WelcomeInfo~Settings",
            .caption = "Communication ~ WelcomeInfo ~ Settings",
            .size = {7200, 6075},
            .files = {&WelcomeInfoSettingsSchema()},
            .controls = {Check("chkCheckBox(0)", "bShowOps", "Show Operators"),
                         Check("chkCheckBox(1)", "bOnlyOnline", "Only Online Operators")},
        };
        shell::Layout texts = shell::Column({Item("chkCheckBox(0)"), Item("chkCheckBox(1)")});
        int index = 0;
        for (const Fact& fact : kFacts) {
            const std::string name = "txtTextBox(" + std::to_string(index++) + ")";
            decl.controls.push_back(Text(name, fact.key, fact.label));
            texts.items.push_back(Item(name));
        }
        texts.items.push_back(shell::Stretch());
        decl.controls.push_back(
            ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles", 3000));
        decl.layout = shell::Row({texts, Item("lvwEnabledProfiles")});
        return decl;
    }();
    return page;
}

const shell::PageDecl& WelcomeInfoNetworkHubsPage() {
    using namespace shell::decl;
    using shell::Item;
    constexpr int kWidth = shell::FillWidth(5000);
    const auto dialog = [](std::string caption) {
        // Nothing bars the dialog's Add: the list takes hubs in a run.
        return shell::RowDialogDecl{.kind = shell::DialogKind::OneFields,
                                    .caption = std::move(caption),
                                    .labels = {"Hub"},
                                    .required = 1};
    };
    static const shell::PageDecl page{
        .key = "Communication~WelcomeInfo~NetworkHubs",
        .caption = "Communication ~ WelcomeInfo ~ NetworkHubs",
        .size = {5000, 6075},
        .files = {&WelcomeInfoNetworkHubsSchema()},
        .controls = {Label("lblLabel(0)", "Network Hubs"),
                     Toolbar("tlbHubs", {shell::SetupListToolbar}),
                     With({.restoreRows = shell::Quirks::RestoreRows::Empty},
                          Rows("lvwHubs", "tWelcomeInfoNetworkHubs", kWidth,
                               {{"HubID", "HubID", 0}, {"HubName", "HubName", kWidth - 350}}))},
        // The delete prompt has always spoken another page's words.
        .editors = {{.list = "lvwHubs",
                     .toolbar = "tlbHubs",
                     .columns = {2},
                     .add = dialog("Add Hub"),
                     .edit = dialog("Edit Hub"),
                     .confirmDelete = shell::Prompt{"Do you really want to delete this File?",
                                                    "Delete Intro?"}}},
        .layout = shell::Column({Item("lblLabel(0)"), Item("tlbHubs"), Item("lvwHubs")}),
    };
    return page;
}

}  // namespace qb::pages
