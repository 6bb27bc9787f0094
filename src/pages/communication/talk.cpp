// Talk: who may talk to whom, by profile. The pair shape of the permission matrices.

#include "pages/communication/communication.h"

namespace qb::pages {

const PairMatrix& TalkMatrix() {
    // The builder has always left out the unregistered users as the talked-to: their cells read
    // "No" until the page's first save writes them.
    static const PairMatrix matrix{
        .key = "Communication~Talk",
        .commands = {{"Talk", {"Communication\\Talk\\Talk.tbl", "tTalk"}}},
        .builderFirstOn = 0};
    return matrix;
}

}  // namespace qb::pages
