#include "pages/general/bot_list.h"

#include "store/edition.h"

namespace qb::pages {

std::vector<std::string> BuildBotList() {
    // The full pack has every function, so only the archive asks its own question.
    std::vector<std::string> tables = {
        "tMain",
        "tAutoCorrect",
        "tChatRooms",
        "tMassMessage",
        "tMOTD",
        "tMute",
        "tTalk",
        "tRotatingMainMessage",
        "tRotatingPrivateMessage",
        "tWelcomeInfo",
        "tWhisper",
        "tDescriptionTags",
        "tHideShare",
        "tIntroOutro",
        "tAnagrams",
        "tCodeBreaker",
        "tGuessTheNumber",
        "tHangman",
        "tNumbers",
        "tRussianRoulette",
        "tSlotMachine",
        "tThreeCardMonty",
        "tTrivia",
        "tAntiAdvertise",
        "tAntiVirus",
        "tBadNickBlocker",
        "tClientChecker",
        "tCloneBlocker",
        "tCommandSpy",
        "tKicks",
        "tFlood",
        "tMainBlock",
        "tMainCleaner",
        "tMainLock",
        "tPrivateHub",
        "tProfileRules",
        "tPtokaXSettings",
        "tRegistration",
        "tRules",
        "tSearchSpy",
        "tUserLog",
        "tAscii",
        "tAttacks",
        "tClock",
        "tDoAction",
        "tInsults",
        "tJokes",
        "tLimericks",
        "tProverbs",
        "tQuotations",
        "tSpells",
    };
    if (store::ArchiveBuilt()) {
        for (const char* archive :
             {"tBookshelf", "tDVDRack", "tJukebox", "tSongbook", "tArcade", "tHyperlink"}) {
            tables.emplace_back(archive);
        }
    }
    return tables;
}

}  // namespace qb::pages
