// The command shape's collection of permissions, and what its page does with files that no
// rebuild of this version writes.

#include <gtest/gtest.h>

#include <filesystem>

#include "families/matrix/permission_collection.h"
#include "store/fatal_error.h"
#include "support/page_harness.h"

namespace qb::pages {
namespace {

using test::Crlf;

std::vector<std::string> Keys(const Permissions& permissions) {
    std::vector<std::string> keys;
    for (const Permission& object : permissions)
        keys.push_back(object.key);
    return keys;
}

TEST(PermissionCollection, KeepsItsObjectsInOrderAndFindsThemByListKey) {
    Permissions permissions;
    Permission& first =
        permissions.Add("Clear*Master", "Clear", "Master", true, "0", "Clear*Master");
    permissions.Add("unkeyed", "Clear", "Op", false, "1", "");
    permissions.Add("Submit*Master", "Submit", "Master", false, "-1", "Submit*Master");
    EXPECT_EQ(permissions.Count(), 3);
    EXPECT_EQ(&permissions.Item("Clear*Master"), &first);
    EXPECT_EQ(permissions.Item(2).profile, "Op");
    EXPECT_EQ(permissions.Item(3).ProfileKey(), "-1");
    EXPECT_EQ(permissions.Find("unkeyed"), nullptr);  // stored without a key

    // A second object under one list key is the list's error; the list is left as it was.
    EXPECT_THROW(permissions.Add("x", "Clear", "Master", true, "0", "Clear*Master"),
                 std::invalid_argument);
    EXPECT_EQ(permissions.Count(), 3);

    permissions.Remove("Clear*Master");
    EXPECT_EQ(permissions.Find("Clear*Master"), nullptr);
    permissions.Remove(1);
    EXPECT_EQ(Keys(permissions), std::vector<std::string>{"Submit*Master"});
    EXPECT_EQ(&permissions.Item("Submit*Master"), &permissions.Item(1));
    EXPECT_THROW(permissions.Item(2), std::out_of_range);
    EXPECT_THROW(permissions.Remove("Clear*Master"), std::out_of_range);
}

TEST(PermissionCollection, TheProfileNumberIsSixteenBitsSetAndReadAsText) {
    Permission object;
    object.SetProfileKey("32767");
    EXPECT_EQ(object.ProfileKey(), "32767");
    EXPECT_THROW(object.SetProfileKey("32768"), std::out_of_range);
    EXPECT_THROW(object.SetProfileKey("two"), std::invalid_argument);
    EXPECT_EQ(object.ProfileKey(), "32767");
}

class ArcadePage : public ::testing::Test, protected test::PageHarness {
  protected:
    ArcadePage() { std::filesystem::create_directories(hub.Settings() / "TheVellum" / "Arcade"); }
    shell::Page* Open(const char* profilesXml) {
        hub.Write("cfg/Profiles.xml", profilesXml);
        container.LoadProfiles();
        return container.OpenFunctionPage("Arcade~Permissions");
    }
};

TEST_F(ArcadePage, ReadsTheBuildersFormAndWritesItsOwn) {
    // The archive's builder writes one tab and quoted values, under a table name of its own.
    hub.WriteSetting("TheVellum/Arcade/ArcadeEnableClear.tbl",
                     Crlf({"tArcadeEnableClear = {", "\t[-1] = \"0\",", "\t[0] = \"1\",", "}"}));
    shell::Page* page = Open("<Name>Master</Name>\r\n");
    ASSERT_NE(page, nullptr);
    const auto* list = static_cast<const shell::ListControl*>(page->Find("lvwPermissions"));
    ASSERT_EQ(list->Count(), 10);
    EXPECT_EQ(list->Row(2).cells, (std::vector<std::string>{"Master", "Yes"}));
    ASSERT_TRUE(Click(*page, "tlbListview", "EDIT") && Click(*page, "tlbListview", "EDIT"));
    ASSERT_TRUE(Click(*page, "tlbFormToolbar", "SAVE"));
    // The closing lines have always been one too many for Lua; the readers take them.
    EXPECT_EQ(hub.ReadSetting("TheVellum/Arcade/ArcadeEnableClear.tbl"),
              Crlf({"tArcadeEnableClear = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "}"}));
    EXPECT_EQ(list->Row(2).cells, (std::vector<std::string>{"Master", "Yes"}));
    EXPECT_FALSE(
        std::filesystem::exists(hub.Settings() / "TheVellum/Arcade/ArcadeEnableSubmit.tbl"));
}

TEST_F(ArcadePage, TwoProfilesOfOneNameEndTheProgramNamingTheHubsFile) {
    try {
        Open("<Name>Reg</Name>\r\n<Name>Reg</Name>\r\n");
        FAIL() << "the page opened";
    } catch (const store::FatalError& error) {
        EXPECT_TRUE(error.Path().ends_with("\\cfg\\Profiles.xml")) << error.Path();
        EXPECT_NE(error.Reason().find("\"Reg\""), std::string::npos) << error.Reason();
    }
}

}  // namespace
}  // namespace qb::pages
