#include "shell/catalogue.h"

#include <algorithm>
#include <functional>

#include "store/text_rules.h"

namespace qb::shell {
namespace {

// A node as the catalogue declares it. The key is the parent's key, "~" and the text without its
// blanks unless given; a group menu entry shows the node's text, or for a page of a function with
// several pages the function's text, " ~ " and the page's text, unless given.
struct NodeDecl {
    std::string text;
    std::string key = {};
    std::string menuText = {};
    std::string menuKey = {};  // where an entry opens another page than its node
    bool portal = false;       // shown only with the hand-made portal switch
    std::vector<NodeDecl> children = {};
};

struct GroupDecl {
    std::string key;
    std::string text;
    std::function<bool(std::string_view, store::ProgramVersion)> inEdition;
    bool button;  // the six groups of the scripts have a button; the archive groups don't
    std::vector<NodeDecl> nodes;
};

std::function<bool(std::string_view, store::ProgramVersion)> Editions(
    std::initializer_list<std::string_view> editions) {
    std::vector<std::string_view> list(editions);
    return [list](std::string_view edition, store::ProgramVersion) {
        return edition == "Quillbook" || std::find(list.begin(), list.end(), edition) != list.end();
    };
}

std::vector<NodeDecl> ArchivePages() {
    return {{.text = "Link Of The Week"},
            {.text = "New Links"},
            {.text = "Permissions"},
            {.text = "RightClicks"}};
}

bool EveryEdition(std::string_view, store::ProgramVersion) {
    return true;
}

std::vector<GroupDecl> Groups() {
    std::vector<GroupDecl> groups = {
        {"General",
         "General",
         EveryEdition,
         true,
         {{.text = "Settings"},
          {.text = "Bots"},
          {.text = "Language",
           .children =
               {{.text = "Commands", .key = "General~Commands", .menuText = "Language~Commands"},
                {.text = "Messages", .key = "General~Messages", .menuText = "Language~Messages"},
                {.text = "RightClicks",
                 .key = "General~RightClicks",
                 .menuText = "Language~RightClicks"}}},
          {.text = "News Archive", .key = "General~News"},
          {.text = "Switches"},
          {.text = "Enabled Right Clicks", .key = "General~EnableRightClicks"}}},
        {"Communication",
         "Communication",
         Editions({"Folianth", "Umberscribe"}),
         true,
         {{.text = "AutoCorrect"},
          {.text = "ChatRooms"},
          {.text = "Clock"},
          {.text = "KickBar Changer"},
          {.text = "Mass Message"},
          {.text = "Message Of The Day", .key = "Communication~MOTD"},
          {.text = "Mute"},
          {.text = "Portal", .portal = true},
          {.text = "Rotating Main Message"},
          {.text = "Rotating Private Message"},
          {.text = "Talk"},
          {.text = "Topic Changer"},
          {.text = "WelcomeInfo",
           .children = {{.text = "Settings"},
                        {.text = "Network Hubs", .menuText = "Welcome Info ~ Network Hubs"}}},
          {.text = "Whisper"}}},
        {"CustomiseUser",
         "Customise User",
         Editions({"Folianth", "Umberscribe"}),
         true,
         {{.text = "Custom Right Click"},
          {.text = "Description Tags"},
          {.text = "Hide Share"},
          {.text = "Intros & Outros",
           .key = "CustomiseUser~IntroOutro",
           .children = {{.text = "Standard"}, {.text = "Custom"}, {.text = "Ascii"}}}}},
        {"Games",
         "Games",
         Editions({"Folianth", "Merrimanual", "Anagrams", "CodeBreaker", "GuessTheNumber",
                   "Hangman", "Numbers", "Trivia"}),
         true,
         {{.text = "Anagrams"},
          {.text = "CodeBreaker"},
          {.text = "Guess The Number"},
          {.text = "Hangman"},
          {.text = "Numbers"},
          {.text = "Russian Roulette"},
          {.text = "Score Clearers"},
          {.text = "Slot Machine"},
          {.text = "Three Card Monty"},
          {.text = "Trivia", .children = {{.text = "Settings"}, {.text = "Questions"}}}}},
        {"Security",
         "Security",
         Editions({"Umberscribe"}),
         true,
         {{.text = "AntiAdvertise", .children = {{.text = "Settings"}, {.text = "Addresses"}}},
          {.text = "Anti-Virus", .key = "Security~AntiVirus"},
          {.text = "Bad Nick Blocker"},
          {.text = "Client Checker"},
          {.text = "CloneBlocker"},
          {.text = "Command Spy"},
          {.text = "Flooder"},
          {.text = "Kicks", .children = {{.text = "Settings"}, {.text = "Permissions"}}},
          {.text = "Main Block"},
          {.text = "Main Cleaner"},
          {.text = "Main Lock"},
          {.text = "PtokaX Settings"},
          {.text = "Private Hub"},
          {.text = "Profile Rules", .children = {{.text = "Settings"}, {.text = "Rules"}}},
          {.text = "Registration"},
          {.text = "Report"},
          {.text = "Rules"},
          {.text = "Search Spy"},
          {.text = "UserLog"}}},
        {"UserActions",
         "User Actions",
         Editions({"Folianth"}),
         true,
         {{.text = "Ascii"},
          {.text = "Attacks"},
          {.text = "Calculator"},
          {.text = "DoAction"},
          {.text = "Insults",
           .children = {{.text = "Standard"}, {.text = "Medieval"}, {.text = "Modern"}}},
          // The jokes settings entry of the group menu has always opened the trivia settings;
          // users know it so, and it stays.
          {.text = "Jokes",
           .children = {{.text = "Settings", .menuKey = "Games~Trivia~Settings"},
                        {.text = "Files"}}},
          {.text = "Limericks"},
          {.text = "Proverbs"},
          {.text = "Quotations"},
          {.text = "Spells",
           .children = {{.text = "Settings"},
                        {.text = "Spell Book", .key = "UserActions~Spells~SpellBook"}}},
          {.text = "NickSpells",
           .children = {{.text = "Settings"},
                        {.text = "Nick Spell Book", .key = "UserActions~NickSpells~SpellBook"}}}}},
    };
    for (const char* archive :
         {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
        groups.push_back({archive, archive,
                          [](std::string_view edition, store::ProgramVersion version) {
                              return store::ArchiveBuilt(edition, version);
                          },
                          false, ArchivePages()});
    }
    return groups;
}

std::string WithoutBlanks(std::string_view text) {
    std::string out;
    for (char c : text) {
        if (c != ' ') out.push_back(c);
    }
    return out;
}

struct Filter {
    std::string_view edition;
    store::ProgramVersion version;
    bool portal;
    bool everything;  // the whole catalogue, whatever the edition shows
};

void AddNodes(CatalogueNode& parent, GroupButton* button, const std::vector<NodeDecl>& decls,
              const std::string& functionText, const Filter& filter) {
    for (const auto& decl : decls) {
        if (decl.portal && !filter.portal && !filter.everything) continue;
        CatalogueNode node;
        node.key = decl.key.empty() ? parent.key + "~" + WithoutBlanks(decl.text) : decl.key;
        node.text = decl.text;
        if (decl.children.empty()) {
            if (button != nullptr) {
                std::string text = decl.menuText;
                if (text.empty()) {
                    text = functionText.empty() ? decl.text : functionText + " ~ " + decl.text;
                }
                button->menu.push_back({decl.menuKey.empty() ? node.key : decl.menuKey, text});
            }
        } else {
            AddNodes(node, button, decl.children, decl.text, filter);
        }
        parent.children.push_back(std::move(node));
    }
}

Catalogue Build(const Filter& filter) {
    Catalogue catalogue;
    catalogue.root.key = std::string(store::kEdition);
    catalogue.root.text = std::string(store::kEdition);
    catalogue.root.bold = true;
    for (const auto& group : Groups()) {
        if (!filter.everything && !group.inEdition(filter.edition, filter.version)) continue;
        CatalogueNode node{group.key, group.text, true, {}};
        GroupButton button{group.key, {}};
        AddNodes(node, group.button ? &button : nullptr, group.nodes, "", filter);
        catalogue.root.children.push_back(std::move(node));
        if (group.button) catalogue.groups.push_back(std::move(button));
    }
    return catalogue;
}

const CatalogueNode* FindIn(const CatalogueNode& node, std::string_view key) {
    if (node.key == key) return &node;
    for (const auto& child : node.children) {
        if (const CatalogueNode* found = FindIn(child, key)) return found;
    }
    return nullptr;
}

}  // namespace

const CatalogueNode* Catalogue::Find(std::string_view key) const {
    return FindIn(root, key);
}

const GroupButton* Catalogue::Group(std::string_view key) const {
    for (const auto& group : groups) {
        if (group.key == key) return &group;
    }
    return nullptr;
}

Catalogue BuildCatalogue(store::TableFiles& files, std::string_view edition,
                         store::ProgramVersion version) {
    const bool portal = store::IsNumericallyOne(
        files.ReadTableValue("General\\Globals\\Switches.tbl", "bPortal", "", false));
    return Build({edition, version, portal, false});
}

const std::vector<std::string>& FunctionKeys() {
    static const std::vector<std::string> keys = [] {
        std::vector<std::string> list = {
            "General~Settings",
            "General~Bots",
            "General~Commands",
            "General~Messages",
            "General~News",
            "General~RightClicks",
            "General~Switches",
            "General~EnableRightClicks",
            "Communication~AutoCorrect",
            "Communication~ChatRooms",
            "Communication~Clock",
            "Communication~HubEmail",
            "Communication~KickBarChanger",
            "Communication~MassMessage",
            "Communication~MOTD",
            "Communication~Mute",
            "Communication~Portal",
            "Communication~RotatingMainMessage",
            "Communication~RotatingPrivateMessage",
            "Communication~Talk",
            "Communication~TopicChanger",
            "Communication~WelcomeInfo~Settings",
            "Communication~WelcomeInfo~NetworkHubs",
            "Communication~Whisper",
            "CustomiseUser~CustomRightClick",
            "CustomiseUser~DescriptionTags",
            "CustomiseUser~HideShare",
            "CustomiseUser~IntroOutro~Standard",
            "CustomiseUser~IntroOutro~Custom",
            "CustomiseUser~IntroOutro~Ascii",
            "Games~Anagrams",
            "Games~CodeBreaker",
            "Games~GuessTheNumber",
            "Games~Hangman",
            "Games~Numbers",
            "Games~RussianRoulette",
            "Games~ScoreClearers",
            "Games~SlotMachine",
            "Games~ThreeCardMonty",
            "Games~Trivia~Settings",
            "Games~Trivia~Questions",
            "Security~AntiAdvertise~Settings",
            "Security~AntiAdvertise~Addresses",
            "Security~AntiVirus",
            "Security~BadNickBlocker",
            "Security~ClientChecker",
            "Security~CloneBlocker",
            "Security~CommandSpy",
            "Security~Flooder",
            "Security~Kicks~Settings",
            "Security~Kicks~Permissions",
            "Security~MainBlock",
            "Security~MainCleaner",
            "Security~MainLock",
            "Security~PrivateHub",
            "Security~ProfileRules~Rules",
            "Security~ProfileRules~Settings",
            "Security~PtokaXSettings",
            "Security~Registration",
            "Security~Report",
            "Security~Rules",
            "Security~SearchSpy",
            "Security~UserLog",
            "UserActions~Ascii",
            "UserActions~Attacks",
            "UserActions~Calculator",
            "UserActions~DoAction",
            "UserActions~Insults~Standard",
            "UserActions~Insults~Medieval",
            "UserActions~Insults~Modern",
            "UserActions~Jokes~Settings",
            "UserActions~Jokes~Files",
            "UserActions~Limericks",
            "UserActions~Proverbs",
            "UserActions~Quotations",
            "UserActions~Spells~Settings",
            "UserActions~Spells~SpellBook",
            "UserActions~NickSpells~Settings",
            "UserActions~NickSpells~SpellBook",
        };
        for (const char* archive :
             {"Arcade", "Bookshelf", "DVDRack", "Jukebox", "Songbook", "Hyperlink"}) {
            for (const char* page : {"LinkOfTheWeek", "NewLinks", "Permissions"})
                list.push_back(std::string(archive) + "~" + page);
        }
        list.push_back("Hyperlink~RightClicks");
        return list;
    }();
    return keys;
}

bool IsFunctionKey(std::string_view key) {
    const auto& keys = FunctionKeys();
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

bool IsCatalogueKey(std::string_view key) {
    // The whole catalogue asks no edition test, so no version decides anything here.
    static const Catalogue everything = Build({store::kEdition, {}, true, true});
    return IsFunctionKey(key) || everything.Find(key) != nullptr;
}

std::string CaptionOfKey(std::string_view key) {
    std::string caption;
    for (char c : key) {
        if (c == '~') {
            caption += " ~ ";
        } else {
            caption.push_back(c);
        }
    }
    return caption;
}

}  // namespace qb::shell
