// The bots RESTORE hands out: one for every bot the pack lists, each from a group that has one.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "pages/general/bot_list.h"

namespace qb::pages {
namespace {

// RESTORE names no archive function: from version 6 the pack lists the archive's six bots
// beside them, which the page loads from Bots.tbl and RESTORE leaves out.
TEST(Bots, RestoreGivesABotToEveryFunctionThePackListsAndNoOther) {
    const std::vector<std::string> archive = {"tBookshelf", "tDVDRack", "tJukebox",
                                              "tSongbook",  "tArcade",  "tHyperlink"};
    for (const store::ProgramVersion version :
         {store::ProgramVersion{5, 3, 0}, store::ProgramVersion{6, 0, 0}}) {
        SCOPED_TRACE(store::VersionText(version));
        std::multiset<std::string> restored;
        for (const BotFunction& function : BotFunctions()) {
            if (store::Passes(function.editions, store::kEdition, version))
                restored.insert("t" + std::string(function.function));
        }
        std::vector<std::string> listed = BuildBotList(version);
        if (version.major >= 6) {
            ASSERT_TRUE(std::equal(archive.begin(), archive.end(), listed.end() - 6));
            listed.resize(listed.size() - 6);
        }
        EXPECT_EQ(restored, std::multiset<std::string>(listed.begin(), listed.end()));
    }
    EXPECT_EQ(BotFunctions().front().function, "Main");
}

TEST(Bots, EveryGroupThatRestoreNamesHasABotAndAllShareOneAddress) {
    const std::string email = DefaultBot("Main").email;
    EXPECT_FALSE(email.empty());
    for (const BotFunction& function : BotFunctions()) {
        const BotIdentity bot = DefaultBot(function.group);
        EXPECT_FALSE(bot.name.empty()) << function.group;
        EXPECT_FALSE(bot.description.empty()) << function.group;
        EXPECT_EQ(bot.email, email) << function.group;
    }
    // The archive's group has a bot though no function RESTORE lists speaks through it.
    EXPECT_EQ(DefaultBot("TheVellum").email, email);
    const BotIdentity unknown = DefaultBot("Archive");
    EXPECT_TRUE(unknown.name.empty() && unknown.description.empty() && unknown.email.empty());
}

}  // namespace
}  // namespace qb::pages
