#include "pages/security/security.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry) {
    RegisterClientCheckerPage(registry);
    RegisterFloodPage(registry);
    RegisterSpyPages(registry);
}

void RegisterSecurityBuilders(store::BuilderRegistry& builders) {
    RegisterClientCheckerBuilders(builders);
    RegisterFloodBuilders(builders);
    RegisterSpyBuilders(builders);
}

}  // namespace qb::pages
