// The customise user area through a rebuild, and what its pages ask the user in their dialogs.

#include <gtest/gtest.h>

#include <filesystem>

#include "pages/pages.h"
#include "support/area_rebuild.h"
#include "support/page_harness.h"
#include "support/temp_hub.h"

namespace qb::pages {
namespace {

using test::Crlf;

class CustomiseUserRebuild : public test::AreaRebuild {
  protected:
    CustomiseUserRebuild() : AreaRebuild(store::Area::CustomiseUser, "CustomiseUser/") {}
};

TEST_F(CustomiseUserRebuild, AFreshTreeTagsEachProfileByItsNameAndMakesEveryListEmpty) {
    Rebuild({"Unregistered", "Master"});
    EXPECT_EQ(Read("DescriptionTags/DescriptionTagSettings.tbl"),
              Crlf({"tDescriptionTagSettings = {", "\tbNotifyOps = 1,", "\ttProfiles = {",
                    "\t\t[-1] = \"[Unregistered]\",", "\t\t[0] = \"[Master]\",", "\t},",
                    "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},", "}"}));
    EXPECT_EQ(Read("IntroOutro/IntroOutroSettings.tbl"),
              Crlf({"tIntroOutroSettings = {", "\tbRegIntroEnabled = 1,",
                    "\tsRegIntro = \"Welcome !nick! to !hubname!. Type !prefix!!regcommand! to "
                    "register\",",
                    "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},", "}"}));
    for (const auto& [file, table] : std::vector<std::pair<std::string, std::string>>{
             {"CustomRightClick/CustomRightClick.tbl", "tCustomRightClick"},
             {"DescriptionTags/DescriptionTags.tbl", "tDescriptionTags"},
             {"HideShare/HideShareUsers.tbl", "tHideShareUsers"},
             {"IntroOutro/Intro.tbl", "tIntro"},
             {"IntroOutro/Outro.tbl", "tOutro"},
             {"IntroOutro/CustomIntro.tbl", "tCustomIntro"},
             {"IntroOutro/CustomOutro.tbl", "tCustomOutro"},
             {"IntroOutro/AsciiIntro.tbl", "tAsciiIntro"},
             {"IntroOutro/AsciiIntroIndex.tbl", "tAsciiIntroIndex"}}) {
        EXPECT_EQ(Read(file), Crlf({table + " = {", "}"})) << file;
    }
    EXPECT_TRUE(std::filesystem::is_directory(hub.Settings() / "CustomiseUser/IntroOutro/Ascii"));
}

// Each file as a page saved it, then a profile added at the hub: every value stays with its
// profile number, the new number gets its default, and the lists are left as they were.
TEST_F(CustomiseUserRebuild, AProfileAddedKeepsEveryValueByNumberAndLeavesTheListsAlone) {
    Write("DescriptionTags/DescriptionTagSettings.tbl",
          Crlf({"tDescriptionTagSettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 0,",
                "\t\t[0] = 1,", "\t},", "\ttProfiles = {", "\t\t[-1] = \"<guest>\",",
                "\t\t[0] = \"[Master]\",", "\t},", "}"}));
    Write("IntroOutro/IntroOutroSettings.tbl",
          Crlf({"tIntroOutroSettings = {", "\tbRegIntroEnabled = 0,", "\tsRegIntro = \"\",",
                "\ttEnabledProfiles = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t},", "}"}));
    Write("IntroOutro/CustomIntroOutroSettings.tbl",
          Crlf({"tCustomIntroOutroSettings = {", "\tbNotifyOps = 0,", "\ttEnabledProfiles = {",
                "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "}"}));
    const std::string lines = Crlf({"tIntro = {", "\t\"!username! is here\",", "}"});
    Write("IntroOutro/Intro.tbl", lines);
    // A right click for a profile the hub has lost stays as it was.
    const std::string clicks =
        Crlf({"tCustomRightClick = {", "\tiCommands = 1,", "\t[1] = {", "\t\tbEnabled = 1,",
              "\t\tiWhere = 1,", "\t\tsProfile = 7,", "\t\tsRightClick = \"Rules\",", "\t},", "}"});
    Write("CustomRightClick/CustomRightClick.tbl", clicks);
    const std::string index = Crlf({"tAsciiIntroIndex = {", "\t\"castle\",", "}"});
    Write("IntroOutro/AsciiIntroIndex.tbl", index);

    Rebuild({"Unregistered", "Boss", "Guard"});
    // bNotifyOps, which the page's save left out, is back; Master's tag stays though the hub
    // calls the profile Boss now.
    EXPECT_EQ(Read("DescriptionTags/DescriptionTagSettings.tbl"),
              Crlf({"tDescriptionTagSettings = {", "\tbNotifyOps = 1,", "\ttProfiles = {",
                    "\t\t[-1] = \"<guest>\",", "\t\t[0] = \"[Master]\",", "\t\t[1] = \"[Guard]\",",
                    "\t},", "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,",
                    "\t\t[1] = 0,", "\t},", "}"}));
    // An emptied intro takes its default again; the flag keeps its 0.
    EXPECT_EQ(Read("IntroOutro/IntroOutroSettings.tbl"),
              Crlf({"tIntroOutroSettings = {", "\tbRegIntroEnabled = 0,",
                    "\tsRegIntro = \"Welcome !nick! to !hubname!. Type !prefix!!regcommand! to "
                    "register\",",
                    "\ttEnabledProfiles = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t\t[1] = 0,",
                    "\t},", "}"}));
    EXPECT_EQ(Read("IntroOutro/CustomIntroOutroSettings.tbl"),
              Crlf({"tCustomIntroOutroSettings = {", "\tbNotifyOps = 0,", "\ttEnabledProfiles = {",
                    "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t\t[1] = 0,", "\t},", "}"}));
    EXPECT_EQ(Read("IntroOutro/Intro.tbl"), lines);
    EXPECT_EQ(Read("CustomRightClick/CustomRightClick.tbl"), clicks);
    EXPECT_EQ(Read("IntroOutro/AsciiIntroIndex.tbl"), index);

    // A second rebuild changes nothing.
    const std::string tags = Read("DescriptionTags/DescriptionTagSettings.tbl");
    Rebuild({"Unregistered", "Boss", "Guard"});
    EXPECT_EQ(Read("DescriptionTags/DescriptionTagSettings.tbl"), tags);
}

// ---- The pages' dialogs -----------------------------------------------------------------------

class CustomiseUserPages : public ::testing::Test, protected test::PageHarness {
  protected:
    CustomiseUserPages() {
        BuildFor(2, store::Area::CustomiseUser);
        host.openTextEditor = [this](const std::string& file, const std::string& mode) {
            container.OpenTextEditor(file, mode);
        };
    }
    shell::Page& Open(const std::string& key) { return *container.OpenFunctionPage(key); }
    template <class C>
    static C& Get(const shell::Page& page, const char* name) {
        return static_cast<C&>(*page.Find(name));
    }
    static bool Click(const shell::Page& page, const char* toolbar, const char* button) {
        return Get<shell::Toolbar>(page, toolbar).UserClick(button);
    }
    // The captions, labels, values and choices of the dialogs shown so far, one a line.
    std::string Dialogs() const {
        std::string shown;
        for (const shell::DialogRequest& request : host.requests) {
            shown += request.caption + " [" + request.mode + "]";
            for (const std::string& label : request.labels)
                shown += " | " + label;
            shown += " =";
            for (const std::string& value : request.values) {
                if (!value.empty()) shown += " " + value;
            }
            for (const auto& items : request.comboItems) {
                shown += " {";
                for (const std::string& item : items)
                    shown += item + ";";
                shown += "}";
            }
            shown += "\n";
        }
        return shown;
    }
};

TEST_F(CustomiseUserPages, TheIntroPagesAskOneLineOrAUsersLineAndNameTheUserOnEdit) {
    shell::Page& standard = Open("CustomiseUser~IntroOutro~Standard");
    host.QueueDialog({"OK", {"!username! waves"}});
    ASSERT_TRUE(Click(standard, "tlbOutro", "NEW"));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Click(standard, "tlbOutro", "EDIT"));

    shell::Page& custom = Open("CustomiseUser~IntroOutro~Custom");
    host.QueueDialog({"OK", {"bob", "bob is here"}});
    ASSERT_TRUE(Click(custom, "tlbIntro", "NEW"));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Get<shell::ListControl>(custom, "lvwIntro").UserDoubleClick(1));
    EXPECT_EQ(Dialogs(),
              "Add Outro [A] | Outro =\n"
              "Edit Outro [E] | Outro = !username! waves\n"
              "Add Intro [A] | Intro for | Intro =\n"
              "Edit Intro [E] | Intro for bob | Intro = bob bob is here\n");
}

TEST_F(CustomiseUserPages, TheAsciiUserPicksAmongThePicturesAndARightClickAmongTheProfiles) {
    hub.WriteSetting("CustomiseUser/IntroOutro/Ascii/moon.asc", "(");
    hub.WriteSetting("CustomiseUser/IntroOutro/Ascii/Castle.asc", "#");
    shell::Page& ascii = Open("CustomiseUser~IntroOutro~Ascii");
    host.QueueDialog({"OK", {"bob", "moon"}});
    ASSERT_TRUE(Click(ascii, "tlbAscii", "NEW"));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Click(ascii, "tlbAscii", "EDIT"));

