// The one mapping between the scripts' paths and Linux paths, and the folders derived from the
// program folder.

#include "store/paths.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <optional>

#include "store/cp1252.h"
#include "store/edition.h"
#include "support/temp_hub.h"

namespace qb::store {
namespace {

namespace fs = std::filesystem;

// The desktop menu starts the program with no folder, from /usr/bin: only a folder holding the
// pack, in any letter case, is taken without asking.
TEST(Paths, AScriptsFolderIsOneThatHoldsThePack) {
    test::TempHub hub;
    const fs::path scripts = hub.Root() / "other" / "scripts";
    fs::create_directories(scripts / "vandrell's QUILLBOOK");
    EXPECT_TRUE(HoldsScriptPack(scripts));
    EXPECT_FALSE(HoldsScriptPack(hub.Root() / "other"));
    EXPECT_FALSE(HoldsScriptPack(hub.Root() / "nowhere"));
    fs::remove(scripts / "vandrell's QUILLBOOK");
    std::ofstream(scripts / "Vandrell's Quillbook") << "a file, not the pack";
    EXPECT_FALSE(HoldsScriptPack(scripts));
}

TEST(Paths, LinuxPathsTakeTheDriveForm) {
    EXPECT_EQ(ToScriptPath("/srv/hub/scripts"), "Z:\\srv\\hub\\scripts");
    EXPECT_EQ(ToScriptPath("/srv/hub/scripts/"), "Z:\\srv\\hub\\scripts");
    EXPECT_EQ(ToScriptPath("/"), "Z:\\");
    EXPECT_EQ(ToScriptPath("/srv/Caf\xC3\xA9"), "Z:\\srv\\Caf\xE9");  // UTF-8 name, 1252 path
}

TEST(Paths, TheHubFolderIsTheProgramFolderCutBehindItsLastBackslash) {
    EXPECT_EQ(HubFolderOf("Z:\\srv\\hub\\scripts"), "Z:\\srv\\hub\\");
    EXPECT_EQ(HubFolderOf("Z:\\srv\\hub\\scripts\\"), "Z:\\srv\\hub\\");  // trailing one ignored
    EXPECT_EQ(HubFolderOf("Z:\\scripts"), "Z:\\");
    EXPECT_EQ(HubFolderOf("Z:\\"), "");  // a drive root runs out of characters
    EXPECT_EQ(HubFolderOf(""), "");
}

TEST(Paths, OnlyTextWithADriveIsAbsolute) {
    EXPECT_TRUE(HasDrive("C:\\x"));
    EXPECT_FALSE(HasDrive("\\\\server\\share\\x"));
    EXPECT_FALSE(HasDrive("Security\\x.tbl"));
    EXPECT_FALSE(ToNativePath("\\\\server\\share\\x").has_value());
    EXPECT_FALSE(ToNativePath("Security\\x.tbl").has_value());
}

TEST(Paths, ComponentsMatchExistingNamesIgnoringCase) {
    test::TempHub hub;
    hub.WriteSetting("Language/Commands/English.tbl", "x");
    const std::string settings = ToScriptPath(hub.Settings());
    EXPECT_EQ(*ToNativePath(settings + "\\LANGUAGE\\commands\\english.TBL"),
              hub.Settings() / "Language" / "Commands" / "English.tbl");
    // A name that matches nothing is used as given, and so is everything below it.
    EXPECT_EQ(*ToNativePath(settings + "\\language\\New\\File.tbl"),
              hub.Settings() / "Language" / "New" / "File.tbl");
}

// Resolutions that share their folders' listings find what a resolution over the disk finds, as
// long as every change is told to the listings.
TEST(Paths, ListedFoldersResolveAsTheDiskDoes) {
    test::TempHub hub;
    for (const char* name : {"Mixed.tbl", "MIXED.tbl", "Caf\xC3\xA9.tbl"})
        hub.WriteSetting(std::string("Lang/") + name, "x");
    const std::string lang = ToScriptPath(hub.Settings()) + "\\LANG\\";
    FolderListings listings;
    const auto same = [&](const std::string& name) {
        EXPECT_EQ(ToNativePath(lang + name, &listings), ToNativePath(lang + name)) << name;
    };
    // Each exact name wins over the other spelling; any other takes the listing's first.
    for (const char* name : {"Mixed.tbl", "MIXED.tbl", "mixed.TBL", "CAF\xC9.TBL", "None.tbl"})
        same(name);
    hub.WriteSetting("Lang/New.tbl", "x");
    listings.Added(hub.Settings() / "Lang" / "New.tbl");
    same("NEW.tbl");
    fs::remove(hub.Settings() / "Lang" / "Mixed.tbl");
    listings.Removed(hub.Settings() / "Lang" / "Mixed.tbl");
    same("mixed.tbl");
    // A change nobody told of stays unseen: the folder isn't listed again.
    hub.WriteSetting("Lang/Other.tbl", "x");
    EXPECT_EQ(*ToNativePath(lang + "OTHER.tbl", &listings), hub.Settings() / "Lang" / "OTHER.tbl");
}

TEST(Paths, FoldCaseCoversTheLettersOfWindows1252) {
    EXPECT_EQ(FoldCase("ABC\xC9\x8A\x9F"), "abc\xE9\x9A\xFF");
    EXPECT_EQ(FoldCase("\xD7\xF7"), "\xD7\xF7");  // the multiplication and division signs
}

TEST(Paths, UpperCaseIsTheOtherSideOfFoldCase) {
    EXPECT_EQ(UpperCase("abc\xE9\x9A\xFF"), "ABC\xC9\x8A\x9F");
    // Every byte: upper case folds back to what the byte folds to, and only letters change.
    for (int b = 0; b < 256; ++b) {
        const std::string byte(1, static_cast<char>(b));
        EXPECT_EQ(FoldCase(UpperCase(byte)), FoldCase(byte)) << b;
        if (FoldCase(byte) == byte && UpperCase(byte) != byte) {
            EXPECT_NE(FoldCase(UpperCase(byte)), UpperCase(byte)) << b;
        }
    }
    EXPECT_EQ(UpperCase("\xDF\xF7\xB5"), "\xDF\xF7\xB5");  // sharp s, division, micro
}

TEST(Cp1252, EveryByteSurvivesARoundTripThroughUtf8) {
    std::string all;
    for (int b = 0; b < 256; ++b)
        all.push_back(static_cast<char>(b));
    EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(all)), all);
    EXPECT_EQ(Cp1252ToUtf8("\xBB\xAB\x80"), "\xC2\xBB\xC2\xAB\xE2\x82\xAC");
    EXPECT_EQ(Utf8ToCp1252("\xE2\x98\x83 \xFF"), "? ?");  // a snowman, and a stray byte
}

