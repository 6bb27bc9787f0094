// Each reader's own split, trim and failure, over real files in a temporary hub.

#include <gtest/gtest.h>

#include <filesystem>

#include "store/fatal_error.h"
#include "store/line_reader.h"
#include "store/paths.h"
#include "store/table_files.h"
#include "support/temp_hub.h"

namespace qb::store {
namespace {

using test::Crlf;

class Readers : public ::testing::Test {
  protected:
    test::TempHub hub;
    TableFiles files{hub.ProgramFolder()};
};

// ---- ReadTableValue -------------------------------------------------------------------------

TEST_F(Readers, ReadTableValueKeepsAValueHoldingEqualsWhole) {
    hub.WriteSetting("a.tbl", Crlf({"tA = {", "\tsKey = \"a=b\",", "}"}));
    EXPECT_EQ(files.ReadTableValue("a.tbl", "sKey", "tA"), "a=b");
}

TEST_F(Readers, ReadTableValueNeverLeavesTheNamedTable) {
    hub.WriteSetting("t.tbl", Crlf({"tA = {", "\tx = 1,", "\ttB = {", "\t\ty = 2,", "\t},",
                                    "\ttC = {", "\t\tx = 3,", "\t},", "}"}));
    EXPECT_EQ(files.ReadTableValue("t.tbl", "x", "tB"), "3");  // tB has no x; tC's is found
    EXPECT_EQ(files.ReadTableValue("t.tbl", "y", "tB"), "2");
    EXPECT_EQ(files.ReadTableValue("t.tbl", "y", "tC"), "");  // before the header: not found
    EXPECT_EQ(files.ReadTableValue("t.tbl", "x", ""), "1");   // no table: the first line wins
}

TEST_F(Readers, ReadTableValueStopsAtABlankLineOrALineWithoutEquals) {
    hub.WriteSetting("b.tbl", Crlf({"tA = {", "\ta = 1,", "", "\tb = 2,", "}"}));
    EXPECT_EQ(files.ReadTableValue("b.tbl", "a", "tA"), "1");
    EXPECT_EQ(files.ReadTableValue("b.tbl", "b", "tA"), "");
    hub.WriteSetting("c.tbl", Crlf({"tA = {", "\t-- a comment", "\tb = 2,", "}"}));
    EXPECT_EQ(files.ReadTableValue("c.tbl", "b", "tA"), "");
    hub.WriteSetting("d.tbl", Crlf({"tA = {", "\ttB = {", "\t},", "\tb = 2,", "}"}));
    EXPECT_EQ(files.ReadTableValue("d.tbl", "b", "tA"), "2");  // closing lines never fail
}

TEST_F(Readers, ReadTableValueFindsNumberedKeysAndHeadersWithATrailingBlank) {
    hub.WriteSetting("p.tbl", Crlf({"tP = { ", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                                    "\t\t[0] = 0,", "\t},", "}"}));
    EXPECT_EQ(files.ReadTableValue("p.tbl", "-1", "tEnabledProfiles"), "1");
    EXPECT_EQ(files.ReadTableValue("p.tbl", "0", "tEnabledProfiles"), "0");
    EXPECT_EQ(files.ReadTableValue("p.tbl", "1", "tEnabledProfiles"), "");
    EXPECT_EQ(files.ReadTableValue("p.tbl", "tEnabledProfiles", ""), "");  // a header is no value
}

TEST_F(Readers, ReadTableValueReadsFiveThousandLinesAndNotOneMore) {
    std::string text = "tA = {\r\n";
    for (int i = 2; i <= 5001; ++i)
        text += "\tk" + std::to_string(i) + " = " + std::to_string(i) + ",\r\n";
    hub.WriteSetting("long.tbl", text);
    EXPECT_EQ(files.ReadTableValue("long.tbl", "k5000", "tA"), "5000");
    EXPECT_EQ(files.ReadTableValue("long.tbl", "k5001", "tA"), "");
}

TEST_F(Readers, ReadTableValueOfAMissingFileOrFolderIsEmpty) {
    EXPECT_EQ(files.ReadTableValue("Nowhere\\x.tbl", "a", "tA"), "");
    hub.WriteSetting("a.tbl", Crlf({"tA = {", "\ta = 1,", "}"}));
    EXPECT_EQ(files.ReadTableValue("A.TBL", "a", "tA"), "1");  // names don't care for case
}

TEST_F(Readers, ReadTableValueUsesADrivePathAsItStands) {
    hub.Write("elsewhere/x.tbl", Crlf({"tX = {", "\ta = 7,", "}"}));
    const std::string absolute = ToScriptPath(hub.Root() / "elsewhere" / "x.tbl");
    EXPECT_EQ(files.ReadTableValue(absolute, "a", "tX"), "7");
    hub.Write("scripts/app.tbl", Crlf({"tApp = {", "\ta = 8,", "}"}));
    EXPECT_EQ(files.ReadTableValue("app.tbl", "a", "tApp", true), "8");
}

TEST_F(Readers, LinesEndAtCarriageReturnsAndLoneLineFeeds) {
    hub.WriteSetting("lf.tbl", "tA = {\n\ta = 1,\n\tb = 2,\r\tc = 3,\n}\n");
    EXPECT_EQ(files.ReadTableValue("lf.tbl", "a", "tA"), "1");
    EXPECT_EQ(files.ReadTableValue("lf.tbl", "b", "tA"), "2");
    EXPECT_EQ(files.ReadTableValue("lf.tbl", "c", "tA"), "3");
}

// A read scope takes a file at once; its lines must end where one line at a time ends them.
TEST(LineReaderWhole, EndsEveryLineWhereTheLineByLineReadDoes) {
    using namespace std::string_literals;
    for (const std::string& bytes :
         {""s, "a"s, "a\n"s, "a\r\n"s, "a\r"s, "\n\n"s, "\r\n\r\n"s, "a\r\rb"s, "a\n\rb\r\n"s,
          "a\0b\r\nc"s, "x\r\n\n\ry"s, std::string(70000, 'z') + "\r\nend",
          // A carriage return at the end of one read and its line feed at the start of the next.
          std::string(65535, 'a') + "\r\nb", std::string(65535, 'a') + "\r\rb",
          std::string(65535, 'a') + "\r"}) {
        const auto reader = [&] {
            std::FILE* stream = fmemopen(const_cast<char*>(bytes.data()), bytes.size(), "rb");
            return LineReader::Adopt(stream);
        };
        std::vector<std::string> oneByOne;
        auto first = reader();
        for (std::string line; first->Next(line);)
            oneByOne.push_back(line);
        std::vector<std::string> whole;
        reader()->ReadAll(whole);
        EXPECT_EQ(whole, oneByOne) << testing::PrintToString(bytes.substr(0, 20));
        // A read that needs only the first lines stops after them.
        std::vector<std::string> first2;
        reader()->ReadAll(first2, 2);
        oneByOne.resize(std::min<size_t>(oneByOne.size(), 2));
        EXPECT_EQ(first2, oneByOne) << testing::PrintToString(bytes.substr(0, 20));
    }
}

// ---- ReadTableFlag --------------------------------------------------------------------------

TEST_F(Readers, ReadTableFlagCutsAValueAtTheSecondEquals) {
    hub.WriteSetting("f.tbl",
                     Crlf({"tAll = {", "\ttOne = {", "\t\tbOn = 1,", "\t\tsText = \"a=b\",", "\t},",
                           "\ttTwo = {", "\t\tbOn = 0,", "\t},", "}"}));
    EXPECT_EQ(files.ReadTableFlag("f.tbl", "tTwo", "bOn"), "0");
    EXPECT_EQ(files.ReadTableFlag("f.tbl", "tOne", "sText"), "a");
    EXPECT_TRUE(files.ReadTableFlagIsOne("f.tbl", "tOne", "bOn"));
    EXPECT_FALSE(files.ReadTableFlagIsOne("f.tbl", "tTwo", "bOn"));
    EXPECT_EQ(files.ReadTableFlag("f.tbl", "tTwo", "missing"), "");
}

TEST_F(Readers, ReadTableFlagSkipsOneFailingLineAndEndsTheProgramAtTheSecond) {
    hub.WriteSetting("one.tbl", Crlf({"tA = {", "", "\tbOn = 1,", "}"}));
    EXPECT_EQ(files.ReadTableFlag("one.tbl", "tA", "bOn"), "1");
    hub.WriteSetting("two.tbl", Crlf({"tA = {", "", "", "\tbOn = 1,", "}"}));
    EXPECT_THROW(files.ReadTableFlag("two.tbl", "tA", "bOn"), FatalError);
    EXPECT_THROW(files.ReadTableFlag("missing.tbl", "tA", "bOn"), FatalError);
}

// ---- LoadTableRows --------------------------------------------------------------------------

TEST_F(Readers, LoadTableRowsCutsAValueHoldingTheDelimiter) {
    hub.WriteSetting("k.tbl",
                     Crlf({"tA = {", "\t[\"one\"] = \"a=b\",", "\t[\"two\"] = \"c\",", "}"}));
    const auto rows = files.LoadTableRows("k.tbl", "=", "tA", false, false);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].text, "one");
    EXPECT_EQ(rows[0].value, "a");  // between the first two "=", opening quote trimmed
    EXPECT_EQ(rows[1].value, "c");
    EXPECT_TRUE(rows[0].key.starts_with("1*") && rows[0].key.ends_with("ID"));
    EXPECT_TRUE(rows[1].key.starts_with("2*"));
    EXPECT_NE(rows[0].key, rows[1].key);
}

