#pragma once
// The communication functions: their pages and the descriptions of their files.

#include "families/matrix/pair_matrix.h"
#include "pages/services.h"
#include "shell/page_registry.h"
#include "store/builders.h"

namespace qb::pages {

void RegisterCommunicationPages(shell::PageRegistry& registry, const PageServices& services);
void RegisterCommunicationBuilders(store::BuilderRegistry& builders);

// Talk, Mute and MassMessage, the pair matrices of the communication functions (talk.cpp,
// mute.cpp, mass_message.cpp).
const PairMatrix& TalkMatrix();
const PairMatrix& MuteMatrix();
const PairMatrix& MassMessageMatrix();

// The portal: one bot nick on two hubs, relaying public chat (portal.cpp). Offered only with a
// hub link.
shell::PageEntry PortalPage(const hublink::SessionsFactory& hubLink);
inline constexpr const char* kPortalFile = "Communication\\Portal\\PortalSettings.tbl";

}  // namespace qb::pages
