#include "pages/general/general.h"

#include "pages/general/news.h"
#include "pages/general/switches.h"

namespace qb::pages {

void RegisterGeneralPages(shell::PageRegistry& registry) {
    registry.Register({
        GeneralSettingsPage(),
        BotsPage(),
        NewsPage(),
        SwitchesPage(),
        RightClicksPage(),
    });
}

// The general area's files, in the order a rebuild writes them in each folder: in
// General\Globals the settings first, then the two reset files.
void RegisterGeneralBuilders(store::BuilderRegistry& builders) {
    builders.Add({
        BotSettingsSchema(),
        GeneralSettingsSchema(),
        SwitchesSchema(),
        EnableRightClicksSchema(),
    });
}

}  // namespace qb::pages
