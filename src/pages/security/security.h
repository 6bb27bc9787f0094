#pragma once
// The security functions: their pages and the descriptions of their files.

#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry);
void RegisterSecurityBuilders(store::BuilderRegistry& builders);

// Search spy and command spy (spies.cpp).
void RegisterSpyPages(shell::PageRegistry& registry);
void RegisterSpyBuilders(store::BuilderRegistry& builders);
// Security\CommandSpy\CommandSpySettings.tbl: the profiles that watch command use.
const store::FileSchema& CommandSpySettingsSchema();
// Security\CommandSpy\CommandSpyUsers.tbl: the script's own list, made empty when missing.
const store::FileSchema& CommandSpyUsersSchema();

}  // namespace qb::pages
