// The balloon texts of the switches pages: the old table's keys, and the rows they miss.

#include "pages/general/switch_descriptions.h"

#include <gtest/gtest.h>

#include <set>

#include "pages/general/switches.h"

namespace qb::pages {
namespace {

TEST(SwitchDescriptionsTest, TheTableHasItsFiftyThreeKeysOnceEach) {
    std::set<std::string_view> keys;
    for (const auto& [key, lines] : SwitchDescriptions()) {
        EXPECT_TRUE(keys.insert(key).second) << key;
        EXPECT_FALSE(lines.empty()) << key;
    }
    EXPECT_EQ(keys.size(), 53u);
    EXPECT_EQ(SwitchDescriptions().front().first, "RightClick");
    EXPECT_EQ(SwitchDescriptions().back().first, "HideShare");
}

TEST(SwitchDescriptionsTest, TellingRowsStartWithTheirOwnLines) {
    const std::vector<std::pair<std::string, std::string>> telling = {
        {"Flood", "Floods user and crashes their client"},
        {"AntiVirus", "Detects Win.Tibick.32 worm and prevents user from entering hub"},
        {"WordReplace",
         "Spell checker and word replacer. Ships with MS Office 2003 word replace table"},
        {"Clock", "Sends clock time to main on timer or to user in main upon request"},
        {"Rules", "Allows users to call up hub rules. Can be displayed in either main or PM"},
        {"Inbuilt", "Allows control over Hub Rules"},
        {"PM2Ops", "Shows PM2Ops in userlist to all users"},
        {"TicTacToe", "TicTacToe game played in PM between two users"},
    };
    for (const auto& [key, first] : telling) {
        const std::string text = SwitchDescription(key);
        EXPECT_EQ(text.substr(0, text.find("\r\n")), first) << key;
    }
    // Lines are joined by the scripts' line break.
    EXPECT_NE(SwitchDescription("WordReplace").find("\r\nReplaces words"), std::string::npos);
}

TEST(SwitchDescriptionsTest, SomeOfTodaysRowsFindNoDescription) {
    std::set<std::string> missing;
    for (const SwitchKey& key : SwitchKeys()) {
        const std::string row(key.key.substr(1));  // the row's text: the key without its "b"
        if (SwitchDescription(row).empty()) missing.insert(row);
    }
    EXPECT_TRUE(missing.contains("RussianRoulette"));
    EXPECT_TRUE(missing.contains("TopicChanger"));
    EXPECT_FALSE(missing.contains("AntiVirus"));
    EXPECT_FALSE(missing.contains("Flood"));
    EXPECT_EQ(SwitchDescription(""), "");
}

}  // namespace
}  // namespace qb::pages
