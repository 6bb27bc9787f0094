#pragma once
// Every function group's pages, registered by their function keys.

#include "pages/services.h"
#include "shell/page_registry.h"

namespace qb::pages {

void RegisterAllPages(shell::PageRegistry& registry, const PageServices& services = {});

}  // namespace qb::pages
