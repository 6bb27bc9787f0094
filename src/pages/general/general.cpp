#include "pages/general/general.h"

#include "pages/general/news.h"
#include "pages/general/switches.h"

namespace qb::pages {

void RegisterGeneralPages(shell::PageRegistry& registry) {
    RegisterSettingsPages(registry);
    RegisterBotPages(registry);
    RegisterNewsPages(registry);
    RegisterSwitchPages(registry);
}

void RegisterGeneralBuilders(store::BuilderRegistry& builders) {
    RegisterBotBuilders(builders);
    // General\Globals: the settings first, then the two reset files.
    RegisterSettingsBuilders(builders);
    RegisterSwitchBuilders(builders);
}

}  // namespace qb::pages
