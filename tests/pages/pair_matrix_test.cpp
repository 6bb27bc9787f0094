// The pair matrices over files that a drive can't easily lay out: a matrix carried through a
// change of the hub's profiles, the two writers of the mass message file, and the smallest hub.

#include <gtest/gtest.h>

#include <filesystem>

#include "pages/communication/communication.h"
#include "store/table_text.h"
#include "support/page_harness.h"

namespace qb::pages {
namespace {

using test::Crlf;

class PairMatrices : public ::testing::Test, protected test::PageHarness {
  protected:
    PairMatrices() {
        for (const char* folder : {"Communication/Talk", "Communication/Mute",
                                   "Communication/MassMessage", "Security/Flood"}) {
            std::filesystem::create_directories(hub.Settings() / folder);
        }
    }

    void Profiles(std::initializer_list<const char*> names) {
        std::string xml = "<Profiles>\r\n";
        for (const char* name : names)
            xml += "\t<Name>" + std::string(name) + "</Name>\r\n";
        hub.Write("cfg/Profiles.xml", xml + "</Profiles>\r\n");
    }

    std::string Build(const PairMatrix& matrix, int lastProfile, bool indexing = true) {
        store::BuildRun run{files, lastProfile, store::kBuildVersion};
        files.SetIndexing(indexing);
        BuildPairMatrix(matrix, run);
        return hub.ReadSetting(Slashed(matrix.commands.front().file.file));
    }

    static std::string Slashed(std::string file) {
        for (char& c : file)
            if (c == '\\') c = '/';
        return file;
    }

    // The page's rows as "By|On|Allow" texts.
    static std::vector<std::string> Rows(const shell::Page& page) {
        const auto* list = static_cast<const shell::ListControl*>(page.Find("lvwPermissions"));
        std::vector<std::string> rows;
        for (const auto& row : list->Rows())
            rows.push_back(row.cells[0] + "|" + row.cells[1] + "|" + row.cells[2]);
        return rows;
    }

