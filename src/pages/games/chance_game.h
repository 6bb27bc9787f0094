#pragma once
// The chance games: one user plays against the bot with no questions (Three Card Monty, Russian
// Roulette, the Slot Machine). Each keeps a few settings, a small fixed table the script plays by
// and, on two of them, two lists of what the bot says when the player wins or loses, a file each.
// One page and one builder serve the three; a game is a row of data.

#include <optional>
#include <string>
#include <vector>

#include "shell/page_decl.h"
#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

// A number set with its up-down: txtUpDown and updUpDown at its index, captioned by lblLabel.
struct ChanceNumber {
    std::string key;
    std::string caption;
    std::string defaultValue;
    store::Range range;
};

// A table the script plays by, which the user never edits: every save and every rebuild writes
// it whole as a literal, each writer in its own form.
struct ChanceTable {
    std::string key;  // "tDeal"
    store::RowForm form;
    bool quoted;                         // the page's values stand in double quotes
    std::vector<store::ListEntry> rows;  // as the page writes them
    // As the builder writes them, where it spells them otherwise, and whether it quotes them.
    std::vector<store::ListEntry> builderRows{};
    std::optional<bool> builderQuoted{};
};

// A list of what the bot says, in a file of its own: "Win" is the file ThreeCardMontyWin.tbl with
// the table tThreeCardMontyWin, the list lvwWin under the caption "Win" and its toolbar tlbWin.
struct ChanceComments {
    std::string name;
    std::string noun;    // the dialogs' and prompts' word: "Win Comment"
    std::string sample;  // the one row of a new file
};

struct ChanceGame {
    std::string key;      // "Games~ThreeCardMonty"
    std::string caption;  // "Games ~ Three Card Monty"
    std::string name;     // "ThreeCardMonty": the folder below Games, and its files' prefix
    shell::PageSize size;
    // The one check box, its name and its flag.
    std::string check;
    std::string flag;
    std::vector<ChanceNumber> numbers{};
    std::vector<ChanceTable> tables{};
    std::vector<ChanceComments> comments{};
    // Tables the script fills, made empty when missing: "Players" is SlotMachinePlayers.tbl.
    std::vector<std::string> scriptFiles{};
};

// The game's page; the game must outlive the registries.
shell::PageEntry ChancePageOf(const ChanceGame& game);
// Its settings file, rewritten at every rebuild, then each list or script file, made when missing.
std::vector<store::BuildStep> ChanceBuilds(const ChanceGame& game);

}  // namespace qb::pages
