#pragma once
// Every function group's pages, registered by their function keys, and the builders of their
// files, registered by their folders.

#include "pages/services.h"
#include "shell/page_registry.h"
#include "store/builders.h"

namespace qb::pages {

void RegisterAllPages(shell::PageRegistry& registry, const PageServices& services = {});
void RegisterAllBuilders(store::BuilderRegistry& builders);

}  // namespace qb::pages
