#pragma once
// The communication functions: their pages and the descriptions of their files.

#include "pages/services.h"
#include "shell/page_registry.h"

namespace qb::pages {

void RegisterCommunicationPages(shell::PageRegistry& registry, const PageServices& services);

// The portal: one bot nick on two hubs, relaying public chat (portal.cpp). Offered only with a
// hub link.
void RegisterPortalPage(shell::PageRegistry& registry, const hublink::SessionsFactory& hubLink);
inline constexpr const char* kPortalFile = "Communication\\Portal\\PortalSettings.tbl";

}  // namespace qb::pages