TEST_F(Readers, LoadTableRowsNumbersKeysAfterTheRowsAListHoldsAlready) {
    hub.WriteSetting("k.tbl", Crlf({"tA = {", "\t[\"x\"] = 1,", "}"}));
    EXPECT_TRUE(files.LoadTableRows("k.tbl", "=", "tA", false, false, 7)[0].key.starts_with("8*"));
}

TEST_F(Readers, AnEmptySubTableShowsTheRowsOfTheTableBehindIt) {
    hub.WriteSetting(
        "n.tbl", Crlf({"tNews = {", "},", "tOther = {", "\t[1] = \"first\",", "\t[2] = \"second\",",
                       "},", "tThird = {", "\t[3] = \"no\",", "}"}));
    const auto rows = files.LoadTableRows("n.tbl", "=", "tNews", false, false);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].value, "first");
    EXPECT_EQ(rows[1].value, "second");
}

TEST_F(Readers, ANestedCloseEndsTheTableForLoadTableRows) {
    hub.WriteSetting("s.tbl", Crlf({"tA = {", "\ttSub = {", "\t\t[\"in\"] = 1,", "\t},",
                                    "\t[\"after\"] = 2,", "}"}));
    const auto rows = files.LoadTableRows("s.tbl", "=", "tA", false, false);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].text, "in");
}

