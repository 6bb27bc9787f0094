// The archives' permission pages: the command shape of the permission matrices, a file per
// command with a row per profile number.

#include "pages/archive/archive.h"

namespace qb::pages {

const CommandMatrix& ArcadePermissions() {
    static const CommandMatrix matrix{
        "Arcade~Permissions",
        {"Clear", "Delete", "Modify", "NewItems", "Submit"},
        "TheVellum\\Arcade\\ArcadeEnable",
        "tArcadeEnable",
    };
    return matrix;
}

}  // namespace qb::pages
