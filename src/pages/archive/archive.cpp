#include "pages/archive/archive.h"

namespace qb::pages {

void RegisterArchivePages(shell::PageRegistry& registry) {
    RegisterArchivePermissionPages(registry);
}

}  // namespace qb::pages
