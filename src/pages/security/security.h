#pragma once
// The security functions: their pages and the descriptions of their files.

#include "shell/page_registry.h"
#include "store/schema.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry);

// Search spy and command spy (spies.cpp).
void RegisterSpyPages(shell::PageRegistry& registry);
// Security\CommandSpy\CommandSpySettings.tbl: the profiles that watch command use.
const store::FileSchema& CommandSpySettingsSchema();

}  // namespace qb::pages
