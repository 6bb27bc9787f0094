#include "pages/pages.h"

#include "pages/communication/communication.h"
#include "pages/security/security.h"

namespace qb::pages {

void RegisterAllPages(shell::PageRegistry& registry, const PageServices& services) {
    RegisterCommunicationPages(registry, services);
    RegisterSecurityPages(registry);
}

}  // namespace qb::pages
