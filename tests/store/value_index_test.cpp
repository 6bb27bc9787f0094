// The index behind one-key reads must answer exactly as scanning the file for each key does, and a
// read scope must never serve a file older than the last write.

#include "store/value_index.h"

#include <gtest/gtest.h>

#include <random>

#include "store/scanners.h"
#include "store/table_files.h"
#include "support/temp_hub.h"

namespace qb::store {
namespace {

// Lines drawn from the shapes table files take, and the shapes that stop a scan.
std::vector<std::string> RandomTable(std::mt19937& random, int count) {
    static const char* names[] = {"tA", "tB", "x", "y", "-1", "0", "[1]", "[\"x\"]", ""};
    static const char* values[] = {"1", "0", "\"a=b\"", "{", "}", "\"\"", "\"v\",", "x"};
    auto pick = [&](auto& options) {
        return std::string(options[random() % (sizeof options / sizeof options[0])]);
    };
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i) {
        switch (random() % 12) {
            case 0:
                lines.push_back(pick(names) + " = {");
                break;
            case 1:
                lines.push_back("\t},");
                break;
            case 2:
                lines.push_back(random() % 4 == 0 ? "" : "\tno equals here");
                break;
            default:
                lines.push_back(std::string(random() % 3, '\t') + pick(names) + " = " +
                                pick(values) + (random() % 2 ? "," : ""));
        }
    }
    return lines;
}

TEST(ValueIndex, AnswersAsTheScanForEveryKeyAndTable) {
    std::mt19937 random(20261122);
    const char* keys[] = {"tA", "tB", "x", "y", "-1", "0", "1", "[1]", "\"x\"", "", "missing"};
    for (int file = 0; file < 400; ++file) {
        const auto lines = RandomTable(random, 1 + static_cast<int>(random() % 40));
        const ValueIndex index(lines);
        for (const char* key : keys) {
            for (const char* table : keys) {
                LinesOf source(lines);
                ASSERT_EQ(index.Find(key, table), ScanTableValue(source, key, table))
                    << "file " << file << " key " << key << " table " << table;
            }
        }
    }
}

TEST(ValueIndex, StopsWhereTheScanStops) {
    std::vector<std::string> lines = {"tA = {"};
    for (int i = 2; i <= 5001; ++i)
        lines.push_back("\tk" + std::to_string(i) + " = 1,");
    const ValueIndex index(lines);
    EXPECT_EQ(index.Find("k5000", "tA"), "1");
    EXPECT_EQ(index.Find("k5001", "tA"), "");
    EXPECT_EQ(ValueIndex({"tA = {", "\ta = 1,", "", "\tb = 2,"}).Find("b", "tA"), "");
}

class Scope : public ::testing::Test {
  protected:
    test::TempHub hub;
    TableFiles files{hub.ProgramFolder()};
};

TEST_F(Scope, EveryReaderGivesWhatItGivesWithoutAScope) {
    std::mt19937 random(7);
    for (int file = 0; file < 50; ++file) {
        std::string text;
        for (const auto& line : RandomTable(random, 30))
            text += line + "\r\n";
        hub.WriteSetting("r.tbl", text);
        for (const char* table : {"", "tA", "tB"}) {
            TableFiles plain(hub.ProgramFolder());
            TableFiles scoped(hub.ProgramFolder());
            TableFiles::ReadScope scope(scoped);
            EXPECT_EQ(scoped.ReadTableValue("r.tbl", "x", table),
                      plain.ReadTableValue("r.tbl", "x", table));
            EXPECT_EQ(scoped.LoadFileNameRows("r.tbl", table),
                      plain.LoadFileNameRows("r.tbl", table));
            EXPECT_EQ(scoped.ReadTextFile("r.tbl"), plain.ReadTextFile("r.tbl"));
            try {
                const auto rows = plain.LoadTableRows("r.tbl", "=", table, false, false);
                const auto again = scoped.LoadTableRows("r.tbl", "=", table, false, false);
                ASSERT_EQ(rows.size(), again.size());
                for (size_t i = 0; i < rows.size(); ++i) {
                    EXPECT_EQ(rows[i].key, again[i].key);  // same generator, same order
                    EXPECT_EQ(rows[i].text, again[i].text);
                    EXPECT_EQ(rows[i].value, again[i].value);
                }
            } catch (const std::exception&) {
                EXPECT_ANY_THROW(scoped.LoadTableRows("r.tbl", "=", table, false, false));
            }
        }
    }
}

TEST_F(Scope, AWriteInsideTheScopeIsReadBack) {
    TableFiles::ReadScope scope(files);
    EXPECT_EQ(files.ReadTableValue("w.tbl", "a", "tW"), "");
    files.WriteTextFile("w.tbl", "tW = {\r\n\ta = 1,\r\n}");
    EXPECT_EQ(files.ReadTableValue("w.tbl", "a", "tW"), "1");
    files.WriteTextFile("W.TBL", "tW = {\r\n\ta = 2,\r\n}");  // the same file, by another case
    EXPECT_EQ(files.ReadTableValue("w.tbl", "a", "tW"), "2");
}

TEST_F(Scope, AFileMadeUnderAnotherCaseIsFoundByTheNextRead) {
    TableFiles::ReadScope scope(files);
    EXPECT_EQ(files.ReadTableValue("Sub\\file.tbl", "a", ""), "");
    files.CreateFolder(files.SettingsFolder() + "\\SUB");
    files.WriteTextFile("SUB\\FILE.tbl", "a = 3,");
    EXPECT_EQ(files.ReadTableValue("Sub\\file.tbl", "a", ""), "3");
}

TEST_F(Scope, ReadsTheFileOnceWhileTheScopeLives) {
    hub.WriteSetting("once.tbl", "tO = {\r\n\ta = 1,\r\n}\r\n");
    {
        TableFiles::ReadScope scope(files);
        EXPECT_EQ(files.ReadTableValue("once.tbl", "a", "tO"), "1");
        hub.WriteSetting("once.tbl", "tO = {\r\n\ta = 9,\r\n}\r\n");  // behind the manager's back
        EXPECT_EQ(files.ReadTableValue("once.tbl", "a", "tO"), "1");
    }
    EXPECT_EQ(files.ReadTableValue("once.tbl", "a", "tO"), "9");
}

TEST_F(Scope, WithTheIndexOffAScopeHoldsNothingAndEveryReadGoesToTheDisk) {
    // The benchmarks and the differential tests measure the index against this.
    hub.WriteSetting("once.tbl", "tO = {\r\n\ta = 1,\r\n}\r\n");
    files.SetIndexing(false);
    TableFiles::ReadScope scope(files);
    EXPECT_EQ(files.ReadTableValue("once.tbl", "a", "tO"), "1");
    hub.WriteSetting("once.tbl", "tO = {\r\n\ta = 9,\r\n}\r\n");
    EXPECT_EQ(files.ReadTableValue("once.tbl", "a", "tO"), "9");
    EXPECT_EQ(files.ReadTextFile("once.tbl"), "tO = {\r\n\ta = 9,\r\n}\r\n");
}

TEST_F(Scope, ATakenFileSlotFailsReadsInsideTheScopeToo) {
    std::string text;
    for (int i = 0; i < 5001; ++i)
        text += "x\r\n";
    hub.WriteSetting("long.txt", text);
    hub.WriteSetting("a.tbl", "tA = {\r\n\ta = 1,\r\n}\r\n");
    TableFiles::ReadScope scope(files);
    EXPECT_EQ(files.ReadTableValue("a.tbl", "a", "tA"), "1");
    EXPECT_EQ(files.ReadTextFile("long.txt"), "");
    EXPECT_EQ(files.ReadTableValue("a.tbl", "a", "tA"), "");
}

}  // namespace
}  // namespace qb::store
