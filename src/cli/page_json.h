#pragma once
// A page as one line of JSON, the form `show` prints and the tests compare. Texts are UTF-8.

#include <string>

#include "shell/container.h"
#include "shell/page.h"

namespace qb::cli {

std::string PageJson(const shell::Page& page);

// The main window as one line of JSON: {"caption", "sidebar", "selected", "expanded", "active",
// "pages", "windowsMenu", "openWindows", "counters", "status"}.
std::string ContainerJson(const shell::Container& container);

// A JSON string literal of Windows-1252 bytes.
std::string JsonString(const std::string& cp1252);

}  // namespace qb::cli
