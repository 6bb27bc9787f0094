#include "pages/security/security.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry) {
    RegisterSpyPages(registry);
}

void RegisterSecurityBuilders(store::BuilderRegistry& builders) {
    RegisterSpyBuilders(builders);
}

}  // namespace qb::pages
