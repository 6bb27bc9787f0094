// Hide share: the profiles whose users may hide their share.

#include "pages/customiseuser/customiseuser.h"

namespace qb::pages {

const store::FileSchema& HideShareSettingsSchema() {
    static const store::FileSchema schema{
        "CustomiseUser\\HideShare\\HideShareSettings.tbl",
        "tHideShareSettings",
        {{store::FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

// The users the scripts let hide their share: their own list, made empty when missing.
const store::FileSchema& HideShareUsersSchema() {
    static const store::FileSchema schema{"CustomiseUser\\HideShare\\HideShareUsers.tbl",
                                          "tHideShareUsers",
                                          {},
                                          store::FileKind::Data};
    return schema;
}

const shell::PageDecl& HideSharePage() {
    using namespace shell::decl;
    static const shell::PageDecl page{
        .key = "CustomiseUser~HideShare",
        .caption = "CustomiseUser ~ HideShare",
        .size = {3400, 6075},
        .files = {&HideShareSettingsSchema()},
        .controls = {Label("lblLabel(0)", "Enabled Profiles"),
                     ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                   shell::FillWidth(3400))},
    };
    return page;
}

}  // namespace qb::pages
