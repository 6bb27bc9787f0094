// The main window's model: opening pages by key, the open window list behind the Windows menu,
// the group counters, the pop-up routing and the status bar.

#include "shell/container.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "shell/scripted_host.h"
#include "shell/text_editor.h"
#include "support/stub_pages.h"
#include "support/temp_hub.h"

namespace qb::shell {
namespace {

class ContainerTest : public ::testing::Test {
  protected:
    ContainerTest() : files_(hub_.ProgramFolder()), host_(transcript_) {}

    void Start(const std::vector<test::StubPageDesc>& pages) {
        test::RegisterStubPages(registry_, pages, calls_);
        container_ = std::make_unique<Container>(files_, host_, registry_, store::kBuildVersion);
        container_->LoadProfiles();
        container_->FillNavigation();
    }
    void StartWith(const std::vector<std::string>& keys) {
        std::vector<test::StubPageDesc> pages;
        for (const auto& key : keys)
            pages.push_back({key, "", {}});
        Start(pages);
    }

    std::vector<std::string> MenuCaptions() const {
        std::vector<std::string> captions;
        for (const auto& item : container_->WindowsMenu()) {
            if (item.visible) captions.push_back(item.caption);
        }
        return captions;
    }
    std::vector<std::string> OpenKeys() const {
        std::vector<std::string> keys;
        for (const auto& page : container_->OpenPages())
            keys.push_back(page->Key());
        return keys;
    }