    shell::Page& clicks = Open("CustomiseUser~CustomRightClick");
    host.QueueDialog({"OK", {"Rules", "P1", "Search"}});
    ASSERT_TRUE(Click(clicks, "tlbHubs", "NEW"));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Click(clicks, "tlbHubs", "EDIT"));

    shell::Page& tags = Open("CustomiseUser~DescriptionTags");
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Get<shell::ListControl>(tags, "lvwDescriptionTags").UserDoubleClick(2));
    EXPECT_EQ(Dialogs(),
              "Add Ascii Profile for User [A] | Username | Filename = {Castle;moon;}\n"
              "Edit Ascii Intro for bob [E] | Username | Filename = bob moon {Castle;moon;}\n"
              "Add Right Click [A] | Right Click | Profile | Location = "
              "{Unregistered;P0;P1;Operators Only;All Profiles;} {Hub;Users;Hub & Users;Search;}\n"
              "Edit Right Click [E] | Right Click | Profile | Location = Rules P1 Search "
              "{Unregistered;P0;P1;Operators Only;All Profiles;} {Hub;Users;Hub & Users;Search;}\n"
              "Edit File [E] | P0 Tag = [P0]\n");
}

// A new picture is listed only once the editor has saved it, and only once.
TEST_F(CustomiseUserPages, ANewPictureIsListedOnceTheEditorSavedIt) {
    shell::Page& ascii = Open("CustomiseUser~IntroOutro~Ascii");
    const auto& pictures = Get<shell::ListControl>(ascii, "lvwFiles");
    host.QueueInput("star");
    ASSERT_TRUE(Click(ascii, "tlbFiles", "NEW"));
    shell::Page* editor = container.Active();
    ASSERT_NE(editor, &ascii);
    // Closed unsaved: no file, no row.
    ASSERT_TRUE(container.Close(*editor));
    EXPECT_EQ(pictures.Count(), 0);
    EXPECT_FALSE(
        std::filesystem::exists(hub.Settings() / "CustomiseUser/IntroOutro/Ascii/star.asc"));
    EXPECT_FALSE(Get<shell::Toolbar>(ascii, "tlbFiles").Find("EDIT")->enabled);

    host.QueueInput("star");
    ASSERT_TRUE(Click(ascii, "tlbFiles", "NEW"));
    editor = container.Active();
    ASSERT_TRUE(Get<shell::TextBox>(*editor, "txtTextBox").UserSetText("*"));
    ASSERT_TRUE(Click(*editor, "tlbFormToolbar", "SAVE"));
    ASSERT_TRUE(Get<shell::TextBox>(*editor, "txtTextBox").UserSetText("**"));
    ASSERT_TRUE(Click(*editor, "tlbFormToolbar", "SAVE"));
    ASSERT_EQ(pictures.Count(), 1);
    EXPECT_EQ(pictures.Row(1).text, "star");
    EXPECT_TRUE(Get<shell::Toolbar>(ascii, "tlbFiles").Find("EDIT")->enabled);
    EXPECT_EQ(hub.ReadSetting("CustomiseUser/IntroOutro/Ascii/star.asc"), "**\r\n");
    // Listing the picture changes no setting: only the index, at the page's next save.
    EXPECT_FALSE(ascii.SaveRequired());
}

}  // namespace
}  // namespace qb::pages
