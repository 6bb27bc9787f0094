// The builder frame: what a rebuild does to each kind of file, and how an area's folders and
// builders follow the folder table and the edition.

#include <gtest/gtest.h>

#include <filesystem>

#include "store/builders.h"
#include "support/temp_hub.h"

namespace qb::store {
namespace {

namespace fs = std::filesystem;
using test::Crlf;

FileSchema Sample(FileKind kind = FileKind::Settings) {
    return FileSchema{"Test\\Sample.tbl",
                      "tSample",
                      {
                          {FieldKind::Flag, "bOn", "1"},
                          {FieldKind::Number, "iCount", "15"},
                          {FieldKind::String, "sBorder", "\xBB\xAB"},
                          {FieldKind::String, "sName", ""},
                          {FieldKind::ProfileChecks, "tEnabledProfiles", "0"},
                      },
                      kind};
}

class Builders : public ::testing::Test {
  protected:
    void SetUp() override { fs::create_directories(hub.Settings() / "Test"); }
    std::string Build(const FileSchema& schema, int lastProfile, bool indexing = true) {
        BuildRun run{files, lastProfile, kBuildVersion};
        files.SetIndexing(indexing);
        BuildFile(schema, run);
        return hub.ReadSetting("Test/Sample.tbl");
    }
    test::TempHub hub;
    TableFiles files{hub.ProgramFolder()};
};

TEST_F(Builders, ASettingsFileKeepsEachValueButTheEmptyOnesAndFollowsTheProfiles) {
    hub.WriteSetting("Test/Sample.tbl",
                     Crlf({"tSample = {", "\tsName = \"hello, \",", "\tbOn = 0,",
                           "\tsBorder = \"\",", "\tbRetired = 1,", "\ttEnabledProfiles = {",
                           "\t\t[-1] = 1,", "\t\t[1] = 1,", "\t\t[2] = 1,", "\t},", "}"}));
    // Profiles -1 to 1 now: 0 has no row and takes the default, 2 is gone from the hub.
    EXPECT_EQ(Build(Sample(), 1),
              Crlf({"tSample = {", "\tbOn = 0,", "\tiCount = 15,", "\tsBorder = \"\xBB\xAB\",",
                    "\tsName = \"hello\",", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                    "\t\t[0] = 0,", "\t\t[1] = 1,", "\t},", "}"}));
}

TEST_F(Builders, ReadsTheOldFileAlikeThroughTheIndexAndTheScanner) {
    // Keys repeated in later tables and behind a closing line: the scanner's odd answers must
    // come out the same either way.
    const std::string old = Crlf({"sName = \"before the header\",", "tSample = {",
                                  "\ttEnabledProfiles = {", "\t\t[0] = 1,", "\t},", "\tiCount = 3,",
                                  "}", "tOther = {", "\tsName = \"later\",", "\t[-1] = 1,", "}"});
    hub.WriteSetting("Test/Sample.tbl", old);
    const std::string indexed = Build(Sample(), 2, true);
    hub.WriteSetting("Test/Sample.tbl", old);
    EXPECT_EQ(Build(Sample(), 2, false), indexed);
    EXPECT_NE(indexed.find("sName = \"later\""), std::string::npos);
}

TEST_F(Builders, ADataFileIsWrittenOnlyWhenMissing) {
    EXPECT_EQ(Build(FileSchema{"Test\\Sample.tbl", "tSample", {}, FileKind::Data}, 3),
              Crlf({"tSample = {", "}"}));
    hub.WriteSetting("Test/Sample.tbl", "tSample = {\r\n\t[\"Bob\"] = 1,\r\n}");
    EXPECT_EQ(Build(FileSchema{"Test\\Sample.tbl", "tSample", {}, FileKind::Data}, 3),
              "tSample = {\r\n\t[\"Bob\"] = 1,\r\n}");
}

// A new list file holds its sample rows; a sub-table may be written under a name of the
// builder's own, a named row with a fixed value, and profile rows may start past Unregistered.
TEST_F(Builders, ANewListHoldsItsSampleRowsInTheBuildersForm) {
    FileSchema schema{"Test\\Sample.tbl",
                      "tSample",
                      {{.kind = FieldKind::Rows,
                        .key = "tOne",
                        .defaultValue = "",
                        .sampleRows = {{"", "artless"}}},
                       {.kind = FieldKind::Rows,
                        .key = "tThree",
                        .defaultValue = "",
                        .sampleRows = {{"", "hedge-pig"}, {"", "cat"}}},
                       {.kind = FieldKind::Rows,
                        .key = "tWards",
                        .defaultValue = "",
                        .rowForm = RowForm::Named,
                        .quotedRows = false,
                        .sampleRows = {{"Bob", "ignored"}},
                        .rowValue = "1"}},
                      FileKind::Data};
    schema.builderForm.lines["tThree"] = {.name = "tThreee"};
    EXPECT_EQ(Build(schema, 3), Crlf({"tSample = {", "\ttOne = {", "\t\t\"artless\",", "\t},",
                                      "\ttThreee = {", "\t\t\"hedge-pig\",", "\t\t\"cat\",", "\t},",
                                      "\ttWards = {", "\t\t[\"Bob\"] = 1,", "\t},", "}"}));
    // The page writes the field's own name.
    const auto noValue = [](const Field&, int) { return std::string(); };
    EXPECT_NE(RenderTable(schema, 0, noValue).find("\ttThree = {"), std::string::npos);

    FileSchema rc{"Test\\Sample.tbl",
                  "tSample",
                  {{.kind = FieldKind::ProfileChecks,
                    .key = "tEnabledRC",
                    .defaultValue = "0",
                    .firstProfile = 0}}};
    hub.WriteSetting("Test/Sample.tbl", Crlf({"tSample = {", "\ttEnabledRC = {", "\t\t[-1] = 1,",
                                              "\t\t[1] = 1,", "\t},", "}"}));
    EXPECT_EQ(Build(rc, 1), Crlf({"tSample = {", "\ttEnabledRC = {", "\t\t[0] = 0,", "\t\t[1] = 1,",
                                  "\t},", "}"}));
}

TEST_F(Builders, AResetFileForgetsWhatItHeld) {
    hub.WriteSetting("Test/Sample.tbl", Crlf({"tSample = {", "\tbOn = 0,", "\tiCount = 99,",
                                              "\tsName = \"x\",", "}"}));
    EXPECT_EQ(Build(Sample(FileKind::Reset), -1),
              Crlf({"tSample = {", "\tbOn = 1,", "\tiCount = 15,", "\tsBorder = \"\xBB\xAB\",",
                    "\tsName = \"\",", "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t},", "}"}));
}

TEST_F(Builders, TheBuilderWritesInItsOwnFormWhereTheSchemaSaysSo) {
    FileSchema schema = Sample(FileKind::Reset);
    schema.builderForm.order = {"sName", "tEnabledProfiles", "bOn", "iCount", "sBorder"};
    schema.builderForm.headerTail = " ";
    schema.builderForm.lines["sName"] = {1, 2, false};
    schema.builderForm.lines["tEnabledProfiles"] = {1, 3, std::nullopt};
    EXPECT_EQ(Build(schema, 0), Crlf({"tSample = { ", "\tsName = ,", "\ttEnabledProfiles = {",
                                      "\t\t\t[-1] = 0,", "\t\t\t[0] = 0,", "\t},", "\tbOn = 1,",
                                      "\tiCount = 15,", "\tsBorder = \"\xBB\xAB\",", "}"}));
    // The page's form is untouched by the builder's.
    const auto byDefault = [](const Field& field, int) { return field.defaultValue; };
    EXPECT_EQ(RenderTable(schema, -1, byDefault), RenderTable(Sample(), -1, byDefault));
    schema.builderForm.order.pop_back();
    EXPECT_THROW(Build(schema, 0), std::logic_error);
}

TEST_F(Builders, KeysOfFunctionsTheEditionLacksAreLeftOut) {
    FileSchema schema{"Test\\Sample.tbl",
                      "tSample",
                      {{FieldKind::Flag, "bEverywhere", "1"},
                       {FieldKind::Flag, "bGamesOnly", "1", EditionTest{{"Merrimanual"}}}},
                      FileKind::Reset};
    EXPECT_EQ(Build(schema, 0),
              Crlf({"tSample = {", "\tbEverywhere = 1,", "\tbGamesOnly = 1,", "}"}));
    BuildRun run{files, 0, kBuildVersion, "Umberscribe"};
    BuildFile(schema, run);
    EXPECT_EQ(hub.ReadSetting("Test/Sample.tbl"), Crlf({"tSample = {", "\tbEverywhere = 1,", "}"}));
}

TEST_F(Builders, DefaultsAreAskedByKey) {
    EXPECT_EQ(DefaultOf(Sample(), "iCount"), "15");
    EXPECT_EQ(DefaultOf(Sample(), "iUnknown"), "");
}

// Lists the folders below the settings folder, relative and with forward slashes.
std::vector<std::string> FoldersBelow(const fs::path& root) {
    std::vector<std::string> folders;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (entry.is_directory()) folders.push_back(fs::relative(entry.path(), root).string());
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}

TEST_F(Builders, AnAreaMakesTheFoldersOfItsEditionAndRunsEachBuilderRightAfterItsFolder) {
    BuilderRegistry builders;
    std::vector<std::string> seen;
    builders.Add("Games\\Hangman\\Ascii", [&](BuildRun& run) {
        // The folder exists by now, and its parents made before it.
        seen.push_back(
            run.files.FolderExists(run.files.SettingsFolder() + "\\Games\\Hangman\\Ascii")
                ? "made"
                : "missing");
    });
    BuildRun run{files, 0, kBuildVersion, "Hangman"};
    builders.BuildArea(Area::Games, run);
    EXPECT_EQ(seen, std::vector<std::string>{"made"});
    fs::remove_all(hub.Settings() / "Test");
    EXPECT_EQ(FoldersBelow(hub.Settings()),
              (std::vector<std::string>{"Games", "Games/Globals", "Games/Hangman",
                                        "Games/Hangman/Ascii", "Games/Hangman/ScoresArchive"}));
}

TEST_F(Builders, TheSecurityPackHasEverySecurityFolderButTheAntiAdvertiser) {
    BuilderRegistry builders;
    BuildRun run{files, 0, kBuildVersion, "Umberscribe"};
    builders.BuildArea(Area::Security, run);
    builders.BuildArea(Area::Games, run);
    EXPECT_TRUE(fs::is_directory(hub.Settings() / "Security" / "UserLog" / "Logs"));
    EXPECT_FALSE(fs::exists(hub.Settings() / "Security" / "AntiAdvertise"));
    EXPECT_FALSE(fs::exists(hub.Settings() / "Games"));
}

TEST_F(Builders, TheArchiveIsBuiltInTheFullPackFromMajorVersionSixOnly) {
    BuilderRegistry builders;
    BuildRun now{files, 0, kBuildVersion};
    builders.BuildArea(Area::Archive, now);
    EXPECT_FALSE(fs::exists(hub.Settings() / "TheVellum"));
    BuildRun later{files, 0, ProgramVersion{6, 0, 0}};
    builders.BuildArea(Area::Archive, later);
    EXPECT_TRUE(fs::is_directory(hub.Settings() / "TheVellum" / "Hyperlink"));
}

TEST_F(Builders, ABuilderForAFolderTheTreeLacksIsRefused) {
    BuilderRegistry builders;
    EXPECT_THROW(builders.Add("Security\\NoSuchFunction", [](BuildRun&) {}), std::logic_error);
}

}  // namespace
}  // namespace qb::store
