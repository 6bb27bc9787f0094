// Every registered page over a freshly rebuilt tree: it opens clean, SAVE with nothing changed
// writes back the bytes it read, and RESTORE then SAVE writes what the rebuild wrote, since a
// fresh rebuild writes the defaults. A page joins this sweep by being registered; the pages whose
// writers have always differed from the rebuild's are listed below with the reason.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "shell/startup.h"
#include "store/fatal_error.h"
#include "support/page_harness.h"

namespace qb::pages {
namespace {

namespace fs = std::filesystem;

// Pages whose SAVE of an unchanged page writes a file otherwise than the rebuild did.
const std::map<std::string, std::string>& SaveDiffers() {
    static const std::map<std::string, std::string> pages = {
        {"General~Settings", "the builder writes its keys in an order of its own"},
        {"Security~ClientChecker", "the builder writes its keys in an order of its own"},
        {"General~Bots", "Bots.tbl has no builder: the page's save makes it"},
        {"Communication~Talk",
         "the builder leaves out the unregistered users as the talked-to; the page writes them"},
        {"Communication~MassMessage",
         "the builder writes the words bare and keeps Operator; the page quotes them and drops it"},
        {"Communication~RotatingPrivateMessage",
         "the builder writes tEnabledProfiles ahead of tEnabledAdProfiles"},
        {"Communication~MOTD", "the builder writes the row for all users ahead of the profiles"},
        {"Communication~ChatRooms", "the builder writes tEnabledProfiles ahead of the four rights"},
        {"Communication~WelcomeInfo~Settings",
         "the builder keeps sMinShare, which the page neither shows nor writes"},
        {"Communication~HubEmail", "no builder: the page's save makes the file and its folder"},
        {"CustomiseUser~CustomRightClick",
         "the builder makes the table empty; the page's save writes the count of its entries"},
        {"CustomiseUser~DescriptionTags",
         "the builder writes bNotifyOps and the tags before the profiles; the page drops "
         "bNotifyOps and writes the profiles first"},
        {"General~Commands",
         "the language sets come with the script pack; no rebuild writes "
         "their index, and the page's save makes it"},
        {"General~Messages",
         "the language sets come with the script pack; no rebuild writes "
         "their index, and the page's save makes it"},
        {"General~RightClicks",
         "the language sets come with the script pack; no rebuild writes "
         "their index, and the page's save makes it"},
        {"UserActions~Quotations", "the builder puts the delay between the two flags"},
        {"UserActions~Proverbs", "the builder puts the delay between the two flags"},
        {"UserActions~Limericks", "the builder puts the delay between the two flags"},
        {"UserActions~Jokes", "the builder puts the delay between the two flags"},
        {"UserActions~Jokes~Settings", "the builder puts the delay between the two flags"},
        {"UserActions~Spells~Settings", "the builder writes the delay before the wards flag"},
        {"UserActions~Insults~Medieval",
         "the builder names the third list tThreee, the page tThree"},
        {"Security~AntiAdvertise~Addresses",
         "the builder makes each list under the other's table; the page writes each its own"},
        {"Security~Kicks~Settings", "the builder writes the numbers ahead of the flags"},
        {"Security~Kicks~Permissions",
         "the page writes KickCanTimeBan.tbl, which no rebuild makes: the builder's is TempBan"},
        {"Security~PrivateHub", "the builder writes the five lists in an order of its own"},
        {"Security~Registration",
         "the builder writes the unregistered users' rows, which the page drops, and "
         "iRegProfiles = 3 where the page writes iRegProfile"},
    };
    return pages;
}

// Pages whose SAVE ends the program over a freshly built tree.
const std::map<std::string, std::string>& SaveFails() {
    static const std::map<std::string, std::string> pages = {
        {"Arcade~Permissions", "before version 6 no folder of the archive is made"},
    };
    return pages;
}

// Pages whose RESTORE then SAVE writes otherwise than a fresh rebuild.
const std::map<std::string, std::string>& RestoreDiffers() {
    static const std::map<std::string, std::string> pages = {
        {"General~Switches",
         "RESTORE ticks every row, the two functions that are off by default too"},
        {"General~EnableRightClicks",
         "RESTORE ticks every row, the two functions that are off by default too"},
        {"UserActions~Insults~Standard", "RESTORE empties the list the rebuild gave a sample"},
        {"UserActions~Insults~Modern",
         "RESTORE empties three of the lists the rebuild gave a sample"},
        {"UserActions~Attacks", "RESTORE empties the list the rebuild gave a sample"},
        {"UserActions~DoAction", "RESTORE empties the list the rebuild gave a sample"},
        {"CustomiseUser~IntroOutro~Standard",
         "RESTORE puts the default lines in; a rebuild makes the lists empty"},
        {"CustomiseUser~IntroOutro~Custom",
         "RESTORE puts the default lines in; a rebuild makes the lists empty"},
        {"Security~ProfileRules~Settings",
         "RESTORE unticks Log Redirects and sets the delay to 5; a rebuild ticks it and writes "
         "no delay"},
    };
    return pages;
}

class Sweep : public ::testing::Test, protected test::PageHarness {
  protected:
    Sweep() {
        BuildFor(4);
        built_ = Tree();
    }

