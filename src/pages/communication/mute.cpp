// Mute: who may mute whom, by profile. The pair shape of the permission matrices.

#include "pages/communication/communication.h"

namespace qb::pages {

const PairMatrix& MuteMatrix() {
    static const PairMatrix matrix{
        .key = "Communication~Mute",
        .commands = {{"Mute", {"Communication\\Mute\\Mute.tbl", "tMute"}}}};
    return matrix;
}

}  // namespace qb::pages
