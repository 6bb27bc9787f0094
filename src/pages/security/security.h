#pragma once
// The security functions: their pages and the descriptions of their files.

#include "families/matrix/pair_matrix.h"
#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry);
void RegisterSecurityBuilders(store::BuilderRegistry& builders);

// The client checker (client_checker.cpp).
shell::PageEntry ClientCheckerPage();
// Security\ClientChecker\ClientCheckerSettings.tbl: the action, its ban time, the blocked
// connection types and the exempt profiles.
const store::FileSchema& ClientCheckerSettingsSchema();
// Security\ClientChecker\ClientVersions.tbl: the clients and their least versions, a list the
// user fills, made empty when missing.
const store::FileSchema& ClientVersionsSchema();

// The flooder, a pair matrix (flooder.cpp).
const PairMatrix& FloodMatrix();

// The command spy (command_spy.cpp).
const shell::PageDecl& CommandSpyPage();
// Security\CommandSpy\CommandSpySettings.tbl: the profiles that watch command use.
const store::FileSchema& CommandSpySettingsSchema();
// Security\CommandSpy\CommandSpyUsers.tbl: the script's own list, made empty when missing.
const store::FileSchema& CommandSpyUsersSchema();

}  // namespace qb::pages