    // Every file below the settings folder, by its path, with its bytes.
    std::map<std::string, std::string> Tree() const { return hub.SettingsTree(); }

    // The files that differ from the freshly built tree, with what the page wrote.
    std::string Changes() const {
        std::string changes;
        const auto now = Tree();
        for (const auto& [path, bytes] : now) {
            const auto was = built_.find(path);
            if (was == built_.end() || was->second != bytes) changes += path + "\n";
        }
        for (const auto& [path, bytes] : built_) {
            if (!now.contains(path)) changes += path + " (gone)\n";
        }
        return changes;
    }

    // The tree as the rebuild left it, for the next page.
    void Restore() {
        for (const auto& [path, bytes] : Tree()) {
            if (!built_.contains(path)) fs::remove(hub.Settings() / path);
        }
        for (const auto& [path, bytes] : built_)
            hub.WriteSetting(path, bytes);
    }

    // The toolbar's handler, as a click would run it, whether or not SAVE is enabled: a clean
    // page can't be saved by the user, but what it would write is the point here.
    static void Press(shell::Page& page, const std::string& button) {
        static_cast<shell::Toolbar*>(page.Find("tlbFormToolbar"))->onButtonClick(button);
    }

    std::map<std::string, std::string> built_;
};

TEST_F(Sweep, EveryPageOpensCleanAndSavesWhatItReadOrWhatTheRebuildWrites) {
    ASSERT_FALSE(registry.Keys().empty());
    for (const std::string& key : registry.Keys()) {
        SCOPED_TRACE(key);
        shell::Page* page = container.Open(key);
        ASSERT_NE(page, nullptr);
        EXPECT_FALSE(page->SaveRequired());

        if (SaveFails().contains(key)) {
            EXPECT_THROW(Press(*page, "SAVE"), store::FatalError) << SaveFails().at(key);
            EXPECT_EQ(Changes(), "");
            EXPECT_TRUE(container.Close(*page));
            continue;
        }
        Press(*page, "SAVE");
        const std::string saved = Changes();
        if (SaveDiffers().contains(key)) {
            EXPECT_NE(saved, "") << "listed as differing: " << SaveDiffers().at(key);
        } else {
            EXPECT_EQ(saved, "");
        }
        Restore();

        if (page->FormToolbar().Find("RESTORE") != nullptr) {
            host.QueueAnswer(shell::Answer::OK);
            Press(*page, "RESTORE");
            EXPECT_TRUE(page->SaveRequired());
            Press(*page, "SAVE");
            const std::string restored = Changes();
            if (RestoreDiffers().contains(key) || SaveDiffers().contains(key)) {
                EXPECT_NE(restored, "");
            } else {
                EXPECT_EQ(restored, "");
            }
            Restore();
        }
        EXPECT_TRUE(container.Close(*page));
    }
    EXPECT_TRUE(host.Unused().empty());
}

// A page's declaration is checked when it is registered, at start: a control bound to a key its
// file doesn't have is an error then, not an empty field when the page opens.
TEST(Declarations, AKeyTheFileLacksIsRefusedAtRegistration) {
    static const store::FileSchema file{
        "Security\\X\\XSettings.tbl", "tXSettings", {{store::FieldKind::Flag, "bNotify", "1"}}};
    using namespace shell::decl;
    static const shell::PageDecl mistyped{
        .key = "Security~X",
        .caption = "Security ~ X",
        .size = {3400, 6075},
        .files = {&file},
        .controls = {Check("chkCheckBox(0)", "bNotfy", "Notify")}};
    shell::PageRegistry registry;
    try {
        registry.Register(mistyped);
        FAIL() << "a mistyped key was registered";
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(),
                     "Security~X: chkCheckBox(0) is bound to bNotfy, which "
                     "Security\\X\\XSettings.tbl doesn't have");
    }
    EXPECT_FALSE(registry.Has("Security~X"));
}

TEST(Declarations, AControlThatCantShowItsFieldIsRefused) {
    static const store::FileSchema file{
        "Security\\X\\XSettings.tbl", "tXSettings", {{store::FieldKind::Number, "iTime", "10"}}};
    using namespace shell::decl;
    // A number without a range has no up-down.
    static const shell::PageDecl spin{.key = "Security~X",
                                      .caption = "Security ~ X",
                                      .size = {3400, 6075},
                                      .files = {&file},
                                      .controls = {Spin("txtUpDown", "updUpDown", "iTime")}};
    shell::PageRegistry registry;
    EXPECT_THROW(registry.Register(spin), std::logic_error);
}

}  // namespace
}  // namespace qb::pages
