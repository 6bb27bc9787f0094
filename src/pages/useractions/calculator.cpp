// The calculator: the profiles whose users may use it.

#include "pages/useractions/useractions.h"

namespace qb::pages {

const store::FileSchema& CalculatorSettingsSchema() {
    static const store::FileSchema schema{
        "UserActions\\Calculator\\CalculatorSettings.tbl",
        "tCalculatorSettings",
        {{store::FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const shell::PageDecl& CalculatorPage() {
    using namespace shell::decl;
    static const shell::PageDecl page{
        .key = "UserActions~Calculator",
        .caption = "UserActions ~ Calculator",
        .size = {3400, 6075},
        .files = {&CalculatorSettingsSchema()},
        .controls = {ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                   shell::FillWidth(3400))},
        .discardClears = true,
    };
    return page;
}

}  // namespace qb::pages
