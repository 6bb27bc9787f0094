#include "pages/general/switch_descriptions.h"

namespace qb::pages {

const std::vector<std::pair<std::string_view, std::vector<std::string_view>>>&
SwitchDescriptions() {
    static const std::vector<std::pair<std::string_view, std::vector<std::string_view>>> table = {
        {"RightClick", {"Adds the scripts' commands to the users' right click menus"}},
        {"IntroOutro",
         {"Announces users as they enter and leave the hub",
          "with a standard, custom or ascii line picked from a list"}},
        {"Whisper", {"Lets users whisper a private line to another user in main chat"}},
        {"Message", {"Shows a set of messages in main chat, one after the other, on a timer"}},
        {"PrivateMessage", {"Sends a set of messages to users privately, one after the other"}},
        {"Welcome", {"Shows a user facts about the hub and its network at login"}},
        {"Quotations", {"Says a quotation from a list, on request or at intervals"}},
        {"WordReplace",
         {"Spell checker and word replacer. Ships with MS Office 2003 word replace table",
          "Replaces words in what chosen profiles type"}},
        {"Commands", {"The texts of the scripts' commands, in the language set chosen"}},
        {"CommandSpy", {"Lets chosen profiles watch the commands that users type"}},
        {"Email", {"Gives users the hub's e-mail address on request"}},
        {"DescriptionTags", {"Puts a tag for each profile into its users' descriptions"}},
        {"Spells",
         {"Users cast named spells at other users and the bot says a phrase",
          "Wards protect chosen users from every spell"}},
        {"NickSpells", {"Users cast named spells on nicks and the bot says a phrase"}},
        {"Roulette", {"Russian Roulette: a user plays against the bot, one chamber at a time"}},
        {"SlotMachine", {"A slot machine that a user plays against the bot"}},
        {"ThreeCardMonty", {"Find the lady: a user plays Three Card Monty against the bot"}},
        {"Jokes", {"Tells a joke from one of several joke files, on request or at intervals"}},
        {"Clock", {"Sends clock time to main on timer or to user in main upon request"}},
        {"AntiAdvertise",
         {"Blocks advertising for other hubs in main chat, nicks, descriptions and private "
          "messages",
          "and takes an action on a detection"}},
        {"AntiVirus", {"Detects Win.Tibick.32 worm and prevents user from entering hub"}},
        {"Attacks", {"Lets one user fire a line from a list at another"}},
        {"UserActions", {"Actions users can do to each other in main chat"}},
        {"TicTacToe", {"TicTacToe game played in PM between two users"}},
        {"Trivia", {"Asks trivia questions in main chat from one or more question files"}},
        {"Numbers", {"Asks sums in main chat, from a question file or made up on the fly"}},
        {"Anagrams", {"Shows a word with its letters mixed up for users to guess"}},
        {"Ascii", {"Lets users call up ascii pictures by name"}},
        {"Topic Changer", {"Changes the hub topic in turn, from a list, every so often"}},
        {"MidBarChanger", {"Changes the text of the kick bar in turn, from a list"}},
        {"SearchSpy",
         {"Prevents users from searching for prohibited phrases", "with an action for each"}},
        {"Kicks",
         {"Warn, drop, kick, time ban, ban and unban commands for key holders",
          "with a log of kicks, its cleaner and a top list"}},
        {"MassMessage", {"Lets chosen profiles send a message to every user or to profiles"}},
        {"Registration",
         {"Lets users register themselves or be registered by others",
          "and chosen profiles delete registrations or change passwords"}},
        {"Mute", {"Lets chosen profiles silence a user in main chat"}},
        {"MOTD", {"Sends a message of the day at login, one for each profile"}},
        {"Rules", {"Allows users to call up hub rules. Can be displayed in either main or PM"}},
        {"Inbuilt", {"Allows control over Hub Rules"}},
        {"PrivateHub",
         {"Keeps chosen profiles out of the hub, or out of main chat, private messages,",
          "downloads or searches"}},
        {"Guess", {"Guess The Number: users guess a number the bot has in mind"}},
        {"CodeBreaker", {"Users break a code that the bot makes from a set of characters"}},
        {"UserLog",
         {"Records details of users as they join and depart",
          "Enabled for Unregistered it can grow large and cause hub lag"}},
        {"Limericks", {"Recites a limerick from a list, on request or at intervals"}},
        {"Proverbs", {"Says a proverb from a list, on request or at intervals"}},
        {"ClientChecker",
         {"Checks each connecting user's client and its version",
          "and blocks chosen connection modes"}},
        {"BadNickBlocker", {"Checks the nick of each connecting user against a table"}},
        {"CloneBlocker",
         {"Stops a user whose IP matches that of another user from entering the hub"}},
        {"PM2Ops", {"Shows PM2Ops in userlist to all users"}},
        {"RegChat", {"A chat room for registered users"}},
        {"VIPChat", {"A chat room for VIP users"}},
        {"AdminChat", {"A chat room for the hub's operators and masters"}},
        {"Flood", {"Floods user and crashes their client"}},
        {"HideShare", {"Lets chosen profiles hide their share"}},
    };
    return table;
}

std::string SwitchDescription(std::string_view rowText) {
    for (const auto& [key, lines] : SwitchDescriptions()) {
        if (key != rowText) continue;
        std::string text;
        for (const auto& line : lines) {
            if (!text.empty()) text += "\r\n";
            text += line;
        }
        return text;
    }
    return {};
}

}  // namespace qb::pages
