// The report function: the profiles whose users may report to the hub's operators.

#include "pages/security/security.h"

namespace qb::pages {

const store::FileSchema& ReportSettingsSchema() {
    static const store::FileSchema schema{
        "Security\\Report\\ReportSettings.tbl",
        "tReportSettings",
        {{store::FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const shell::PageDecl& ReportPage() {
    using namespace shell::decl;
    static const shell::PageDecl page{
        .key = "Security~Report",
        .caption = "Security ~ Report",
        .size = {3400, 6075},
        .files = {&ReportSettingsSchema()},
        .controls = {Label("lblLabel(0)", "Enabled Profiles"),
                     ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                   shell::FillWidth(3400))},
    };
    return page;
}

}  // namespace qb::pages