    // SAVE is enabled by a change only: a cell flipped and flipped back.
    void SaveUnchanged(shell::Page& page) {
        ASSERT_TRUE(Click(page, "tlbListview", "EDIT"));
        ASSERT_TRUE(Click(page, "tlbListview", "EDIT"));
        ASSERT_TRUE(Click(page, "tlbFormToolbar", "SAVE"));
    }
};

TEST_F(PairMatrices, ARebuildCarriesEachCellByItsTwoNumbersAndDropsLostNumbers) {
    hub.WriteSetting("Communication/Mute/Mute.tbl",
                     Crlf({"tMute = {", "\t[-1] = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t},",
                           "\t[0] = {", "\t\t[-1] = 0,", "\t\t[0] = 5,", "\t},", "}"}));
    // A third number joins: its group and its rows start at 0; the old values, even one that
    // isn't a flag, are copied as read.
    EXPECT_EQ(Build(MuteMatrix(), 1),
              Crlf({"tMute = {", "\t[-1] = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t\t[1] = 0,",
                    "\t},", "\t[0] = {", "\t\t[-1] = 0,", "\t\t[0] = 5,", "\t\t[1] = 0,", "\t},",
                    "\t[1] = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t\t[1] = 0,", "\t},", "}"}));
    // The hub loses its last profile: number 1 goes from every group.
    EXPECT_EQ(Build(MuteMatrix(), 0),
              Crlf({"tMute = {", "\t[-1] = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t},", "\t[0] = {",
                    "\t\t[-1] = 0,", "\t\t[0] = 5,", "\t},", "}"}));
}

TEST_F(PairMatrices, TheIndexAndTheScannerBuildAHandEditedFileAlike) {
    // A group written twice, keys before their table's header, and a blank line, which ends
    // every read behind it: the index must answer as the scan does.
    const std::string old = Crlf(
        {"Banner = 1,", "tMassMessageSettings = {", "\ttEnabledPassiveProfiles = {", "\t\t[0] = 1,",
         "\t},", "\t[0] = {", "\t\t[-1] = 1,", "\t\tAll = 1,", "\t},", "\t[0] = {", "\t\t[0] = 1,",
         "\t},", "\t[-1] = {", "\t\t[\"Passive\"] = 1,", "", "\t\t[0] = 1,", "\t},", "}"});
    hub.WriteSetting("Communication/MassMessage/MassMessageSettings.tbl", old);
    const std::string indexed = Build(MassMessageMatrix(), 1);
    EXPECT_EQ(indexed, Crlf({"tMassMessageSettings = {",
                             "\ttEnabledPassiveProfiles = {",
                             "\t\t[-1] = 1,",
                             "\t\t[0] = 1,",
                             "\t\t[1] = 0,",
                             "\t},",
                             "\t[-1] = {",
                             "\t\t[-1] = 0,",
                             "\t\t[0] = 0,",
                             "\t\t[1] = 0,",
                             "\t\tBanner = 0,",
                             "\t\tAll = 0,",
                             "\t\tPassive = 1,",
                             "\t\tOperator = 0,",
                             "\t},",
                             "\t[0] = {",
                             "\t\t[-1] = 1,",
                             "\t\t[0] = 1,",
                             "\t\t[1] = 0,",
                             "\t\tBanner = 0,",
                             "\t\tAll = 1,",
                             "\t\tPassive = 1,",
                             "\t\tOperator = 0,",
                             "\t},",
                             "\t[1] = {",
                             "\t\t[-1] = 0,",
                             "\t\t[0] = 0,",
                             "\t\t[1] = 0,",
                             "\t\tBanner = 0,",
                             "\t\tAll = 0,",
                             "\t\tPassive = 0,",
                             "\t\tOperator = 0,",
                             "\t},",
                             "}"}));
    hub.WriteSetting("Communication/MassMessage/MassMessageSettings.tbl", old);
    EXPECT_EQ(Build(MassMessageMatrix(), 1, false), indexed);
}

TEST_F(PairMatrices, AFreshTalkFileShowsNoForTheUnregisteredUntilTheFirstSaveWritesThem) {
    Profiles({"Master"});
    container.LoadProfiles();
    EXPECT_EQ(Build(TalkMatrix(), 0), Crlf({"tTalk = {", "\t[-1] = {", "\t\t[0] = 0,", "\t},",
                                            "\t[0] = {", "\t\t[0] = 0,", "\t},", "}"}));
    hub.WriteSetting("Communication/Talk/Talk.tbl",
                     Crlf({"tTalk = {", "\t[-1] = {", "\t\t[0] = 1,", "\t},", "\t[0] = {",
                           "\t\t[0] = 1,", "\t},", "}"}));
    shell::Page* page = container.OpenFunctionPage("Communication~Talk");
    ASSERT_NE(page, nullptr);
    const std::vector<std::string> shown = {"Unregistered|Unregistered|No", "|Master|Yes",
                                            "Master|Unregistered|No", "|Master|Yes"};
    EXPECT_EQ(Rows(*page), shown);
    SaveUnchanged(*page);
    EXPECT_EQ(hub.ReadSetting("Communication/Talk/Talk.tbl"),
              Crlf({"tTalk = {", "\t[-1] = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "\t[0] = {",
                    "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "}"}));
    EXPECT_EQ(Rows(*page), shown);
}

TEST_F(PairMatrices, CellsPastLineFiveThousandReadNoAndARebuildResetsThem) {
    // 70 profile rows make a file of 2 + 70 * 72 lines: the last group's rows run past line
    // 5000, where every one-key read of the scripts' files ends.
    store::TableText text("tMute = {");
    for (int by = -1; by <= 68; ++by) {
        text.Open(1, "[" + std::to_string(by) + "]");
        for (int on = -1; on <= 68; ++on)
            text.Row(2, on, "1");
        text.Close(1);
    }
    hub.WriteSetting("Communication/Mute/Mute.tbl", text.End() + "\r\n");
    const std::string built = Build(MuteMatrix(), 68);
    // Group 67 ends on line 4969 and keeps every cell.
    EXPECT_NE(built.find("\t\t[68] = 1,\r\n\t},\r\n\t[68] = {\r\n"), std::string::npos);
    // Group 68 opens on line 4970; its rows from line 5001 on, On 29 and after, read empty.
    const size_t group = built.find("\t[68] = {");
    ASSERT_NE(group, std::string::npos);
    EXPECT_NE(built.find("\t\t[28] = 1,\r\n\t\t[29] = 0,", group), std::string::npos);
    EXPECT_EQ(built.find("= 1,", built.find("[29] = 0,", group)), std::string::npos);
}

TEST_F(PairMatrices, AHubOfUnregisteredAloneHasOneRowAndOneGroup) {
    container.LoadProfiles();
    shell::Page* page = container.OpenFunctionPage("Security~Flooder");
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(Rows(*page), std::vector<std::string>{"Unregistered|Unregistered|No"});
    SaveUnchanged(*page);
    EXPECT_EQ(hub.ReadSetting("Security/Flood/FloodSettings.tbl"),
              Crlf({"tFloodSettings = {", "\t[-1] = {", "\t\t[-1] = 0,", "\t},", "}"}));
}

TEST_F(PairMatrices, TheMassMessageWordsReadAlikeFromBothWritersAndThePageDropsOperator) {
    Profiles({"Master"});
    container.LoadProfiles();
    hub.WriteSetting("Communication/MassMessage/MassMessageSettings.tbl",
                     Crlf({"tMassMessageSettings = {",
                           "\ttEnabledPassiveProfiles = {",
                           "\t\t[-1] = 0,",
                           "\t\t[0] = 1,",
                           "\t},",
                           "\t[-1] = {",
                           "\t\t[-1] = 0,",
                           "\t\t[0] = 0,",
                           "\t\tBanner = 1,",
                           "\t\tAll = 0,",
                           "\t\tPassive = 0,",
                           "\t\tOperator = 1,",
                           "\t},",
                           "\t[0] = {",
                           "\t\t[-1] = 1,",
                           "\t\t[0] = 0,",
                           "\t\tBanner = 0,",
                           "\t\tAll = 1,",
                           "\t\tPassive = 1,",
                           "\t\tOperator = 1,",
                           "\t},",
                           "}"}));
    // What the builder would write from the same file: it keeps Operator.
    const std::string builderForm = Build(MassMessageMatrix(), 0);
    EXPECT_EQ(builderForm, hub.ReadSetting("Communication/MassMessage/MassMessageSettings.tbl"));

    shell::Page* page = container.OpenFunctionPage("Communication~MassMessage");
    ASSERT_NE(page, nullptr);
    const std::vector<std::string> fromBuilder = Rows(*page);
    EXPECT_EQ(fromBuilder,
              (std::vector<std::string>{"Unregistered|Unregistered|No", "|Master|No", "|Passive|No",
                                        "|Banner|Yes", "|All|No", "Master|Unregistered|Yes",
                                        "|Master|No", "|Passive|Yes", "|Banner|No", "|All|Yes"}));
    SaveUnchanged(*page);
    EXPECT_EQ(hub.ReadSetting("Communication/MassMessage/MassMessageSettings.tbl"),
              Crlf({"tMassMessageSettings = {",
                    "\ttEnabledPassiveProfiles = {",
                    "\t\t[-1] = 0,",
                    "\t\t[0] = 1,",
                    "\t},",
                    "\t[-1] = {",
                    "\t\t[-1] = 0,",
                    "\t\t[0] = 0,",
                    "\t\t[\"Passive\"] = 0,",
                    "\t\t[\"Banner\"] = 1,",
                    "\t\t[\"All\"] = 0,",
                    "\t},",
                    "\t[0] = {",
                    "\t\t[-1] = 1,",
                    "\t\t[0] = 0,",
                    "\t\t[\"Passive\"] = 1,",
                    "\t\t[\"Banner\"] = 0,",
                    "\t\t[\"All\"] = 1,",
                    "\t},",
                    "}"}));
    EXPECT_EQ(Rows(*page), fromBuilder);
}

}  // namespace
}  // namespace qb::pages
