#include "pages/communication/communication.h"

namespace qb::pages {

void RegisterCommunicationPages(shell::PageRegistry& registry, const PageServices& services) {
    RegisterMatrixPages(registry);
    if (services.hubLink) RegisterPortalPage(registry, services.hubLink);
}

void RegisterCommunicationBuilders(store::BuilderRegistry& builders) {
    RegisterMatrixBuilders(builders);
}

}  // namespace qb::pages
