#include "pages/pages.h"

#include "pages/archive/archive.h"
#include "pages/communication/communication.h"
#include "pages/general/general.h"
#include "pages/language/language.h"
#include "pages/security/security.h"

namespace qb::pages {

void RegisterAllPages(shell::PageRegistry& registry, const PageServices& services) {
    RegisterGeneralPages(registry);
    RegisterLanguagePages(registry);
    RegisterCommunicationPages(registry, services);
    RegisterSecurityPages(registry);
    RegisterArchivePages(registry);
}

void RegisterAllBuilders(store::BuilderRegistry& builders) {
    RegisterGeneralBuilders(builders);
    RegisterCommunicationBuilders(builders);
    RegisterSecurityBuilders(builders);
}

}  // namespace qb::pages
