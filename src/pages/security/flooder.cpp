// The flooder: which profiles' users the flood guard watches when they flood users of which
// profiles. The pair shape of the permission matrices.

#include "pages/security/security.h"

namespace qb::pages {

const PairMatrix& FloodMatrix() {
    static const PairMatrix matrix{
        .key = "Security~Flooder",
        .commands = {{"Flood", {"Security\\Flood\\FloodSettings.tbl", "tFloodSettings"}}}};
    return matrix;
}

}  // namespace qb::pages
