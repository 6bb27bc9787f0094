// The private hub: the profiles kept out of the hub, its main chat, private messages, downloads
// or searches, where a refused user is sent, and how private messages are held back.

#include "pages/security/security.h"

namespace qb::pages {

namespace {

// The page's order. The labels say Disabled and the columns Enabled: a ticked row is a profile
// refused.
const std::vector<shell::CheckListDecl>& Restrictions() {
    static const std::vector<shell::CheckListDecl> lists = {
        {"tDownloads", "lvwDisabledDownloads", "Disabled Downloads", "Enabled Downloads"},
        {"tMain", "lvwDisabledMain", "Disabled Main", "Enabled Main"},
        {"tPMs", "lvwDisabledPMs", "Disabled PM", "Enabled PMs"},
        {"tProfiles", "lvwDisabledProfiles", "Disabled Profiles", "Enabled Profiles"},
        {"tSearches", "lvwDisabledSearches", "Disabled Searches", "Enabled Searches"},
    };
    return lists;
}

}  // namespace

// A rebuild keeps each profile's ticks and resets the rest: the address empty, the delay and the
// registration before private messages to their defaults. The user enters them again after a
// new version or a new profile.
const store::FileSchema& PrivateHubSettingsSchema() {
    static const store::FileSchema schema = [] {
        using store::FieldKind;
        store::FileSchema file{
            .file = "Security\\PrivateHub\\PrivateHubSettings.tbl",
            .table = "tPrivateHubSettings",
            .fields = {{.kind = FieldKind::String,
                        .key = "sRedirectAddress",
                        .defaultValue = "",
                        .resetByRebuild = true},
                       {.kind = FieldKind::Number,
                        .key = "iPreventPMTime",
                        .defaultValue = "5",
                        .resetByRebuild = true,
                        .range = store::Range{1, 720},
                        .parent = "tRestrictPMs"},
                       {.kind = FieldKind::Flag,
                        .key = "bRegBeforePM",
                        .defaultValue = "1",
                        .resetByRebuild = true,
                        .parent = "tRestrictPMs"}},
        };
        for (const shell::CheckListDecl& restriction : Restrictions()) {
            file.fields.push_back({.kind = FieldKind::ProfileChecks,
                                   .key = restriction.key,
                                   .defaultValue = "0",
                                   .parent = "tDisabled"});
        }
        file.builderForm.order = {"sRedirectAddress", "iPreventPMTime", "bRegBeforePM",
                                  "tProfiles",        "tMain",          "tPMs",
                                  "tDownloads",       "tSearches"};
        return file;
    }();
    return schema;
}

const shell::PageDecl& PrivateHubPage() {
    static const shell::PageDecl page = [] {
        using namespace shell::decl;
        using shell::Item;
        constexpr int kListWidth = 2200;
        shell::PageDecl decl{
            .key = "Security~PrivateHub",
            .caption = "Security~ PrivateHub",
            .size = {11800, 6075},
            .files = {&PrivateHubSettingsSchema()},
            .controls = {Text("txtTextBox", "sRedirectAddress", "Redirect Address"),
                         // Any number above 0 ticks the box, which saves it as 1.
                         With({.ticksAboveZero = true},
                              Check("chkCheckBox", "bRegBeforePM", "Reg Before PM")),
                         Label("lblLabel(0)", "Delay Before PM"),
                         With({.upDownStart = 1},
                              Spin("txtUpDown", "updUpDown", "iPreventPMTime"))},
            // The load ends clean, so a discard leaves nothing to save.
            .discardClears = true,
        };
        shell::Layout lists = shell::Row({});
        shell::AddCheckLists(decl, lists, Restrictions(), 1, kListWidth);
        decl.layout =
            shell::Column({shell::Row({Item("txtTextBox"), Item("chkCheckBox"), Item("lblLabel(0)"),
                                       Item("txtUpDown"), Item("updUpDown"), shell::Stretch()}),
                           lists});
        return decl;
    }();
    return page;
}

}  // namespace qb::pages
