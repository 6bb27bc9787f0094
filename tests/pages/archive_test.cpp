// The archive's files through a rebuild as version 6, and what its pages make of them that the
// drive cases can't easily show.

#include <gtest/gtest.h>

#include <array>

#include "support/area_rebuild.h"
#include "support/page_harness.h"

namespace qb::pages {
namespace {

using test::Crlf;

constexpr store::ProgramVersion kSix{6, 0, 0};

class ArchiveRebuild : public test::AreaRebuild {
  protected:
    ArchiveRebuild() : AreaRebuild(store::Area::Archive, "TheVellum/") { version = kSix; }
};

// A week file as the page writes it: the change time bare, `rows` rows.
std::string PageWeekFile(int rows) {
    std::string text =
        "tHyperlinkItemOfTheWeek = {\r\n\tbEnabled = 0,\r\n"
        "\tsChangeTime = Sunday 17:59,\r\n";
    for (int n = 1; n <= rows; ++n) {
        text += "\t[" + std::to_string(n) + "] = {\r\n\t\tsTime = \"MON 0" +
                std::to_string(n % 10) + ":00\",\r\n\t\tbInMain = " + std::to_string(n % 2) +
                ",\r\n\t},\r\n";
    }
    return text + "}\r\n";
}

TEST_F(ArchiveRebuild, ANewTreeHasHyperlinksFilesInTheBuildersOrderAndTheOtherKindsWeekFiles) {
    Rebuild(3);
    // Only Hyperlink has permission files and data tables; every kind has its week and new
    // items files, the other five in Hyperlink's text, so that each week page opens.
    for (const char* kind : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade"}) {
        const std::string folder = std::string(kind) + "/";
        EXPECT_EQ(Read(folder + kind + "ItemOfTheWeek.tbl"),
                  Crlf({"t" + std::string(kind) + "ItemOfTheWeek = {", "\tbEnabled = 1,",
                        "\tsChangeTime = \"SUN 17:59\",", "\t[1] = {", "\t\tsTime = \"SUN 18:00\",",
                        "\t\tbInMain = 0,", "\t},", "}"}));
        EXPECT_EQ(Read(folder + kind + "NewItems.tbl"),
                  Crlf({"t" + std::string(kind) + "NewItems = {", "\tbEnableNewItems = 1,",
                        "\tiNumberOfNewItems = 5,", "}"}));
        EXPECT_EQ(hub.SettingsTree(std::string("TheVellum/") + kind).size(), 2u) << kind;
    }
    EXPECT_EQ(Read("Hyperlink/HyperlinkEnableSubmit.tbl"),
              Crlf({"tHyperlinkEnableSubmit = {", "\t[-1] = \"0\",", "\t[0] = \"0\",",
                    "\t[1] = \"0\",", "}"}));
    EXPECT_EQ(Read("Hyperlink/HyperlinkRCEnableVoting.tbl"),
              Crlf({"tHyperlinkRCEnableVoting = {", "\t[-1] = \"0\",", "\t[0] = \"0\",",
                    "\t[1] = \"0\",", "}"}));
    EXPECT_EQ(Read("Hyperlink/HyperlinkVoteNick.tbl"), Crlf({"tHyperlinkVoteNick = {", "}"}));
    EXPECT_EQ(hub.SettingsTree("TheVellum/Hyperlink").size(), 2u + 5 + 4 + 7);
}

// The page writes a permission file two tabs deep, bare, with a brace too many and, for a
// right click, without RC in its table's name: read by key over the whole file, every cell
// survives; a new profile starts at 0, and the number the hub lost goes.
TEST_F(ArchiveRebuild, APermissionFileThePageWroteKeepsEveryCellByProfileNumber) {
    const std::string pageForm = Crlf({"tHyperlinkEnableCategory = {", "\t\t[-1] = 1,",
                                       "\t\t[0] = 0,", "\t\t[1] = 1,", "\t},", "}"});
    Write("Hyperlink/HyperlinkRCEnableCategory.tbl", pageForm);
    Write("Hyperlink/HyperlinkEnableClear.tbl", pageForm);
    Rebuild(4);
    const std::string kept =
        Crlf({"\t[-1] = \"1\",", "\t[0] = \"0\",", "\t[1] = \"1\",", "\t[2] = \"0\",", "}"});
    EXPECT_EQ(Read("Hyperlink/HyperlinkRCEnableCategory.tbl"),
              "tHyperlinkRCEnableCategory = {\r\n" + kept);
    EXPECT_EQ(Read("Hyperlink/HyperlinkEnableClear.tbl"), "tHyperlinkEnableClear = {\r\n" + kept);
    Rebuild(2);
    EXPECT_EQ(Read("Hyperlink/HyperlinkRCEnableCategory.tbl"),
              Crlf({"tHyperlinkRCEnableCategory = {", "\t[-1] = \"1\",", "\t[0] = \"0\",", "}"}));
}

// The page loads up to 500 rows; the builder keeps the first 50, quotes the change time the page
// wrote bare, and leaves the other values as they were. The data tables the scripts fill and a
// new items number outside the spin's range stay as they are.
TEST_F(ArchiveRebuild, TheWeekFileKeepsFiftyRowsAndTheChangeTimeGoesInQuotes) {
    Write("Hyperlink/HyperlinkItemOfTheWeek.tbl", PageWeekFile(501));
    Write("Hyperlink/HyperlinkNewItems.tbl",
          Crlf({"tHyperlinkNewItems = {", "\tbEnableNewItems = 0,", "\tiNumberOfNewItems = 99,",
                "}"}));
    const std::string scripts = Crlf({"tHyperlinkItems = {", "\t[1] = \"x\",", "}"});
    Write("Hyperlink/HyperlinkItems.tbl", scripts);
    Rebuild(3);
    const std::string week = Read("Hyperlink/HyperlinkItemOfTheWeek.tbl");
    EXPECT_TRUE(week.starts_with(
        Crlf({"tHyperlinkItemOfTheWeek = {", "\tbEnabled = 0,", "\tsChangeTime = \"Sunday 17:59\",",
              "\t[1] = {", "\t\tsTime = \"MON 01:00\",", "\t\tbInMain = 1,"})))
        << week;
    EXPECT_NE(
        week.find("\t[50] = {\r\n\t\tsTime = \"MON 00:00\",\r\n\t\tbInMain = 0,\r\n\t},\r\n}"),
        std::string::npos);
    EXPECT_EQ(week.find("[51]"), std::string::npos);
    EXPECT_EQ(Read("Hyperlink/HyperlinkNewItems.tbl"),
              Crlf({"tHyperlinkNewItems = {", "\tbEnableNewItems = 0,", "\tiNumberOfNewItems = 99,",
                    "}"}));
    EXPECT_EQ(Read("Hyperlink/HyperlinkItems.tbl"), scripts);
    // A second rebuild changes nothing more.
    const auto tree = hub.SettingsTree("TheVellum");
    Rebuild(3);
    EXPECT_EQ(hub.SettingsTree("TheVellum"), tree);
}

class WeekPage : public ::testing::Test, protected test::PageHarness {
  protected:
    WeekPage() : PageHarness(kSix) { BuildFor(4, store::Area::Archive); }
};

// What each dialog of the week page is handed, which a drive's output doesn't show: the edits
// open on the row's values and the change time's, both titled " Announcement" with no Add; the
// add dialog lets Add through. Every field is needed.
TEST_F(WeekPage, EachDialogOpensOnItsValues) {
    shell::Page* page = container.Open("Hyperlink~LinkOfTheWeek");
    host.QueueDialog({"Cancel", {}});
    host.QueueDialog({"Cancel", {}});
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Click(*page, "tlbWeek", "EDIT"));
    ASSERT_TRUE(Click(*page, "tlbChangeTime", "EDIT"));
    ASSERT_TRUE(Click(*page, "tlbWeek", "NEW"));
    const struct {
        shell::DialogKind kind;
        std::string caption;
        std::array<std::string, 4> values;
        size_t combos;
        int required;
    } expected[] = {
        {shell::DialogKind::FourCombos,
         " Announcement",
         {"Sunday", "18", "00", "Private Message"},
         4,
         5},
        {shell::DialogKind::ThreeCombos, " Announcement", {"Sunday", "17", "59", ""}, 3, 5},
        {shell::DialogKind::FourCombos, "Add Announcement", {}, 4, 6},
    };
    ASSERT_EQ(host.requests.size(), std::size(expected));
    for (size_t i = 0; i < std::size(expected); ++i) {
        SCOPED_TRACE(i);
        const shell::DialogRequest& request = host.requests[i];
        EXPECT_EQ(request.kind, expected[i].kind);
        EXPECT_EQ(request.caption, expected[i].caption);
        EXPECT_EQ(request.values, expected[i].values);
        EXPECT_EQ(request.required, expected[i].required);
        ASSERT_EQ(request.comboItems.size(), expected[i].combos);
        EXPECT_EQ(request.comboItems[0].front(), "Sunday");
        EXPECT_EQ(request.comboItems[1].size(), 24u);
        EXPECT_EQ(request.comboItems[2].back(), "59");
    }
    EXPECT_EQ(host.requests[0].comboItems[3],
              (std::vector<std::string>{"Main Chat", "Private Message"}));
    EXPECT_FALSE(page->SaveRequired());
}

}  // namespace
}  // namespace qb::pages
