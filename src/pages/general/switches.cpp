#include "pages/general/switches.h"

#include "store/settings_tree.h"

namespace qb::pages {
namespace {

store::FileSchema SwitchFile(std::string file, std::string table) {
    store::FileSchema schema{std::move(file), std::move(table), {}, store::FileKind::Reset};
    for (const SwitchKey& key : SwitchKeys()) {
        schema.fields.push_back({store::FieldKind::Flag, std::string(key.key), key.on ? "1" : "0",
                                 store::FolderEditions(key.folder)});
    }
    return schema;
}

}  // namespace

const std::vector<SwitchKey>& SwitchKeys() {
    static const std::vector<SwitchKey> keys = {
        {"bAnagrams", true, "Games\\Anagrams"},
        {"bAntiAdvertise", true, "Security\\AntiAdvertise"},
        {"bAntiVirus", true, "Security\\AntiVirus"},
        {"bAscii", true, "UserActions\\Ascii"},
        {"bAttacks", true, "UserActions\\Attacks"},
        {"bAutoCorrect", true, "Communication\\AutoCorrect"},
        {"bBadNickBlocker", true, "Security\\BadNickBlocker"},
        {"bCalculator", true, "UserActions\\Calculator"},
        {"bChatRooms", true, "Communication\\ChatRooms"},
        {"bClientChecker", true, "Security\\ClientChecker"},
        {"bClock", true, "Communication\\Clock"},
        {"bCloneBlocker", true, "Security\\CloneBlocker"},
        {"bCodeBreaker", true, "Games\\CodeBreaker"},
        {"bCommandSpy", true, "Security\\CommandSpy"},
        {"bCustomRightClick", true, "CustomiseUser\\CustomRightClick"},
        {"bDescriptionTags", true, "CustomiseUser\\DescriptionTags"},
        {"bDoAction", true, "UserActions\\DoAction"},
        {"bFlood", true, "Security\\Flood"},
        {"bGuessTheNumber", true, "Games\\GuessTheNumber"},
        {"bHangman", true, "Games\\Hangman"},
        {"bHideShare", true, "CustomiseUser\\HideShare"},
        {"bInsults", true, "UserActions\\Insults"},
        {"bIntroOutro", true, "CustomiseUser\\IntroOutro"},
        {"bJokes", true, "UserActions\\Jokes"},
        {"bKickBarChanger", true, "Communication\\KickBarChanger"},
        {"bKicks", true, "Security\\Kick"},
        {"bLimericks", true, "UserActions\\Limericks"},
        {"bMainBlock", true, "Security\\MainBlock"},
        {"bMainCleaner", true, "Security\\MainCleaner"},
        {"bMainLock", true, "Security\\MainLock"},
        {"bMassMessage", true, "Communication\\MassMessage"},
        {"bMOTD", true, "Communication\\MOTD"},
        {"bMute", true, "Communication\\Mute"},
        {"bNumbers", true, "Games\\Numbers"},
        {"bPrivateHub", true, "Security\\PrivateHub"},
        {"bProfileRules", true, "Security\\ProfileRules"},
        {"bProverbs", true, "UserActions\\Proverbs"},
        {"bPtokaXSettings", true, "Security\\PtokaX"},
        {"bQuotations", true, "UserActions\\Quotations"},
        {"bRegistration", true, "Security\\Registration"},
        {"bReport", true, "Security\\Report"},
        {"bRotatingMainMessage", true, "Communication\\RotatingMainMessage"},
        // These two stay off until the hub owner turns them on.
        {"bRotatingPrivateMessage", false, "Communication\\RotatingPrivateMessage"},
        {"bRules", true, "Security\\Rules"},
        {"bRussianRoulette", true, "Games\\RussianRoulette"},
        {"bSearchSpy", true, "Security\\SearchSpy"},
        {"bSlotMachine", true, "Games\\SlotMachine"},
        {"bSpells", true, "UserActions\\Spells"},
        {"bNickSpells", true, "UserActions\\NickSpells"},
        {"bTalk", true, "Communication\\Talk"},
        {"bThreeCardMonty", true, "Games\\ThreeCardMonty"},
        {"bTopicChanger", false, "Communication\\TopicChanger"},
        {"bTrivia", true, "Games\\Trivia"},
        {"bUserLog", true, "Security\\UserLog"},
        {"bWelcomeInfo", true, "Communication\\WelcomeInfo"},
        {"bWhisper", true, "Communication\\Whisper"},
    };
    return keys;
}

const store::FileSchema& SwitchesSchema() {
    static const store::FileSchema schema =
        SwitchFile("General\\Globals\\Switches.tbl", "tSwitches");
    return schema;
}

const store::FileSchema& EnableRightClicksSchema() {
    static const store::FileSchema schema =
        SwitchFile("General\\Globals\\EnableRightClicks.tbl", "tEnableRightClicks");
    return schema;
}

// Every rebuild rewrites both files from the defaults, so a function the user switched off comes
// back on: the files have always been reset so, and hub owners expect it.
void RegisterSwitchBuilders(store::BuilderRegistry& builders) {
    builders.Add("General\\Globals", SwitchesSchema());
    builders.Add("General\\Globals", EnableRightClicksSchema());
}

}  // namespace qb::pages