TEST_F(Readers, TheLowercaseTRuleOnTheKeyedPath) {
    // The raw line's last character decides: "cat" and "Cat" both end in a lowercase t.
    hub.WriteSetting("q.lst",
                     Crlf({"What purrs*cat", "What barks*Dog", "Big one*Cat", "Loud*CAT"}));
    const auto rows = files.LoadTableRows("q.lst", "*", "", false, false);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].text, "What barks");
    EXPECT_EQ(rows[1].value, "CAT");
    hub.WriteSetting("c.tbl", Crlf({"tA = {", "\t[\"x\"] = \"cat\",", "}"}));
    EXPECT_EQ(files.LoadTableRows("c.tbl", "=", "tA", false, false).size(), 1u);  // comma behind
}

TEST_F(Readers, TheLowercaseTRuleOnTheBarePath) {
    hub.WriteSetting("b.tbl",
                     Crlf({"tJokes = {", "\t\"with comma\",", "\tunquoted cat", "\tCAT", "}"}));
    const auto rows = files.LoadTableRows("b.tbl", "", "tJokes", false, false);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].text, "with comma");
    EXPECT_EQ(rows[0].key, "1ID");
    EXPECT_EQ(rows[1].text, "CAT");
    EXPECT_EQ(rows[1].key, "2ID");
    // Without a table no line's end is tested.
    const auto all = files.LoadTableRows("b.tbl", "", "", false, false);
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(all[0].text, "tJokes = {");
    EXPECT_EQ(all[2].text, "unquoted cat");
}

TEST_F(Readers, LoadTableRowsSkipsOneLineWithoutDelimiterAndEndsTheProgramAtTheSecond) {
    hub.WriteSetting("one.lst", Crlf({"a*1", "no star here", "b*2"}));
    EXPECT_EQ(files.LoadTableRows("one.lst", "*", "", false, false).size(), 2u);
    hub.WriteSetting("two.lst", Crlf({"a*1", "no star", "b*2", "nor here"}));
    EXPECT_THROW(files.LoadTableRows("two.lst", "*", "", false, false), FatalError);
    EXPECT_TRUE(files.LoadTableRows("missing.lst", "*", "", false, false).empty());
}

