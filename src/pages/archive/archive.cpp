#include "pages/archive/archive.h"

namespace qb::pages {

void RegisterArchivePages(shell::PageRegistry& registry) {
    registry.Register({CommandMatrixPageOf(ArcadePermissions())});
}

}  // namespace qb::pages
