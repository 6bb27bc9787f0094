#include "pages/pages.h"

#include "pages/archive/archive.h"
#include "pages/communication/communication.h"
#include "pages/customiseuser/customiseuser.h"
#include "pages/games/games.h"
#include "pages/general/general.h"
#include "pages/language/language.h"
#include "pages/security/security.h"
#include "pages/useractions/useractions.h"

namespace qb::pages {

void RegisterAllPages(shell::PageRegistry& registry, const PageServices& services) {
    RegisterCustomiseUserPages(registry);
    RegisterGeneralPages(registry);
    RegisterLanguagePages(registry);
    RegisterCommunicationPages(registry, services);
    RegisterSecurityPages(registry);
    RegisterGamePages(registry);
    RegisterUserActionPages(registry);
    RegisterArchivePages(registry);
}

// In the order a rebuild builds the areas.
void RegisterAllBuilders(store::BuilderRegistry& builders) {
    RegisterCustomiseUserBuilders(builders);
    RegisterGeneralBuilders(builders);
    RegisterCommunicationBuilders(builders);
    RegisterGameBuilders(builders);
    RegisterSecurityBuilders(builders);
    RegisterUserActionBuilders(builders);
    RegisterArchiveBuilders(builders);
}

}  // namespace qb::pages
