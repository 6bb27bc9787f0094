// The user actions' files through rebuilds: settings keep their values in the builder's order and
// take a row for a new profile, unticked; lists, books, wards, the ascii index, spells and
// pictures are the user's and stay as they are. And the spell book's save, which writes only
// what the user amended.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "pages/pages.h"
#include "support/page_harness.h"
#include "support/temp_hub.h"

namespace qb::pages {
namespace {

namespace fs = std::filesystem;
using test::Crlf;

class UserActionsRebuild : public ::testing::Test {
  protected:
    UserActionsRebuild() { RegisterAllBuilders(builders); }
    void Rebuild(int lastProfile) {
        store::BuildRun run{files, lastProfile, store::kBuildVersion};
        builders.BuildArea(store::Area::UserActions, run);
    }
    std::map<std::string, std::string> Tree() const { return hub.SettingsTree("UserActions"); }
    test::TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    store::BuilderRegistry builders;
};

TEST_F(UserActionsRebuild, KeepsValuesInTheBuildersOrderAndGivesANewProfileAnUntickedRow) {
    Rebuild(0);
    // As the pages save them, with profile 0 ticked everywhere.
    hub.WriteSetting(
        "UserActions/Spells/SpellSettings.tbl",
        Crlf({"tSpellSettings = {", "\tbEnableWards = 0,", "\tiDelay = 500,",
              "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "}"}));
    hub.WriteSetting("UserActions/Calculator/CalculatorSettings.tbl",
                     Crlf({"tCalculatorSettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                           "\t\t[0] = 1,", "\t},", "}"}));
    hub.WriteSetting(
        "UserActions/Ascii/AsciiSettings.tbl",
        Crlf({"tAsciiSettings = {", "\tbInMain = 0,", "\tbInMainGlobal = 1,",
              "\tbEnableNoCommand = 0,", "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,",
              "\t},", "\ttEnabledRC = {", "\t\t[0] = 1,", "\t},", "}"}));
    hub.WriteSetting("UserActions/Quotations/QuotationSettings.tbl",
                     Crlf({"tQuotationSettings = {", "\tbManualControl = 1,", "\tbSendToAll = 0,",
                           "\tiDelay = 5,", "}"}));
    // The user's lists, RESTORE's empty ones among them, a spell and a picture.
    hub.WriteSetting("UserActions/Insults/InsultsModern.tbl",
                     Crlf({"tInsultsModern = {", "\ttOne = {", "\t},", "\ttFour = {",
                           "\t\t\"kangaroo vomit\",", "\t},", "}"}));
    hub.WriteSetting("UserActions/Attacks/Attacks.tbl", Crlf({"tAttacks = {", "}"}));
    hub.WriteSetting("UserActions/Spells/SpellBook.tbl",
                     Crlf({"tSpellBook = {", "\t[\"Frog\"] = \"Makes a frog\",", "}"}));
    hub.WriteSetting("UserActions/Spells/Spells/Frog.tbl",
                     Crlf({"tSpell = {", "\t\"!victim! croaks\",", "}"}));
    hub.WriteSetting("UserActions/Spells/SpellWards.tbl",
                     Crlf({"tSpellWards = {", "\t[\"Bob\"] = 1,", "}"}));
    hub.WriteSetting("UserActions/Ascii/AsciiIndex.tbl",
                     Crlf({"tAsciiIndex = {", "\t[1] = {", "\t\tsFilename = \"cat\",",
                           "\t\tsDisplayName = \"Cat\",", "\t\tsMenu = \"Cat\",", "\t},", "}"}));
    hub.WriteSetting("UserActions/Ascii/Ascii/cat.asc", "=^.^=\r\n\r\n");
    const auto before = Tree();

    Rebuild(1);  // the hub gained profile 1
    EXPECT_EQ(hub.ReadSetting("UserActions/Spells/SpellSettings.tbl"),
              Crlf({"tSpellSettings = {", "\tiDelay = 500,", "\tbEnableWards = 0,",
                    "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t\t[1] = 0,",
                    "\t},", "}"}));
    EXPECT_EQ(hub.ReadSetting("UserActions/Calculator/CalculatorSettings.tbl"),
              Crlf({"tCalculatorSettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                    "\t\t[0] = 1,", "\t\t[1] = 0,", "\t},", "}"}));
    EXPECT_EQ(hub.ReadSetting("UserActions/Ascii/AsciiSettings.tbl"),
              Crlf({"tAsciiSettings = {", "\tbInMain = 0,", "\tbInMainGlobal = 1,",
                    "\tbEnableNoCommand = 0,", "\ttEnabledProfiles = {", "\t\t[-1] = 0,",
                    "\t\t[0] = 1,", "\t\t[1] = 0,", "\t},", "\ttEnabledRC = {", "\t\t[0] = 1,",
                    "\t\t[1] = 0,", "\t},", "}"}));
    // A delay the up-down would refuse is kept as it stands.
    EXPECT_EQ(hub.ReadSetting("UserActions/Quotations/QuotationSettings.tbl"),
              Crlf({"tQuotationSettings = {", "\tbManualControl = 1,", "\tiDelay = 5,",
                    "\tbSendToAll = 0,", "}"}));

    const auto after = Tree();
    for (const auto& [path, bytes] : before) {
        if (path.find("Settings.tbl") != std::string::npos) continue;
        EXPECT_EQ(after.at(path), bytes) << path;
    }
    Rebuild(1);
    EXPECT_EQ(Tree(), after);
}

TEST_F(UserActionsRebuild, AFreshTreeHasEverySampleAndNoSpellOrPicture) {
    Rebuild(-1);
    EXPECT_EQ(hub.ReadSetting("UserActions/Insults/InsultsMedieval.tbl"),
              Crlf({"tInsultsMedieval = {", "\ttOne = {", "\t\t\"artless\",", "\t},", "\ttTwo = {",
                    "\t\t\"boil brained\",", "\t},", "\ttThreee = {", "\t\t\"hedge-pig\",", "\t},",
                    "}"}));
    EXPECT_EQ(hub.ReadSetting("UserActions/Jokes/Jokes.tbl"),
              Crlf({"tJokes = {", "\t\"Cannot find REALITY.SYS. Universe halted\",", "}"}));
    EXPECT_EQ(hub.ReadSetting("UserActions/Spells/SpellWards.tbl"), Crlf({"tSpellWards = {", "}"}));
    EXPECT_TRUE(fs::is_empty(hub.Settings() / "UserActions/Spells/Spells"));
    EXPECT_TRUE(fs::is_empty(hub.Settings() / "UserActions/NickSpells/NickSpells"));
    EXPECT_TRUE(fs::is_empty(hub.Settings() / "UserActions/Ascii/Ascii"));
}

// A book's spells keep their phrases in their own files: a save writes the files of the spells
// the user amended and of no other, whatever those hold.
class SpellBook : public ::testing::Test, protected test::PageHarness {
  protected:
    SpellBook() {
        hub.WriteSetting("UserActions/Spells/SpellBook.tbl",
                         Crlf({"tSpellBook = {", "\t[\"Frog\"] = \"Makes a frog\",",
                               "\t[\"Toad\"] = \"Makes a toad\",", "}"}));
        hub.WriteSetting("UserActions/Spells/Spells/Frog.tbl", kFrog);
        hub.WriteSetting("UserActions/Spells/Spells/Toad.tbl",
                         Crlf({"tSpell = {", "\t\"!victim! grows warts\",", "\t\"last\",", "}"}));
    }
    static constexpr std::string_view kFrog = "hand-made, not even a table\r\n";
};

TEST_F(SpellBook, SavesOnlyTheAmendedSpellAndItsLastPhraseCantGo) {
    container.LoadProfiles();
    shell::Page* page = container.Open("UserActions~Spells~SpellBook");
    ASSERT_NE(page, nullptr);
    auto& spells = static_cast<shell::ListControl&>(*page->Find("lvwSpells"));
    auto& phrases = static_cast<shell::ListControl&>(*page->Find("lvwSpellPhrases"));
    ASSERT_TRUE(spells.UserSelect(2));
    ASSERT_TRUE(Click(*page, "tlbSpells", "AMEND"));
    ASSERT_EQ(phrases.Count(), 2);
    ASSERT_TRUE(phrases.UserSelect(1));
    host.QueueAnswer(shell::Answer::OK);
    ASSERT_TRUE(Click(*page, "tlbSpellPhrases", "DELETE"));
    // One phrase left: the refusal, and the phrase stays.
    host.QueueAnswer(shell::Answer::OK);
    ASSERT_TRUE(Click(*page, "tlbSpellPhrases", "DELETE"));
    ASSERT_EQ(phrases.Count(), 1);
    EXPECT_EQ(spells.Cell(2, 3), "last|");
    EXPECT_EQ(spells.Cell(2, 4), "1");
    ASSERT_TRUE(Click(*page, "tlbFormToolbar", "SAVE"));
    EXPECT_EQ(hub.ReadSetting("UserActions/Spells/Spells/Toad.tbl"),
              Crlf({"tSpell = {", "\t\"last\",", "}"}));
    EXPECT_EQ(hub.ReadSetting("UserActions/Spells/Spells/Frog.tbl"), kFrog);
    EXPECT_NE(transcript.str().find("message: Cannot delete: There must be a minimum of one "
                                    "Spell Phrase"),
              std::string::npos);
}

}  // namespace
}  // namespace qb::pages
