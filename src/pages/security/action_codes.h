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
std::vector<std::string> NamesOf(const std::vector<store::Choice>& choices);

// The name of a code, or empty for a code the table lacks.
std::string ActionName(std::string_view code);
// The code of a name, or empty for a name the table lacks.
std::string ActionCodeOf(std::string_view name);

// The action of a settings file, sAction, TempBan's letter by default unless the function has
// another; and the time a ban lasts, from 1 to 1440 on an up-down in steps of 5, 60 by default,
// under the key the file names it.
store::Field ActionField(std::string defaultCode = "T");
store::Field BanTimeField(std::string key);

}  // namespace qb::pages
