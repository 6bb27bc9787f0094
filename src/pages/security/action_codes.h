#pragma once
// What a security function does to a user who breaks its rule. Pages show the action by name and
// the scripts read it by one letter; every punishing security function shares this table.

#include <string>
#include <string_view>
#include <vector>

namespace qb::pages {

struct ActionCode {
    std::string_view name;  // as the combo box lists it
    std::string_view code;  // as the file holds it
};

// In the order the combo boxes list them.
const std::vector<ActionCode>& ActionCodes();

// The name of a code, or empty for a code the table lacks.
std::string ActionName(std::string_view code);
// The code of a name, or empty for a name the table lacks.
std::string ActionCodeOf(std::string_view name);

}  // namespace qb::pages
