// WriteTextFile: the only writer of settings files, which replaces a file whole or not at all.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <optional>

#include "store/fatal_error.h"
#include "store/table_files.h"
#include "support/temp_hub.h"

namespace qb::store {
namespace {

namespace fs = std::filesystem;

class Writer : public ::testing::Test {
  protected:
    size_t EntriesIn(const fs::path& folder) const {
        return static_cast<size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }
    test::TempHub hub;
    TableFiles files{hub.ProgramFolder()};
};

TEST_F(Writer, AddsOneLineBreakAndKeepsEveryByte) {
    using namespace std::string_literals;
    const std::string text = "tA = {\r\n\tsBorder = \"\xBB\xAB\",\r\n\tsNul = \"a\0b\",\r\n}"s;
    ASSERT_EQ(text.find('\0'), 36u);
    files.WriteTextFile("a.tbl", text);
    EXPECT_EQ(hub.ReadSetting("a.tbl"), text + "\r\n");
}

TEST_F(Writer, ReplacesAnExistingFileWholeUnderItsExistingName) {
    hub.WriteSetting("Lang/English.tbl", "old text that is longer than the new one\r\n");
    files.WriteTextFile("lang\\ENGLISH.tbl", "new");
    EXPECT_EQ(hub.ReadSetting("Lang/English.tbl"), "new\r\n");
    EXPECT_EQ(EntriesIn(hub.Settings() / "Lang"), 1u);  // no second file, no temporary left
}

TEST_F(Writer, WritesBelowTheProgramFolderWhenAsked) {
    files.WriteTextFile("x.tbl", "x", true);
    EXPECT_EQ(hub.Read("scripts/x.tbl"), "x\r\n");
}

TEST_F(Writer, AMissingFolderIsFatalAndCreatesNothing) {
    try {
        files.WriteTextFile("Nowhere\\x.tbl", "x");
        FAIL() << "no error";
    } catch (const FatalError& error) {
        EXPECT_NE(error.Path().find("Nowhere"), std::string::npos);
        EXPECT_EQ(error.Reason(), "No such file or directory");
    }
    EXPECT_FALSE(fs::exists(hub.Settings() / "Nowhere"));
}

TEST_F(Writer, AReadOnlyFileIsFatalAndStaysAsItWas) {
    hub.WriteSetting("ro.tbl", "kept\r\n");
    fs::permissions(hub.Settings() / "ro.tbl", fs::perms::owner_read | fs::perms::group_read);
    EXPECT_THROW(files.WriteTextFile("ro.tbl", "lost"), FatalError);
    EXPECT_EQ(hub.ReadSetting("ro.tbl"), "kept\r\n");
    EXPECT_EQ(EntriesIn(hub.Settings()), 1u);
}

// Inside a scope each folder is listed once, and the writes keep that listing up to date.
TEST_F(Writer, ClearsWhatAnInterruptedWriteOfTheSameFileLeftBehind) {
    for (const bool inScope : {false, true}) {
        SCOPED_TRACE(inScope ? "inside a read scope" : "outside any scope");
        hub.WriteSetting(".a.tbl.Xy12Zq", "cut short");     // a write killed before its rename
        hub.WriteSetting(".a.tbl.notes", "someone's own");  // not one of ours
        hub.WriteSetting(".b.tbl.Xy12Zq", "another file's");
        std::optional<TableFiles::ReadScope> scope;
        if (inScope) scope.emplace(files);
        files.WriteTextFile("a.tbl", "whole");
        EXPECT_FALSE(fs::exists(hub.Settings() / ".a.tbl.Xy12Zq"));
        EXPECT_TRUE(fs::exists(hub.Settings() / ".a.tbl.notes"));
        EXPECT_TRUE(fs::exists(hub.Settings() / ".b.tbl.Xy12Zq"));
        EXPECT_EQ(hub.ReadSetting("a.tbl"), "whole\r\n");
        files.WriteTextFile("b.tbl", "too");
        EXPECT_FALSE(fs::exists(hub.Settings() / ".b.tbl.Xy12Zq"));
        // The file the first write made is found by its name, letter case aside.
        files.WriteTextFile("A.TBL", "again");
        EXPECT_EQ(hub.ReadSetting("a.tbl"), "again\r\n");
        EXPECT_EQ(EntriesIn(hub.Settings()), 3u);
        scope.reset();
        for (const char* name : {"a.tbl", "b.tbl", ".a.tbl.notes"})
            fs::remove(hub.Settings() / name);
    }
}

TEST_F(Writer, KeepsTheModeOfTheFileItReplaces) {
    hub.WriteSetting("m.tbl", "x");
    fs::permissions(hub.Settings() / "m.tbl", fs::perms::owner_read | fs::perms::owner_write);
    files.WriteTextFile("m.tbl", "y");
    EXPECT_EQ(fs::status(hub.Settings() / "m.tbl").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Writer, FoldersAreMadeOnlyBelowFoldersThatExist) {
    const std::string settings = files.SettingsFolder();
    EXPECT_FALSE(files.FolderExists(settings + "\\General"));
    files.CreateFolder(settings + "\\General");
    files.CreateFolder(settings + "\\general");  // exists already, ignoring case
    EXPECT_TRUE(files.FolderExists(settings + "\\GENERAL"));
    EXPECT_THROW(files.CreateFolder(settings + "\\Missing\\Child"), FatalError);
}

// The file system object's listing and deletion, as the pages that keep a folder of files use them.
TEST_F(Writer, AFolderListsItsFilesByNameLetterCaseAsideAndADeletedFileIsGoneAtOnce) {
    hub.WriteSetting("Ascii/b.asc", "b");
    hub.WriteSetting("Ascii/A.asc", "a");
    hub.WriteSetting("Ascii/c", "c");
    hub.WriteSetting("Ascii/\xC3\xA9t\xC3\xA9.asc", "summer");  // UTF-8 on the disk
    hub.WriteSetting("Ascii/.b.asc.Ab12Cd", "a write cut short");
    hub.WriteSetting("Ascii/Sub/z.asc", "in a folder below");
    const std::string folder = files.SettingsFolder() + "\\ascii";
    EXPECT_EQ(files.FolderFiles(folder),
              (std::vector<std::string>{"A.asc", "b.asc", "c", "\xE9t\xE9.asc"}));
    EXPECT_TRUE(files.FolderFiles(folder + "\\Missing").empty());

    // A read in a scope keeps nothing of a file deleted since.
    TableFiles::ReadScope scope(files);
    hub.WriteSetting("Ascii/b.asc", "tB = {\r\n\tsName = \"b\",\r\n}");
    EXPECT_EQ(files.ReadTableValue("Ascii\\b.asc", "sName", "tB"), "b");
    EXPECT_TRUE(files.DeleteFile(folder + "\\B.ASC"));
    EXPECT_FALSE(fs::exists(hub.Settings() / "Ascii" / "b.asc"));
    EXPECT_EQ(files.ReadTableValue("Ascii\\b.asc", "sName", "tB"), "");
    EXPECT_FALSE(files.DeleteFile(folder + "\\b.asc"));
}

}  // namespace
}  // namespace qb::store
