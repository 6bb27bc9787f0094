#pragma once
// What a security function does to a user who breaks its rule. Pages show the action by name and
// the scripts read it by one letter; every punishing security function shares this table.

#include <string>
#include <string_view>
#include <vector>

#include "store/schema.h"

namespace qb::pages {

// The six actions in the order the combo boxes list them, each name with its letter.
const std::vector<store::Choice>& ActionChoices();

// The names alone, in that order, as an edit dialog's combo lists them.
std::vector<std::string> ActionNames();

// The name of a code, or empty for a code the table lacks.
std::string ActionName(std::string_view code);
// The code of a name, or empty for a name the table lacks.
std::string ActionCodeOf(std::string_view name);

}  // namespace qb::pages
