#pragma once
// What each function does, as the switches pages tell it in a balloon when a row is clicked. The
// table is keyed by the names of an older function list, and some rows of today's files find no
// entry (RussianRoulette, TopicChanger): those rows show no description.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qb::pages {

// The keys and their lines, in the table's order.
const std::vector<std::pair<std::string_view, std::vector<std::string_view>>>& SwitchDescriptions();

// The description of a row's text, its lines joined by CRLF; empty when the table has no entry.
std::string SwitchDescription(std::string_view rowText);

}  // namespace qb::pages
