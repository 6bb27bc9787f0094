// The catalogue of functions: the tree, the group menus and the keys OpenFunctionPage knows.

#include "shell/catalogue.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "support/temp_hub.h"

namespace qb::shell {
namespace {

class CatalogueTest : public ::testing::Test {
  protected:
    Catalogue Build(std::string_view edition = store::kEdition,
                    store::ProgramVersion version = store::kBuildVersion) {
        store::TableFiles files(hub_.ProgramFolder());
        return BuildCatalogue(files, edition, version);
    }
    void WriteSwitches(const std::string& portal) {
        hub_.WriteSetting(
            "General/Globals/Switches.tbl",
            test::Crlf({"tSwitches = {", "\tbAnagrams = 1,", "\tbPortal = " + portal + ",", "}"}));
    }

    static std::vector<const CatalogueNode*> Leaves(const CatalogueNode& group) {
        std::vector<const CatalogueNode*> leaves;
        std::function<void(const CatalogueNode&)> walk = [&](const CatalogueNode& node) {
            for (const auto& child : node.children) {
                if (child.children.empty()) {
                    leaves.push_back(&child);
                } else {
                    walk(child);
                }
            }
        };
        walk(group);
        return leaves;
    }

    test::TempHub hub_;
};

std::vector<std::string> Keys(const std::vector<CatalogueNode>& nodes) {
    std::vector<std::string> keys;
    for (const auto& node : nodes)
        keys.push_back(node.key);
    return keys;
}

TEST_F(CatalogueTest, TheRootAndTheSixGroupsAreBoldAndTheArchiveWaitsForVersionSix) {
    const Catalogue catalogue = Build();
    EXPECT_EQ(catalogue.root.key, "Quillbook");
    EXPECT_EQ(catalogue.root.text, "Quillbook");
    EXPECT_TRUE(catalogue.root.bold);
    const std::vector<std::string> groups = {"General", "Communication", "CustomiseUser",
                                             "Games",   "Security",      "UserActions"};
    EXPECT_EQ(Keys(catalogue.root.children), groups);
    std::vector<std::string> buttons;
    for (const auto& group : catalogue.root.children) {
        EXPECT_TRUE(group.bold) << group.key;
        for (const auto& child : group.children)
            EXPECT_FALSE(child.bold) << child.key;
    }
    for (const auto& button : catalogue.groups)
        buttons.push_back(button.key);
    EXPECT_EQ(buttons, groups);
    EXPECT_EQ(catalogue.Find("Customise User"), nullptr);
    EXPECT_EQ(catalogue.Find("CustomiseUser")->text, "Customise User");

    const Catalogue six = Build(store::kEdition, {6, 0, 0});
    ASSERT_EQ(six.root.children.size(), 12u);
    EXPECT_EQ(six.root.children.back().key, "Hyperlink");
    EXPECT_EQ(Keys(six.root.children.back().children),
              (std::vector<std::string>{"Hyperlink~LinkOfTheWeek", "Hyperlink~NewLinks",
                                        "Hyperlink~Permissions", "Hyperlink~RightClicks"}));
    // The archive groups have no button of their own.
    EXPECT_EQ(six.groups.size(), 6u);
}

TEST_F(CatalogueTest, EveryLeafOfTheTreeIsAFunctionAndEveryFunctionButTheHiddenOnesIsInTheTree) {
    const Catalogue catalogue = Build(store::kEdition, {6, 0, 0});
    std::set<std::string> leaves;
    for (const auto& group : catalogue.root.children) {
        for (const CatalogueNode* leaf : Leaves(group))
            leaves.insert(leaf->key);
    }
    for (const auto& key : FunctionKeys()) {
        // The hub's e-mail page is opened by key only; the portal waits for its switch.
        const bool hidden = key == "Communication~HubEmail" || key == "Communication~Portal";
        EXPECT_EQ(leaves.contains(key), !hidden) << key;
    }
    // Only the archive RightClicks nodes other than Hyperlink's are leaves without a page.
    for (const auto& key : leaves) {
        if (!IsFunctionKey(key)) {
            EXPECT_TRUE(key.ends_with("~RightClicks") && !key.starts_with("Hyperlink")) << key;
        }
    }
    EXPECT_EQ(std::set<std::string>(FunctionKeys().begin(), FunctionKeys().end()).size(),
              FunctionKeys().size());
}

TEST_F(CatalogueTest, NodeKeysFollowTheirPathsSaveWhereTheyAreGiven) {
    const Catalogue catalogue = Build();
    EXPECT_EQ(catalogue.Find("General~Commands")->text, "Commands");
    EXPECT_EQ(catalogue.Find("General~Language")->children.size(), 3u);
    EXPECT_EQ(catalogue.Find("General~News")->text, "News Archive");
    EXPECT_EQ(catalogue.Find("General~EnableRightClicks")->text, "Enabled Right Clicks");
    EXPECT_EQ(catalogue.Find("Communication~MOTD")->text, "Message Of The Day");
    EXPECT_EQ(catalogue.Find("Communication~KickBarChanger")->text, "KickBar Changer");
    EXPECT_EQ(catalogue.Find("CustomiseUser~IntroOutro~Ascii")->text, "Ascii");
    EXPECT_EQ(catalogue.Find("Games~GuessTheNumber")->text, "Guess The Number");
    EXPECT_EQ(catalogue.Find("Security~AntiVirus")->text, "Anti-Virus");
    EXPECT_EQ(catalogue.Find("UserActions~NickSpells~SpellBook")->text, "Nick Spell Book");
    EXPECT_EQ(CaptionOfKey("Games~Trivia~Questions"), "Games ~ Trivia ~ Questions");
}

TEST_F(CatalogueTest, GroupMenusListTheGroupsPagesInTreeOrderWithTheirOwnTexts) {
    const Catalogue catalogue = Build();
    for (const auto& button : catalogue.groups) {
        const auto leaves = Leaves(*catalogue.Find(button.key));
        ASSERT_EQ(button.menu.size(), leaves.size()) << button.key;
        for (size_t i = 0; i < leaves.size(); ++i) {
            // The one misdirected row aside, each entry opens its own node's page.
            if (button.menu[i].text == "Jokes ~ Settings") continue;
            EXPECT_EQ(button.menu[i].key, leaves[i]->key);
        }
    }
    auto entry = [&](const std::string& group, const std::string& text) -> const GroupMenuEntry* {
        for (const auto& e : catalogue.Group(group)->menu) {
            if (e.text == text) return &e;
        }
        return nullptr;
    };
    ASSERT_NE(entry("General", "Language~Commands"), nullptr);
    EXPECT_EQ(entry("General", "Language~Commands")->key, "General~Commands");
    EXPECT_NE(entry("General", "Language~RightClicks"), nullptr);
    EXPECT_NE(entry("General", "News Archive"), nullptr);
    EXPECT_NE(entry("Communication", "WelcomeInfo ~ Settings"), nullptr);
    EXPECT_NE(entry("Communication", "Welcome Info ~ Network Hubs"), nullptr);
    EXPECT_NE(entry("CustomiseUser", "Intros & Outros ~ Standard"), nullptr);
    EXPECT_EQ(entry("Security", "Kicks ~ Permissions")->key, "Security~Kicks~Permissions");
    EXPECT_EQ(entry("UserActions", "Spells ~ Spell Book")->key, "UserActions~Spells~SpellBook");
    ASSERT_NE(entry("UserActions", "Jokes ~ Settings"), nullptr);
    EXPECT_EQ(entry("UserActions", "Jokes ~ Settings")->key, "Games~Trivia~Settings");
    EXPECT_EQ(entry("UserActions", "Jokes ~ Files")->key, "UserActions~Jokes~Files");
}

TEST_F(CatalogueTest, ThePortalNeedsItsHandMadeSwitchSetToOne) {
    EXPECT_EQ(Build().Find("Communication~Portal"), nullptr);
    WriteSwitches("0");
    EXPECT_EQ(Build().Find("Communication~Portal"), nullptr);
    WriteSwitches("1");
    const Catalogue catalogue = Build();
    ASSERT_NE(catalogue.Find("Communication~Portal"), nullptr);
    const auto& menu = catalogue.Group("Communication")->menu;
    EXPECT_TRUE(std::any_of(menu.begin(), menu.end(),
                            [](const auto& e) { return e.key == "Communication~Portal"; }));
}

TEST_F(CatalogueTest, AnEditionShowsOnlyItsGroups) {
    EXPECT_EQ(Keys(Build("Folianth").root.children),
              (std::vector<std::string>{"General", "Communication", "CustomiseUser", "Games",
                                        "UserActions"}));
    EXPECT_EQ(Keys(Build("Hangman").root.children), (std::vector<std::string>{"General", "Games"}));
    const Catalogue archive = Build("Jukebox");
    EXPECT_EQ(archive.root.children.size(), 7u);
    EXPECT_EQ(archive.groups.size(), 1u);
}

TEST_F(CatalogueTest, CatalogueKeysAreTheNodesAndTheFunctionsWhateverTheEditionShows) {
    for (const char* key : {"Quillbook", "Games", "Games~Trivia", "Communication~Portal",
                            "Communication~HubEmail", "Bookshelf~RightClicks", "Bookshelf"}) {
        EXPECT_TRUE(IsCatalogueKey(key)) << key;
    }
    for (const char* key : {"", "Games~Trivia~Nothing", "security~commandspy", "Language"}) {
        EXPECT_FALSE(IsCatalogueKey(key)) << key;
    }
    EXPECT_FALSE(IsFunctionKey("Games~Trivia"));
    EXPECT_FALSE(IsFunctionKey("Bookshelf~RightClicks"));
    EXPECT_TRUE(IsFunctionKey("Hyperlink~RightClicks"));
}

}  // namespace
}  // namespace qb::shell
