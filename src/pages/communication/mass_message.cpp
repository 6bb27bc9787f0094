// Mass message: who may mass message whom, by profile, and whose passive users no mass message
// reaches. The pair shape of the permission matrices, with the passive variant.

#include "pages/communication/communication.h"

namespace qb::pages {

const PairMatrix& MassMessageMatrix() {
    static const store::FileSchema passiveImmune{
        "Communication\\MassMessage\\MassMessagePassiveImmune.tbl",
        "tMassMessagePassiveImmune",
        {},
        store::FileKind::Data};
    static const PassiveVariant passive{
        "Immune Passive Profiles",
        "tEnabledPassiveProfiles",
        {"Passive", "Banner", "All"},
        // "Operator" has no row on the page, so a save through the page drops it.
        {"Banner", "All", "Passive", "Operator"},
        " Passive File",
        "Communication\\MassMessage\\Passive.asc",
        &passiveImmune,
    };
    static const PairMatrix matrix{
        .key = "Communication~MassMessage",
        .commands = {{"MassMessage",
                      {"Communication\\MassMessage\\MassMessageSettings.tbl",
                       "tMassMessageSettings"}}},
        .passive = &passive};
    return matrix;
}

}  // namespace qb::pages
