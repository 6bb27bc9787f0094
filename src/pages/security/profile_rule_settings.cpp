// Profile rules' settings: whether redirects are logged, after how many days the scripts check the
// rules on their own, and which profiles may get and set a user's rules. Beside them the scripts
// keep the users the rules leave alone and count the redirects, each in a file of its own.

#include "pages/security/security.h"

namespace qb::pages {

const store::FileSchema& ProfileRuleSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        .file = "Security\\ProfileRules\\ProfileRuleSettings.tbl",
        .table = "tProfileRuleSettings",
        .fields =
            {
                // RESTORE asks the function's defaults under the key itself, which they lack, and
                // unticks the box; the builder asks them under bEnableLog.
                {.kind = FieldKind::Flag,
                 .key = "bEnableRedirectLog",
                 .defaultValue = "",
                 .builderDefault = "1"},
                // The builder asks the defaults under iAutoCheckDelay, which they lack, so a new
                // file holds no delay at all ("iCheckDelay = ,"): a line the scripts' Lua can't
                // load, kept as the scripts' files have always had it.
                {.kind = FieldKind::Number,
                 .key = "iCheckDelay",
                 .defaultValue = "5",
                 .range = store::Range{1, 365},
                 .builderDefault = ""},
                {FieldKind::ProfileChecks, "tEnabledGetProfiles", "0"},
                {FieldKind::ProfileChecks, "tEnabledSetProfiles", "0"},
            },
    };
    return schema;
}

// The users the rules leave alone: the scripts' own list, made empty when missing.
const store::FileSchema& ProfileRulesExemptUsersSchema() {
    static const store::FileSchema schema{"Security\\ProfileRules\\ProfileRulesExemptUsers.tbl",
                                          "tProfileRulesExemptUsers",
                                          {},
                                          store::FileKind::Data};
    return schema;
}

// The scripts count the redirects of each rule here; every rebuild sets the counts back to 0.
// The ratio's count is iHubSlotRatio, where the rule itself is sHubSlotRatio.
const store::FileSchema& ProfileRulesRedirectCounterSchema() {
    static const store::FileSchema schema = [] {
        store::FileSchema file{"Security\\ProfileRules\\ProfileRulesRedirectCounter.tbl",
                               "tProfileRulesRedirectCounter",
                               {},
                               store::FileKind::Reset};
        for (const char* key :
             {"iMinShare", "iMaxShare", "iMinSlots", "iMaxSlots", "iMaxHubs", "iHubSlotRatio"}) {
            file.fields.push_back({store::FieldKind::Number, key, "0"});
        }
        return file;
    }();
    return schema;
}

const shell::PageDecl& ProfileRuleSettingsPage() {
    using namespace shell::decl;
    using shell::Item;
    constexpr int kListWidth = 2700;
    static const shell::PageDecl page{
        .key = "Security~ProfileRules~Settings",
        .caption = "Security ~ ProfileRules ~ Settings",
        .size = {6000, 6075},
        .files = {&ProfileRuleSettingsSchema()},
        .controls = {Check("chkCheckBox", "bEnableRedirectLog", "Log Redirects"),
                     Label("lblLabel(0)", "Automatic Check Delay"),
                     // The up-down stands at 10 until the user turns it; the box beside it shows
                     // the file's delay, none on a new file, rather than the default.
                     With({.initial = "", .upDownStart = 10},
                          Spin("txtUpDown", "updUpDown", "iCheckDelay")),
                     Label("lblLabel(1)", "Days"), Label("lblLabel(2)", "Enabled Get Profiles"),
                     ProfileChecks("lvwEnabledGetProfiles", "tEnabledGetProfiles",
                                   "Enabled Profiles", kListWidth),
                     Label("lblLabel(3)", "Enabled Set Profiles"),
                     ProfileChecks("lvwEnabledSetProfiles", "tEnabledSetProfiles",
                                   "Enabled Profiles", kListWidth)},
        .layout = shell::Column(
            {Item("chkCheckBox"),
             shell::Row({Item("lblLabel(0)"), Item("txtUpDown"), Item("updUpDown"),
                         Item("lblLabel(1)"), shell::Stretch()}),
             shell::Row({shell::Column({Item("lblLabel(2)"), Item("lvwEnabledGetProfiles")}),
                         shell::Column({Item("lblLabel(3)"), Item("lvwEnabledSetProfiles")})})}),
    };
    return page;
}

}  // namespace qb::pages