TEST(Edition, TheFullPackHasEveryAreaButTheArchiveBeforeVersionSix) {
    EXPECT_TRUE(EditionHas({"Folianth"}, kEdition));
    EXPECT_TRUE(EditionHas({}, kEdition));
    EXPECT_FALSE(EditionHas({"Folianth"}, "Trivia"));
    EXPECT_TRUE(EditionHas({"Folianth"}, kEdition));
    EXPECT_TRUE(EditionHas({"Folianth", "Trivia"}, "Trivia"));
    EXPECT_FALSE(ArchiveBuilt("Quillbook", {5, 3, 0}));
    EXPECT_TRUE(ArchiveBuilt("Quillbook", {6, 0, 0}));
    EXPECT_TRUE(ArchiveBuilt("Jukebox", {5, 3, 0}));
    EXPECT_FALSE(ArchiveBuilt("Trivia", {6, 0, 0}));
    // The major is compared as a number: 10 comes after 6, and so does 06.
    EXPECT_TRUE(ArchiveBuilt("Quillbook", {10, 0, 0}));
    EXPECT_EQ(VersionText(kBuildVersion), "5.3.0");
}

// --program-version takes three numbers joined by "." and nothing else.
TEST(Edition, AProgramVersionIsThreeNumbersJoinedByDots) {
    const struct {
        const char* text;
        std::optional<std::array<int, 3>> version;
    } cases[] = {
        {"6.0.0", std::array{6, 0, 0}},
        {"5.3.0", std::array{5, 3, 0}},
        {"10.02.3", std::array{10, 2, 3}},
        {"06.0.0", std::array{6, 0, 0}},
        {"", std::nullopt},
        {"6", std::nullopt},
        {"6.0", std::nullopt},
        {"6.0.0.0", std::nullopt},
        {"6.0.", std::nullopt},
        {".6.0.0", std::nullopt},
        {"6..0", std::nullopt},
        {"-6.0.0", std::nullopt},
        {"+6.0.0", std::nullopt},
        {"6.0.0 ", std::nullopt},
        {" 6.0.0", std::nullopt},
        {"6.x.0", std::nullopt},
        {"v6.0.0", std::nullopt},
        {"99999999999.0.0", std::nullopt},
    };
    for (const auto& [text, version] : cases) {
        SCOPED_TRACE(text);
        const auto parsed = ParseVersion(text);
        ASSERT_EQ(parsed.has_value(), version.has_value());
        if (!parsed) continue;
        EXPECT_EQ((std::array{parsed->major, parsed->minor, parsed->revision}), *version);
    }
}

}  // namespace
}  // namespace qb::store
