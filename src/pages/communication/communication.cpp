#include "pages/communication/communication.h"

namespace qb::pages {

void RegisterCommunicationPages(shell::PageRegistry& registry, const PageServices& services) {
    if (services.hubLink) RegisterPortalPage(registry, services.hubLink);
}

}  // namespace qb::pages
