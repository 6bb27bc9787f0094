#pragma once
// The archive family: six kinds of archive (Bookshelf, DVDRack, Jukebox, Songbook, Arcade,
// Hyperlink) of one design. The family is written but switched off: its nodes and folders come
// with major version 6, and until then its pages open only by their keys.

#include "families/matrix/command_matrix.h"
#include "shell/page_registry.h"

namespace qb::pages {

void RegisterArchivePages(shell::PageRegistry& registry);

// Which profiles may use each command of an archive (permissions.cpp).
const CommandMatrix& ArcadePermissions();

}  // namespace qb::pages
