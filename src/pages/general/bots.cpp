#include "pages/general/general.h"

namespace qb::pages {

const store::FileSchema& BotSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        "General\\Bots\\BotSettings.tbl",
        "tBotSettings",
        {
            {FieldKind::Flag, "bNotifyOps", "1"},
            {FieldKind::ProfileChecks, "tEnabledProfiles", "0"},
        },
    };
    return schema;
}

// Bots.tbl has no builder: the bots page writes it whole.
void RegisterBotBuilders(store::BuilderRegistry& builders) {
    builders.Add("General\\Bots", BotSettingsSchema());
}

}  // namespace qb::pages
