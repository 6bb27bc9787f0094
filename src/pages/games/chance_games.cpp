// The three chance games, each a row of the chance page's data: its settings, the table its
// script plays by, and the comments the bot says.

#include "pages/games/games.h"

namespace qb::pages {
namespace {

using store::ListEntry;

std::vector<ListEntry> Values(std::initializer_list<const char*> values) {
    std::vector<ListEntry> rows;
    for (const char* value : values)
        rows.push_back({{}, value});
    return rows;
}

}  // namespace

const ChanceGame& ThreeCardMontyGame() {
    static const ChanceGame game{
        .key = "Games~ThreeCardMonty",
        .caption = "Games ~ Three Card Monty",
        .name = "ThreeCardMonty",
        .size = {7200, 6600},
        .check = "chkPlayInMain",
        .flag = "bPlayInMain",
        .numbers = {{"iWager", "Wager", "1", {1, 50}}, {"iMarker", "Marker", "25", {10, 500}}},
        // The three cards of the deal: the builder has always spelt them with "Of".
        .tables = {{.key = "tDeal",
                    .form = store::RowForm::Bare,
                    .quoted = true,
                    .rows = Values({"Ace of Spades", "Queen of Hearts", "Ace of Clubs"}),
                    .builderRows = Values({"Ace Of Spades", "Queen Of Hearts", "Ace Of Clubs"})}},
        .comments = {{"Win", "Win Comment", "The Gods smile upon you, this day"},
                     {"Lose", "Lose Comment",
                      "You lost. Play again, what else have you got going?"}},
    };
    return game;
}

const ChanceGame& RussianRouletteGame() {
    static const ChanceGame game{
        .key = "Games~RussianRoulette",
        .caption = "Games ~ RussianRoulette",
        .name = "RussianRoulette",
        .size = {7200, 6000},
        .check = "chkPlayInMain",
        .flag = "bInMain",
        // Six chambers, five of them loaded; the builder writes them bare.
        .tables = {{.key = "tBang",
                    .form = store::RowForm::Bare,
                    .quoted = true,
                    .rows = Values({"Die", "Live", "Die", "Die", "Die", "Die"}),
                    .builderQuoted = false}},
        // The dialogs speak of Win and Lose Comments, as Three Card Monty's do.
        .comments = {{"Live", "Win Comment", "You have survived... for now"},
                     {"Die", "Lose Comment", "You're dead, now whose gonna clean up this mess?"}},
    };
    return game;
}

const ChanceGame& SlotMachineGame() {
    // The payouts, symbol and factor: "£" and "§" are single bytes of Windows-1252, as the
    // scripts compare them.
    static const ChanceGame game{
        .key = "Games~SlotMachine",
        .caption = "Games ~ SlotMachine",
        .name = "SlotMachine",
        .size = {4800, 3600},
        .check = "chkCheckBox(0)",
        .flag = "bInMain",
        .numbers = {{"iCredit", "Credit - Start", "50", {50, 5000, 5}},
                    {"iCreditPlay", "Credit - Play", "2", {1, 100}},
                    {"iCreditLoan", "Credit - Loan", "1000", {50, 50000, 5}}},
        .tables = {{.key = "tResults",
                    .form = store::RowForm::Named,
                    .quoted = false,
                    .rows = {{"Bar", "100"},
                             {"7", "50"},
                             {"@", "20"},
                             {"$", "10"},
                             {"\xA3", "5"},
                             {"\xA7", "3"},
                             {"&", "1"}}},
                   {.key = "tAux",
                    .form = store::RowForm::Bare,
                    .quoted = false,
                    .rows = Values({"100", "50", "20", "10", "5", "3", "1"})}},
        .scriptFiles = {"Players"},
    };
    return game;
}

}  // namespace qb::pages