TEST_F(Readers, LoadTableRowsKeepsBracketsWhenAsked) {
    hub.WriteSetting("r.tbl", Crlf({"tRules = {", "\t[\"[Rules]\"] = 1,", "\t[2] = 0,", "}"}));
    const auto kept = files.LoadTableRows("r.tbl", "=", "tRules", false, true);
    ASSERT_EQ(kept.size(), 2u);
    EXPECT_EQ(kept[0].text, "[Rules]");
    EXPECT_EQ(kept[1].text, "[2]");
    EXPECT_EQ(files.LoadTableRows("r.tbl", "=", "tRules", false, false)[0].text, "Rules");
}

// ---- ApplyTableValues and LoadFileNameRows --------------------------------------------------

TEST_F(Readers, ApplyTableValuesGivesEveryKeyedLineButHeaderAndClose) {
    hub.WriteSetting("l.tbl",
                     Crlf({"tLang = {", "\tsHello = \"Hi=there\",", "\t-- no equals", "},"}));
    const auto values = files.ApplyTableValues("l.tbl", "tLang");
    ASSERT_EQ(values.size(), 1u);
    EXPECT_EQ(values[0].key, "sHello");
    EXPECT_EQ(values[0].value, "Hi");
    EXPECT_THROW(files.ApplyTableValues("missing.tbl", "tLang"), FatalError);
}

TEST_F(Readers, LoadFileNameRowsCutsTheKnownExtensions) {
    hub.WriteSetting("f.tbl",
                     Crlf({"tJokeFiles = {", "\t[\"Jokes.tbl\"] = 1,", "\t[\"Dad.lst\"] = 1,",
                           "\t[\"Notes.txt\"] = 1,", "\t[\"Art.asc\"] = 1,", "", "}"}));
    EXPECT_EQ(files.LoadFileNameRows("f.tbl", "tJokeFiles"),
              (std::vector<std::string>{"Jokes", "Dad", "Notes", "Art.asc"}));
    EXPECT_TRUE(files.LoadFileNameRows("missing.tbl", "tJokeFiles").empty());
}

// ---- ReadTextFile ---------------------------------------------------------------------------

TEST_F(Readers, ReadTextFileClosesEveryLineWithCrlf) {
    hub.WriteSetting("art.asc", "one\ntwo\r\nthree");
    EXPECT_EQ(files.ReadTextFile("art.asc"), "one\r\ntwo\r\nthree\r\n");
    EXPECT_EQ(files.ReadTextFile("missing.asc"), "");
}

TEST_F(Readers, ReadTextFileAtLine5001LeavesTheFileSlotTaken) {
    std::string text;
    for (int i = 1; i <= 5000; ++i)
        text += "line\r\n";
    hub.WriteSetting("fits.txt", text);
    hub.WriteSetting("over.txt", text + "one more\r\n");
    hub.WriteSetting("a.tbl", Crlf({"tA = {", "\ta = 1,", "}"}));
    EXPECT_EQ(files.ReadTextFile("fits.txt").size(), 5000u * 6);
    EXPECT_FALSE(files.SlotStuck());

    EXPECT_EQ(files.ReadTextFile("over.txt"), "");
    EXPECT_TRUE(files.SlotStuck());
    // Every later open fails as for a missing file, until the program ends.
    EXPECT_EQ(files.ReadTextFile("fits.txt"), "");
    EXPECT_EQ(files.ReadTableValue("a.tbl", "a", "tA"), "");
    EXPECT_TRUE(files.LoadTableRows("a.tbl", "=", "tA", false, false).empty());
    EXPECT_THROW(files.ReadTableFlag("a.tbl", "tA", "a"), FatalError);
    EXPECT_THROW(files.WriteTextFile("a.tbl", "tA = {\r\n}"), FatalError);
    EXPECT_EQ(hub.ReadSetting("a.tbl"), Crlf({"tA = {", "\ta = 1,", "}"}));
}

}  // namespace
}  // namespace qb::store
