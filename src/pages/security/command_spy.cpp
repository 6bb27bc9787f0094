// The command spy: the profiles whose operators see the command spy's reports.

#include "pages/security/security.h"

namespace qb::pages {

const store::FileSchema& CommandSpySettingsSchema() {
    static const store::FileSchema schema{
        "Security\\CommandSpy\\CommandSpySettings.tbl",
        "tCommandSpySettings",
        {{store::FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

// The script's own list of the users it watches, made empty when missing.
const store::FileSchema& CommandSpyUsersSchema() {
    static const store::FileSchema schema{
        "Security\\CommandSpy\\CommandSpyUsers.tbl", "tCommandSpyUsers", {}, store::FileKind::Data};
    return schema;
}

const shell::PageDecl& CommandSpyPage() {
    using namespace shell::decl;
    static const shell::PageDecl page{
        .key = "Security~CommandSpy",
        .caption = "Security ~ CommandSpy",
        .size = {3400, 6075},
        .files = {&CommandSpySettingsSchema()},
        .controls = {ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                   shell::FillWidth(3400))},
    };
    return page;
}

}  // namespace qb::pages
