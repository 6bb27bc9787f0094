// The profiles that may get and set the hub's own settings through the scripts' commands. The
// page keeps only these two lists, in the manager's tree: it never reads or writes the hub's
// configuration.

#include "pages/security/security.h"

namespace qb::pages {

const store::FileSchema& PtokaXSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        "Security\\PtokaX\\PtokaXSettings.tbl",
        "tPtokaXSettings",
        {{FieldKind::ProfileChecks, "tEnabledGetProfiles", "0"},
         {FieldKind::ProfileChecks, "tEnabledSetProfiles", "0"}},
    };
    return schema;
}

const shell::PageDecl& PtokaXSettingsPage() {
    using namespace shell::decl;
    using shell::Item;
    constexpr int kListWidth = 2600;
    static const shell::PageDecl page{
        .key = "Security~PtokaXSettings",
        .caption = "Security~ PtokaXSettings",
        .size = {6000, 6075},
        .files = {&PtokaXSettingsSchema()},
        .controls = {Label("lblLabel(0)", "Enabled Get Profiles"),
                     ProfileChecks("lvwEnabledGetProfiles", "tEnabledGetProfiles",
                                   "Enabled Profiles", kListWidth),
                     Label("lblLabel(1)", "Enabled Set Profiles"),
                     ProfileChecks("lvwEnabledSetProfiles", "tEnabledSetProfiles",
                                   "Enabled Profiles", kListWidth)},
        .layout = shell::Row({shell::Column({Item("lblLabel(0)"), Item("lvwEnabledGetProfiles")}),
                              shell::Column({Item("lblLabel(1)"), Item("lvwEnabledSetProfiles")})}),
    };
    return page;
}

}  // namespace qb::pages
