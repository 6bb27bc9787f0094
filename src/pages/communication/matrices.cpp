// Talk, Mute and MassMessage: who may talk to, mute or mass message whom, by profile. All three
// are the pair shape of the permission matrices.

#include "pages/communication/communication.h"

namespace qb::pages {

const PairMatrix& TalkMatrix() {
    // The builder has always left out the unregistered users as the talked-to: their cells read
    // "No" until the page's first save writes them.
    static const PairMatrix matrix{"Communication~Talk", "Talk", "Communication\\Talk\\Talk.tbl",
                                   "tTalk", 0};
    return matrix;
}

const PairMatrix& MuteMatrix() {
    static const PairMatrix matrix{"Communication~Mute", "Mute", "Communication\\Mute\\Mute.tbl",
                                   "tMute", -1};
    return matrix;
}

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
    static const PairMatrix matrix{"Communication~MassMessage",
                                   "MassMessage",
                                   "Communication\\MassMessage\\MassMessageSettings.tbl",
                                   "tMassMessageSettings",
                                   -1,
                                   &passive};
    return matrix;
}

void RegisterMatrixPages(shell::PageRegistry& registry) {
    for (const PairMatrix* matrix : {&MassMessageMatrix(), &MuteMatrix(), &TalkMatrix()}) {
        RegisterPairMatrixPage(registry, *matrix);
    }
}

void RegisterMatrixBuilders(store::BuilderRegistry& builders) {
    for (const PairMatrix* matrix : {&MassMessageMatrix(), &MuteMatrix(), &TalkMatrix()}) {
        RegisterPairMatrixBuilders(builders, *matrix);
    }
}

}  // namespace qb::pages
