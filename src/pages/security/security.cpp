#include "pages/security/security.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry) {
    registry.Register({
        ClientCheckerPage(),
        PairMatrixPageOf(FloodMatrix()),
        CommandSpyPage(),
    });
}

// The security area's files, in the order a rebuild writes them in each folder.
void RegisterSecurityBuilders(store::BuilderRegistry& builders) {
    builders.Add({
        ClientCheckerSettingsSchema(),
        ClientVersionsSchema(),
        PairMatrixBuild(FloodMatrix()),
        CommandSpySettingsSchema(),
        CommandSpyUsersSchema(),
    });
}

}  // namespace qb::pages
