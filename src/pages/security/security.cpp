#include "pages/security/security.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry) {
    RegisterSpyPages(registry);
}

}  // namespace qb::pages
