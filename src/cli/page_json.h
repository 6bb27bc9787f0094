#pragma once
// A page as one line of JSON, the form `show` prints and the tests compare. Texts are UTF-8.

#include <string>

#include "shell/page.h"

namespace qb::cli {

std::string PageJson(const shell::Page& page);

// A JSON string literal of Windows-1252 bytes.
std::string JsonString(const std::string& cp1252);

}  // namespace qb::cli
