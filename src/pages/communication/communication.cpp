#include "pages/communication/communication.h"

namespace qb::pages {

void RegisterCommunicationPages(shell::PageRegistry& registry, const PageServices& services) {
    registry.Register({
        PairMatrixPageOf(MassMessageMatrix()),
        PairMatrixPageOf(MuteMatrix()),
        PairMatrixPageOf(TalkMatrix()),
    });
    if (services.hubLink) registry.Register(PortalPage(services.hubLink));
}

// The communication area's files, in the order a rebuild writes them in each folder.
void RegisterCommunicationBuilders(store::BuilderRegistry& builders) {
    builders.Add({
        PairMatrixBuild(MassMessageMatrix()),
        PairMatrixBuild(MuteMatrix()),
        PairMatrixBuild(TalkMatrix()),
    });
}

}  // namespace qb::pages