    test::TempHub hub_;
    store::TableFiles files_;
    std::ostringstream transcript_;
    ScriptedHost host_;
    PageRegistry registry_;
    std::vector<std::string> calls_;
    std::unique_ptr<Container> container_;
};

TEST_F(ContainerTest, APageOpenedTwiceIsOnePageAndOneEntry) {
    StartWith({"Security~CommandSpy", "General~Bots"});
    Page* first = container_->OpenFunctionPage("Security~CommandSpy");
    ASSERT_NE(first, nullptr);
    container_->OpenFunctionPage("General~Bots");
    EXPECT_EQ(container_->Active()->Key(), "General~Bots");
    EXPECT_EQ(container_->OpenFunctionPage("Security~CommandSpy"), first);
    EXPECT_EQ(container_->Active(), first);
    EXPECT_EQ(container_->OpenPages().size(), 2u);
    EXPECT_EQ(MenuCaptions(),
              (std::vector<std::string>{"&1. Security ~ CommandSpy", "&2. General ~ Bots"}));
}

TEST_F(ContainerTest, ATreeClickOpensTheSelectedNodeAndAGroupNodeOpensAndListsNothing) {
    StartWith({"Games~Hangman"});
    ASSERT_TRUE(container_->SelectNode("Games~Hangman"));
    EXPECT_NE(container_->OpenFunctionPage(""), nullptr);
    for (const char* bold : {"Quillbook", "Games"}) {
        ASSERT_TRUE(container_->SelectNode(bold));
        EXPECT_EQ(container_->OpenFunctionPage(""), nullptr);
    }
    EXPECT_EQ(container_->OpenWindows().Count(), 1);
    EXPECT_FALSE(container_->SelectNode("Games~NoSuchGame"));
}

TEST_F(ContainerTest, AnIntermediateNodeIsListedWithoutAPageAndStaysWhenPagesClose) {
    StartWith({"Games~Trivia~Settings"});
    ASSERT_TRUE(container_->SelectNode("Games~Trivia"));
    EXPECT_EQ(container_->OpenFunctionPage(""), nullptr);
    Page* page = container_->OpenFunctionPage("Games~Trivia~Settings");
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(MenuCaptions(),
              (std::vector<std::string>{"&1. Games ~ Trivia", "&2. Games ~ Trivia ~ Settings"}));
    ASSERT_TRUE(container_->Close(*page));
    EXPECT_EQ(MenuCaptions(), (std::vector<std::string>{"&1. Games ~ Trivia"}));
    // Its entry opens nothing, and being listed already it isn't listed twice.
    EXPECT_TRUE(container_->ClickWindowsMenu(1));
    EXPECT_TRUE(container_->OpenPages().empty());
    EXPECT_EQ(container_->OpenWindows().Count(), 1);
    EXPECT_FALSE(container_->ClickWindowsMenu(2));
}

TEST_F(ContainerTest, AFunctionWhosePageIsNotBuiltOpensAndListsNothing) {
    StartWith({});
    EXPECT_EQ(container_->OpenFunctionPage("Games~Hangman"), nullptr);
    EXPECT_EQ(container_->OpenWindows().Count(), 0);
}

TEST_F(ContainerTest, ElevenPagesGiveTenMenuEntriesAndElevenWindows) {
    const auto keys = test::TreeFunctionKeys(11);
    StartWith(keys);
    for (const auto& key : keys)
        ASSERT_NE(container_->OpenFunctionPage(key), nullptr) << key;
    const auto captions = MenuCaptions();
    ASSERT_EQ(captions.size(), 10u);
    EXPECT_EQ(captions[0], "&1. " + CaptionOfKey(keys[0]));
    EXPECT_EQ(captions[8], "&9. " + CaptionOfKey(keys[8]));
    EXPECT_EQ(captions[9], "1&0. " + CaptionOfKey(keys[9]));
    ASSERT_EQ(container_->OpenWindows().Count(), 11);
    EXPECT_EQ(container_->OpenWindows().Item(11).WindowTag(), keys[10]);
    EXPECT_TRUE(container_->ClickWindowsMenu(10));
    EXPECT_EQ(container_->Active()->Key(), keys[9]);
}

TEST_F(ContainerTest, ClosingTheThirdOfFiveRenumbersTheMenu) {
    const auto keys = test::TreeFunctionKeys(5);
    StartWith(keys);
    for (const auto& key : keys)
        container_->OpenFunctionPage(key);
    ASSERT_TRUE(container_->Close(*container_->Find(keys[2])));
    EXPECT_EQ(MenuCaptions(), (std::vector<std::string>{
                                  "&1. " + CaptionOfKey(keys[0]), "&2. " + CaptionOfKey(keys[1]),
                                  "&3. " + CaptionOfKey(keys[3]), "&4. " + CaptionOfKey(keys[4])}));
    EXPECT_TRUE(container_->ClickWindowsMenu(3));
    EXPECT_EQ(container_->Active()->Key(), keys[3]);
}

TEST_F(ContainerTest, APageWhoseCaptionIsNotItsKeyTakesTheLastEntryWithIt) {
    // The right click switches page is captioned "General ~ Right Clicks": without its blanks
    // that is the language page's key, so it forgets that page's entry, or else the last one.
    Start({{"General~EnableRightClicks", "General ~ Right Clicks", {}},
           {"General~Bots", "", {}},
           {"Games~Hangman", "", {}}});
    container_->OpenFunctionPage("General~EnableRightClicks");
    container_->OpenFunctionPage("General~Bots");
    container_->OpenFunctionPage("Games~Hangman");
    container_->Close(*container_->Find("General~EnableRightClicks"));
    EXPECT_EQ(MenuCaptions(),
              (std::vector<std::string>{"&1. General ~ EnableRightClicks", "&2. General ~ Bots"}));
}

TEST_F(ContainerTest, TheGroupCounterWalksTheGroupAndKeepsRunningAcrossClosedWindows) {
    StartWith({});
    std::vector<std::string> keys;
    for (const auto& entry : container_->Navigation().Group("General")->menu) {
        keys.push_back(entry.key);
        // All of the group's pages exist here, so that each click opens one.
        test::RegisterStubPages(registry_, {{entry.key, "", {}}}, calls_);
    }

    ASSERT_TRUE(container_->MDITop().UserClick("General"));
    ASSERT_TRUE(container_->MDITop().UserClick("General"));
    EXPECT_EQ(container_->Active()->Key(), keys[1]);
    container_->CloseAll();
    ASSERT_TRUE(container_->MDITop().UserClick("General"));
    EXPECT_EQ(container_->Active()->Key(), keys[2]);
    EXPECT_EQ(container_->GroupCounter("General"), 3);
    for (size_t i = 3; i < keys.size(); ++i)
        container_->MDITop().UserClick("General");
    EXPECT_EQ(container_->Active()->Key(), keys.back());
    // Past the last row it starts again at the first.
    container_->MDITop().UserClick("General");
    EXPECT_EQ(container_->Active()->Key(), keys[0]);
    EXPECT_EQ(container_->GroupCounter("General"), 1);
    EXPECT_EQ(container_->GroupCounter("Games"), 0);
}

TEST_F(ContainerTest, TheMisdirectedJokesRowOpensTheTriviaSettings) {
    StartWith({"Games~Trivia~Settings", "UserActions~Jokes~Settings"});
    ASSERT_TRUE(container_->MDITop().UserMenuClick("UserActions", "Games~Trivia~Settings"));
    EXPECT_EQ(container_->Active()->Key(), "Games~Trivia~Settings");
    EXPECT_FALSE(container_->MDITop().UserMenuClick("UserActions", "UserActions~Jokes~Settings"));
}

TEST_F(ContainerTest, PopupEntriesAreThoseTheActivePageHasAndFalseCallsTrue) {
    Start({{"Games~Hangman",
            "",
            {"gMenuFirstAddClick", "gMenuFirstEditClick", "gMenuTrueFalseTrueClick",
             "gMenuTrueFalseFalseClick"}}});
    EXPECT_TRUE(container_->PopupEntries("mnuFirst").empty());  // no page is active
    container_->OpenFunctionPage("Games~Hangman");
    std::vector<std::string> shown;
    for (const auto& entry : container_->PopupEntries("mnuFirst"))
        shown.push_back(entry.name);
    EXPECT_EQ(shown, (std::vector<std::string>{"mnuFirstAdd", "mnuFirstEdit"}));
    EXPECT_EQ(container_->PopupEntries("mnuTrueFalse").size(), 2u);

    EXPECT_TRUE(container_->ClickPopupEntry("mnuFirstEdit"));
    EXPECT_FALSE(container_->ClickPopupEntry("mnuFirstDelete"));
    EXPECT_TRUE(container_->ClickPopupEntry("mnuTrueFalseFalse"));
    EXPECT_TRUE(container_->ClickPopupEntry("mnuTrueFalseTrue"));
    EXPECT_EQ(calls_, (std::vector<std::string>{"Games~Hangman:gMenuFirstEditClick",
                                                "Games~Hangman:gMenuTrueFalseTrueClick",
                                                "Games~Hangman:gMenuTrueFalseTrueClick"}));
}

TEST_F(ContainerTest, TheTextEditorIsNeitherListedNorForgotten) {
    StartWith({"General~Bots"});
    container_->OpenFunctionPage("General~Bots");
    Page* editor = container_->OpenTextEditor("General\\Note.txt", "N");
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->Key(), kTextEditorKey);
    EXPECT_EQ(container_->OpenWindows().Count(), 1);
    ASSERT_TRUE(container_->Close(*editor));
    EXPECT_EQ(container_->OpenWindows().Count(), 1);
}

// A page that opened the editor hears of each save, and is the active page again when the editor
// closes, whichever page was opened last.
TEST_F(ContainerTest, TheEditorTellsItsOpenerOfEachSaveAndGivesItTheFocusBack) {
    StartWith({"General~Bots", "General~News"});
    std::filesystem::create_directories(hub_.Settings() / "General");
    Page* bots = container_->OpenFunctionPage("General~Bots");
    container_->OpenFunctionPage("General~News");
    container_->OpenFunctionPage("General~Bots");
    Page* editor = container_->OpenTextEditor("General\\Note.txt", "N");
    ASSERT_NE(editor, nullptr);
    static_cast<TextBox*>(editor->Find("txtTextBox"))->UserSetText("x");
    ASSERT_TRUE(static_cast<Toolbar*>(editor->Find("tlbFormToolbar"))->UserClick("SAVE"));
    EXPECT_EQ(calls_, (std::vector<std::string>{"General~Bots:saved General\\Note.txt"}));
    ASSERT_TRUE(container_->Close(*editor));
    EXPECT_EQ(container_->Active(), bots);
}

TEST_F(ContainerTest, SideBarAndNodeButtons) {
    StartWith({});
    EXPECT_EQ(container_->ExpandedNodes(), (std::set<std::string>{"Quillbook"}));
    ASSERT_TRUE(container_->Sidebar().UserClick("EXPAND"));
    EXPECT_TRUE(container_->ExpandedNodes().contains("Games~Trivia"));
    EXPECT_TRUE(container_->ExpandedNodes().contains("Security"));
    ASSERT_TRUE(container_->Sidebar().UserClick("CLOSE"));
    EXPECT_EQ(container_->ExpandedNodes(), (std::set<std::string>{"Quillbook"}));
    ASSERT_TRUE(container_->MDITop().UserClick("TREEVIEW"));
    EXPECT_FALSE(container_->SideBarVisible());
    ASSERT_TRUE(container_->ClickAppMenu("mnuToolsSideBar"));
    EXPECT_TRUE(container_->SideBarVisible());
}

TEST_F(ContainerTest, TheStatusBarNeverLearnsTheCurrentVersion) {
    hub_.WriteSetting("General/Globals/Version.tbl",
                      test::Crlf({"tVersion = {", "\tsVersion = \"5.2.9\",", "}"}));
    StartWith({});
    container_->SetupStatusBar();
    const StatusBar& status = container_->Status();
    EXPECT_EQ(status.Panel(1).text, "Installed Version = 5.2.9");
    EXPECT_EQ(status.Panel(2).text, "Current Version = Unknown");
    container_->Status().SetText(2, "something else");
    container_->TimerTick();
    EXPECT_EQ(status.Panel(2).text, "Current Version = Unknown");
    EXPECT_EQ(status.Panel(2).width, 2200);

    container_->ClickStatusPanel(1);
    EXPECT_EQ(transcript_.str(), "");
    host_.QueueAnswer(Answer::OK);
    container_->ClickStatusPanel(2);
    EXPECT_EQ(transcript_.str(),
              "message: Click to download new version: Click to download new version -> OK\n");
}

TEST_F(ContainerTest, TheHelpEntriesOpenTheConfiguredAddresses) {
    StartWith({});
    ASSERT_TRUE(container_->ClickAppMenu("mnuHelpVisit"));
    ASSERT_TRUE(container_->ClickAppMenu("mnuHelpDonate"));
    EXPECT_EQ(transcript_.str(),
              std::string("browse: ") + QB_SITE_ADDRESS + "\nbrowse: " + QB_DONATE_ADDRESS + "\n");
    EXPECT_TRUE(container_->ClickAppMenu("mnuWindowsClose"));
    EXPECT_FALSE(container_->ClickAppMenu("mnuNothing"));
}

}  // namespace
}  // namespace qb::shell
