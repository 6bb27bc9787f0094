#include "pages/pages.h"

#include "pages/security/security.h"

namespace qb::pages {

void RegisterAllPages(shell::PageRegistry& registry) {
    RegisterSecurityPages(registry);
}

}  // namespace qb::pages
