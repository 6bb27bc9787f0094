// Anti-advertise settings: what the scripts do to a user who advertises another hub, in which of
// his texts and games they look for it, and which profiles they watch.

#include "pages/security/action_codes.h"
#include "pages/security/security.h"

namespace qb::pages {

const store::FileSchema& AntiAdvertiseSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        .file = "Security\\AntiAdvertise\\AntiAdvertiseSettings.tbl",
        .table = "tAntiAdvertiseSettings",
        .fields =
            {
                {FieldKind::Flag, "bEnableIPBlock", "1"},
                {FieldKind::Flag, "bSilentMode", "1"},
                {FieldKind::Flag, "bAllowToOps", "1"},
                BanTimeField("iTempBanTime"),
                ActionField(),
                {FieldKind::ProfileChecks, "tBlockedProfiles", "0"},
            },
    };
    return schema;
}

// Where the scripts look: the user's own texts, then the games.
const store::FileSchema& AntiAdvertiseBlockedActionsSchema() {
    static const store::FileSchema schema = [] {
        store::FileSchema file{"Security\\AntiAdvertise\\AntiAdvertiseBlockedActions.tbl",
                               "tAntiAdvertiseBlockedActions",
                               {}};
        for (const char* key :
             {"bMain", "bPM", "bNick", "bDescription", "bAnagrams", "bCodeBreaker",
              "bGuessTheNumber", "bHangman", "bNumbers", "bTrivia"}) {
            file.fields.push_back({store::FieldKind::Flag, key, "1"});
        }
        return file;
    }();
    return schema;
}

const shell::PageDecl& AntiAdvertiseSettingsPage() {
    using namespace shell::decl;
    using shell::Item;
    constexpr int kListWidth = 2600;
    const auto checkList = [](shell::ControlDecl list) {
        list.columns = {{"column1", "", kListWidth - 350}};
        return list;
    };
    static const shell::PageDecl page{
        .key = "Security~AntiAdvertise~Settings",
        .caption = "Security ~ AntiAdvertise ~  Settings",
        .size = {8000, 6075},
        .files = {&AntiAdvertiseSettingsSchema(), &AntiAdvertiseBlockedActionsSchema()},
        .controls =
            {Label("lblLabel(0)", "Action"),
             With({.initial = "Kick", .showsUnlisted = true}, Combo("cboComboBox", "sAction")),
             Tipped("Allows IPs beginning with 0 (such as 0.3.6.0)",
                    Check("chkCheckBox(0)", "bEnableIPBlock", "Enable IP Block")),
             Check("chkCheckBox(1)", "bSilentMode", "Enable Silent Mode"),
             Check("chkCheckBox(2)", "bAllowToOps", "Allow In PM to Ops"),
             Label("lblLabel(1)", "TimeBan"), Spin("txtUpDown", "updUpDown", "iTempBanTime"),
             Label("lblLabel(2)", "Blocked Profiles"),
             checkList(ProfileChecks("lvwBlockedProfiles", "tBlockedProfiles", "", kListWidth)),
             Label("lblLabel(3)", "Blocked Actions"),
             // RESTORE ticks every row: the scripts look everywhere by default.
             With({.restoreTicksAll = true},
                  In(AntiAdvertiseBlockedActionsSchema(),
                     checkList(FlagRows("lvwBlockedActions", "tAntiAdvertiseBlockedActions",
                                        kListWidth, {}))))},
        .layout = shell::Row(
            {shell::Column({shell::Row({Item("lblLabel(0)"), Item("cboComboBox")}),
                            Item("chkCheckBox(0)"), Item("chkCheckBox(1)"), Item("chkCheckBox(2)"),
                            shell::Row({Item("lblLabel(1)"), Item("txtUpDown"), Item("updUpDown")}),
                            shell::Stretch()}),
             shell::Column({Item("lblLabel(2)"), Item("lvwBlockedProfiles")}),
             shell::Column({Item("lblLabel(3)"), Item("lvwBlockedActions")})}),
    };
    return page;
}

}  // namespace qb::pages
