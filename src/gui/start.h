#pragma once
// The main window's load after its navigation, run before the window opens: the version and
// profile checks ask in real message boxes, and a Cancel ends the program before any page can
// open on a tree that doesn't match; then the status bar and the news.

#include "shell/container.h"
#include "store/builders.h"

namespace qb::gui {

// True when the window may open; false after a Cancel or a fatal error (already shown).
bool StartBeforeWindow(shell::Container& container, const store::BuilderRegistry& builders);

}  // namespace qb::gui
