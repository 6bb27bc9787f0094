#pragma once
// The bots of the script pack: one sub-table of General\Bots\Bots.tbl per function that speaks
// through a bot of its own.

#include <string>
#include <vector>

namespace qb::pages {

inline constexpr const char* kBotsFile = "General\\Bots\\Bots.tbl";

// The sub-table names of Bots.tbl in the order the pack lists them, "tMain" first; the archive's
// bots only where the archive is built.
std::vector<std::string> BuildBotList();

}  // namespace qb::pages
