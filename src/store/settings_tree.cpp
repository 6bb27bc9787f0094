#include "store/settings_tree.h"

#include <stdexcept>
#include <string>

namespace qb::store {
namespace {

EditionTest Also(std::initializer_list<std::string_view> editions) {
    return EditionTest{editions};
}

// A game's folder exists in the game packs and in the game's own edition.
EditionTest Game(std::string_view game) {
    return Also({"Folianth", "Merrimanual", game});
}

std::vector<SettingsFolder> MakeTable() {
    const EditionTest all{{}, true};
    const EditionTest archive{{}, false, true};
    const EditionTest folianth = Also({"Folianth"});
    const EditionTest umberscribe = Also({"Umberscribe"});
    const EditionTest both = Also({"Folianth", "Umberscribe"});
    const EditionTest games = Also({"Folianth", "Merrimanual", "Anagrams", "CodeBreaker",
                                    "GuessTheNumber", "Hangman", "Numbers", "Trivia"});
    const EditionTest userActions = folianth;
    using A = Area;
    return {
        {A::CustomiseUser, "CustomiseUser", both},
        {A::CustomiseUser, "CustomiseUser\\CustomRightClick", umberscribe},
        {A::CustomiseUser, "CustomiseUser\\DescriptionTags", folianth},
        {A::CustomiseUser, "CustomiseUser\\HideShare", umberscribe},
        {A::CustomiseUser, "CustomiseUser\\IntroOutro", folianth},
        {A::CustomiseUser, "CustomiseUser\\IntroOutro\\Ascii", folianth},

        {A::Communication, "Communication", both},
        {A::Communication, "Communication\\AutoCorrect", folianth},
        {A::Communication, "Communication\\ChatRooms", folianth},
        {A::Communication, "Communication\\Clock", folianth},
        {A::Communication, "Communication\\KickBarChanger", folianth},
        {A::Communication, "Communication\\MassMessage", umberscribe},
        {A::Communication, "Communication\\Mute", umberscribe},
        {A::Communication, "Communication\\Talk", umberscribe},
        {A::Communication, "Communication\\MOTD", folianth},
        {A::Communication, "Communication\\MOTD\\MOTDs", folianth},
        {A::Communication, "Communication\\RotatingMainMessage", folianth},
        {A::Communication, "Communication\\RotatingMainMessage\\Files", folianth},
        {A::Communication, "Communication\\RotatingPrivateMessage", both},
        {A::Communication, "Communication\\RotatingPrivateMessage\\Files", both},
        {A::Communication, "Communication\\TopicChanger", folianth},
        {A::Communication, "Communication\\WelcomeInfo", folianth},
        {A::Communication, "Communication\\Whisper", folianth},

        {A::Games, "Games", games},
        {A::Games, "Games\\Anagrams", Game("Anagrams")},
        {A::Games, "Games\\CodeBreaker", Game("CodeBreaker")},
        {A::Games, "Games\\GuessTheNumber", Game("GuessTheNumber")},
        {A::Games, "Games\\Hangman", Game("Hangman")},
        {A::Games, "Games\\RussianRoulette", Game("RussianRoulette")},
        {A::Games, "Games\\SlotMachine", Game("SlotMachine")},
        {A::Games, "Games\\ThreeCardMonty", Game("ThreeCardMonty")},
        {A::Games, "Games\\Trivia", Game("Trivia")},
        {A::Games, "Games\\Numbers", Game("Numbers")},
        {A::Games, "Games\\Anagrams\\ScoresArchive", Game("Anagrams")},
        {A::Games, "Games\\CodeBreaker\\ScoresArchive", Game("CodeBreaker")},
        {A::Games, "Games\\GuessTheNumber\\ScoresArchive", Game("GuessTheNumber")},
        {A::Games, "Games\\Hangman\\ScoresArchive", Game("Hangman")},
        {A::Games, "Games\\Numbers\\ScoresArchive", Game("Numbers")},
        {A::Games, "Games\\Trivia\\ScoresArchive", Game("Trivia")},
        {A::Games, "Games\\Globals", games},
        {A::Games, "Games\\Hangman\\Ascii", Game("Hangman")},
        {A::Games, "Games\\Trivia\\QuestionFiles", Game("Trivia")},

        {A::General, "General", all},
        {A::General, "General\\Bots", all},
        {A::General, "General\\Globals", all},
        {A::General, "General\\PtokaX", all},

        {A::Language, "Language", all},
        {A::Language, "Language\\Commands", all},
        {A::Language, "Language\\Commands\\Files", all},
        {A::Language, "Language\\Messages", all},
        {A::Language, "Language\\Messages\\Files", all},
        {A::Language, "Language\\RightClick", all},
        {A::Language, "Language\\RightClick\\Files", all},

        {A::SharedFolders, kSharedFolder, all, true},
        {A::SharedFolders, kNewsFolder, all, true},

        {A::Security, "Security", umberscribe},
        // The Folianth pack has this folder but not its parent, so a build for that pack stops
        // here: the table has always been so.
        {A::Security, "Security\\AntiAdvertise", folianth},
        {A::Security, "Security\\AntiVirus", umberscribe},
        {A::Security, "Security\\BadNickBlocker", umberscribe},
        {A::Security, "Security\\ClientChecker", umberscribe},
        {A::Security, "Security\\CloneBlocker", umberscribe},
        {A::Security, "Security\\CommandSpy", umberscribe},
        {A::Security, "Security\\Flood", umberscribe},
        {A::Security, "Security\\Kick", umberscribe},
        {A::Security, "Security\\Kick\\Logs", umberscribe},
        {A::Security, "Security\\MainBlock", umberscribe},
        {A::Security, "Security\\MainCleaner", umberscribe},
        {A::Security, "Security\\MainLock", umberscribe},
        {A::Security, "Security\\PrivateHub", umberscribe},
        {A::Security, "Security\\ProfileRules", umberscribe},
        {A::Security, "Security\\ProfileRules\\Logs", umberscribe},
        {A::Security, "Security\\PtokaX", umberscribe},
        {A::Security, "Security\\Registration", umberscribe},
        {A::Security, "Security\\Registration\\Logs", umberscribe},
        {A::Security, "Security\\Report", umberscribe},
        {A::Security, "Security\\Rules", umberscribe},
        {A::Security, "Security\\Rules\\Ascii", umberscribe},
        {A::Security, "Security\\SearchSpy", umberscribe},
        {A::Security, "Security\\UserLog", umberscribe},
        {A::Security, "Security\\UserLog\\Logs", umberscribe},

        {A::UserActions, "UserActions", userActions},
        {A::UserActions, "UserActions\\Ascii", userActions},
        {A::UserActions, "UserActions\\Ascii\\Ascii", userActions},
        {A::UserActions, "UserActions\\Attacks", userActions},
        {A::UserActions, "UserActions\\Calculator", userActions},
        {A::UserActions, "UserActions\\DoAction", userActions},
        {A::UserActions, "UserActions\\Insults", userActions},
        {A::UserActions, "UserActions\\Jokes", userActions},
        {A::UserActions, "UserActions\\Limericks", userActions},
        {A::UserActions, "UserActions\\Proverbs", userActions},
        {A::UserActions, "UserActions\\Quotations", userActions},
        {A::UserActions, "UserActions\\Spells", userActions},
        {A::UserActions, "UserActions\\Spells\\Spells", userActions},
        {A::UserActions, "UserActions\\NickSpells", userActions},
        {A::UserActions, "UserActions\\NickSpells\\NickSpells", userActions},

        {A::Archive, "TheVellum", archive},
        {A::Archive, "TheVellum\\Bookshelf", archive},
        {A::Archive, "TheVellum\\DVDRack", archive},
        {A::Archive, "TheVellum\\Jukebox", archive},
        {A::Archive, "TheVellum\\Songbook", archive},
        {A::Archive, "TheVellum\\Arcade", archive},
        {A::Archive, "TheVellum\\Hyperlink", archive},
    };
}

}  // namespace

const std::vector<SettingsFolder>& SettingsFolders() {
    static const std::vector<SettingsFolder> table = MakeTable();
    return table;
}

const EditionTest& FolderEditions(std::string_view path) {
    for (const SettingsFolder& folder : SettingsFolders()) {
        if (folder.path == path) return folder.editions;
    }
    throw std::logic_error("no such settings folder: " + std::string(path));
}

}  // namespace qb::store
