#pragma once
// Every function group's pages, registered by their function keys.

#include "shell/page_registry.h"

namespace qb::pages {

void RegisterAllPages(shell::PageRegistry& registry);

}  // namespace qb::pages
