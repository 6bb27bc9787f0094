#pragma once
// The bots of the script pack: one sub-table of General\Bots\Bots.tbl per function that speaks
// through a bot of its own, and the bot each group of functions speaks through until the hub
// owner names another.

#include <string>
#include <string_view>
#include <vector>

#include "store/edition.h"

namespace qb::pages {

inline constexpr const char* kBotsFile = "General\\Bots\\Bots.tbl";

// The sub-table names of Bots.tbl in the order the pack lists them, "tMain" first; the archive's
// bots only where the archive is built, which the version the run behaves as decides.
std::vector<std::string> BuildBotList(store::ProgramVersion version);

struct BotIdentity {
    std::string name;
    std::string description;
    std::string email;
};

// A group's default bot ("Main", "Games", "TheVellum"...). Every group shares one e-mail address,
// the maker's, a configuration value of the build. A group without a bot gives empty fields.
BotIdentity DefaultBot(std::string_view group);

struct BotFunction {
    std::string_view function;    // "Anagrams"; its sub-table is "tAnagrams"
    std::string_view group;       // whose default bot it gets
    store::EditionTest editions;  // the editions that have the function
};

// Every function that RESTORE gives a bot, in RESTORE's order, group by group. The groups are the
// bots', not the tree's: HideShare speaks through the security bot, AutoCorrect and ProfileRules
// through the user action bot.
const std::vector<BotFunction>& BotFunctions();

}  // namespace qb::pages
