#include "pages/general/bot_list.h"

#include "store/settings_tree.h"

namespace qb::pages {

std::vector<std::string> BuildBotList(store::ProgramVersion version) {
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
    if (store::ArchiveBuilt(store::kEdition, version)) {
        for (const char* archive :
             {"tBookshelf", "tDVDRack", "tJukebox", "tSongbook", "tArcade", "tHyperlink"}) {
            tables.emplace_back(archive);
        }
    }
    return tables;
}

BotIdentity DefaultBot(std::string_view group) {
    struct Bot {
        std::string_view group;
        const char* name;
        const char* description;
    };
    // The names are framed by bullets, byte 95 in the scripts' code page. The archive's bot has
    // always had the user action bot's name.
    static constexpr Bot kBots[] = {
        {"Main", "\x95Quillbook\x95",
         "\x95"
         "Book Of Magic\x95"},
        {"Communication",
         "\x95"
         "CommunicationBot\x95",
         "\x95"
         "Communication Bot\x95"},
        {"CustomiseUser",
         "\x95"
         "CustomiseUserBot\x95",
         "\x95"
         "CustomiseUser Bot\x95"},
        {"Games", "\x95GamesBot\x95", "\x95Games Bot\x95"},
        {"Security", "\x95SecurityBot\x95", "\x95Security Bot\x95"},
        {"UserAction", "\x95UserActionBot\x95", "\x95UserAction Bot\x95"},
        {"TheVellum", "\x95UserActionBot\x95", "\x95TheVellum Bot\x95"},
    };
    for (const Bot& bot : kBots) {
        if (bot.group == group) return {bot.name, bot.description, QB_BOT_EMAIL};
    }
    return {};
}

const std::vector<BotFunction>& BotFunctions() {
    static const std::vector<BotFunction> functions = [] {
        // A function exists in the editions that have its settings folder.
        const auto in = [](std::string_view folder) { return store::FolderEditions(folder); };
        return std::vector<BotFunction>{
            {"Main", "Main", {{}, true}},
            {"Anagrams", "Games", in("Games\\Anagrams")},
            {"CodeBreaker", "Games", in("Games\\CodeBreaker")},
            {"GuessTheNumber", "Games", in("Games\\GuessTheNumber")},
            {"Hangman", "Games", in("Games\\Hangman")},
            {"Numbers", "Games", in("Games\\Numbers")},
            {"RussianRoulette", "Games", in("Games\\RussianRoulette")},
            {"SlotMachine", "Games", in("Games\\SlotMachine")},
            {"ThreeCardMonty", "Games", in("Games\\ThreeCardMonty")},
            {"Trivia", "Games", in("Games\\Trivia")},
            {"AntiAdvertise", "Security", in("Security\\AntiAdvertise")},
            {"AntiVirus", "Security", in("Security\\AntiVirus")},
            {"BadNickBlocker", "Security", in("Security\\BadNickBlocker")},
            {"ClientChecker", "Security", in("Security\\ClientChecker")},
            {"CloneBlocker", "Security", in("Security\\CloneBlocker")},
            {"CommandSpy", "Security", in("Security\\CommandSpy")},
            {"Flood", "Security", in("Security\\Flood")},
            {"HideShare", "Security", in("CustomiseUser\\HideShare")},
            {"Kicks", "Security", in("Security\\Kick")},
            {"MainBlock", "Security", in("Security\\MainBlock")},
            {"MainCleaner", "Security", in("Security\\MainCleaner")},
            {"MainLock", "Security", in("Security\\MainLock")},
            {"PrivateHub", "Security", in("Security\\PrivateHub")},
            {"PtokaXSettings", "Security", in("Security\\PtokaX")},
            {"Registration", "Security", in("Security\\Registration")},
            {"Rules", "Security", in("Security\\Rules")},
            {"SearchSpy", "Security", in("Security\\SearchSpy")},
            {"UserLog", "Security", in("Security\\UserLog")},
            {"Ascii", "UserAction", in("UserActions\\Ascii")},
            {"Attacks", "UserAction", in("UserActions\\Attacks")},
            {"AutoCorrect", "UserAction", in("Communication\\AutoCorrect")},
            {"Clock", "UserAction", in("Communication\\Clock")},
            {"DoAction", "UserAction", in("UserActions\\DoAction")},
            {"Insults", "UserAction", in("UserActions\\Insults")},
            {"Jokes", "UserAction", in("UserActions\\Jokes")},
            {"Limericks", "UserAction", in("UserActions\\Limericks")},
            {"ProfileRules", "UserAction", in("Security\\ProfileRules")},
            {"Proverbs", "UserAction", in("UserActions\\Proverbs")},
            {"Quotations", "UserAction", in("UserActions\\Quotations")},
            {"Spells", "UserAction", in("UserActions\\Spells")},
            {"ChatRooms", "Communication", in("Communication\\ChatRooms")},
            {"MassMessage", "Communication", in("Communication\\MassMessage")},
            {"MOTD", "Communication", in("Communication\\MOTD")},
            {"Mute", "Communication", in("Communication\\Mute")},
            {"RotatingMainMessage", "Communication", in("Communication\\RotatingMainMessage")},
            {"RotatingPrivateMessage", "Communication",
             in("Communication\\RotatingPrivateMessage")},
            {"Talk", "Communication", in("Communication\\Talk")},
            {"WelcomeInfo", "Communication", in("Communication\\WelcomeInfo")},
            {"Whisper", "Communication", in("Communication\\Whisper")},
            {"DescriptionTags", "CustomiseUser", in("CustomiseUser\\DescriptionTags")},
            {"IntroOutro", "CustomiseUser", in("CustomiseUser\\IntroOutro")},
        };
    }();
    return functions;
}

}  // namespace qb::pages
