// The text editor page over real files: what a load and save cycle does to a file, the long
// file that jams the file slot, and a new file.

#include "shell/text_editor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "shell/container.h"
#include "shell/scripted_host.h"
#include "support/temp_hub.h"

namespace qb::shell {
namespace {

class TextEditorTest : public ::testing::Test {
  protected:
    TextEditorTest() : files_(hub_.ProgramFolder()), host_(transcript_) {}

    Page& Open(const std::string& file, const std::string& mode = "E") {
        Page* page = container_.OpenTextEditor(file, mode);
        EXPECT_NE(page, nullptr);
        return *page;
    }
    static TextBox& Text(Page& page) { return static_cast<TextBox&>(*page.Find("txtTextBox")); }
    static bool Click(Page& page, const std::string& key) {
        return const_cast<Toolbar&>(page.FormToolbar()).UserClick(key);
    }

    test::TempHub hub_;
    store::TableFiles files_;
    std::ostringstream transcript_;
    ScriptedHost host_;
    PageRegistry registry_;
    Container container_{files_, host_, registry_, store::kBuildVersion};
};

TEST_F(TextEditorTest, ALoadAndSaveCycleAddsOneEmptyLineAtTheEnd) {
    hub_.WriteSetting("Games/Hangman/Ascii/Stage1.asc", "  O\r\n /|\\\r\n");
    Page& page = Open("Games\\Hangman\\Ascii\\Stage1.asc");
    EXPECT_EQ(Text(page).Text(), "  O\r\n /|\\\r\n");
    EXPECT_FALSE(page.SaveRequired());
    EXPECT_EQ(page.FormToolbar().Find("RESTORE"), nullptr);

    ASSERT_TRUE(Text(page).UserSetText("  O\r\n /|\\\r\n / \\\r\n"));
    EXPECT_TRUE(page.SaveRequired());
    ASSERT_TRUE(Click(page, "SAVE"));
    EXPECT_FALSE(page.SaveRequired());
    EXPECT_EQ(hub_.ReadSetting("Games/Hangman/Ascii/Stage1.asc"), "  O\r\n /|\\\r\n / \\\r\n\r\n");

    // Each further cycle grows the file by one more line.
    container_.Close(page);
    Page& again = Open("Games\\Hangman\\Ascii\\Stage1.asc");
    // SAVE waits for a change: a key typed and taken back.
    const std::string loaded = Text(again).Text();
    Text(again).UserSetText(loaded + "x");
    Text(again).UserSetText(loaded);
    ASSERT_TRUE(Click(again, "SAVE"));
    EXPECT_EQ(hub_.ReadSetting("Games/Hangman/Ascii/Stage1.asc"),
              "  O\r\n /|\\\r\n / \\\r\n\r\n\r\n");
}

TEST_F(TextEditorTest, DiscardReadsTheFileAgainAndClearsTheMark) {
    hub_.WriteSetting("Rules.txt", "one\r\n");
    Page& page = Open("Rules.txt");
    Text(page).UserSetText("changed");
    host_.QueueAnswer(Answer::OK);
    ASSERT_TRUE(Click(page, "DISCARD"));
    EXPECT_EQ(Text(page).Text(), "one\r\n");
    EXPECT_FALSE(page.SaveRequired());
    EXPECT_FALSE(page.FormToolbar().Find("SAVE")->enabled);
}

TEST_F(TextEditorTest, AFileOverFiveThousandLinesLoadsEmptyAndBlocksLaterReads) {
    hub_.WriteSetting("Small.txt", "small\r\n");
    std::string big;
    for (int i = 0; i < 5001; ++i)
        big += "line " + std::to_string(i) + "\r\n";
    hub_.WriteSetting("Big.txt", big);

    EXPECT_EQ(Text(Open("Big.txt")).Text(), "");
    EXPECT_TRUE(files_.SlotStuck());
    EXPECT_EQ(Text(Open("Small.txt")).Text(), "");
    EXPECT_EQ(files_.ReadTableValue("Small.txt", "small", ""), "");
}

TEST_F(TextEditorTest, ANewFileIsNotOnDiskBeforeItsFirstSave) {
    Page& page = Open("Communication\\MOTD\\MOTDs\\New.txt", "N");
    EXPECT_EQ(Text(page).Text(), "");
    Text(page).UserSetText("hello");
    host_.QueueAnswer(Answer::OK);
    ASSERT_TRUE(container_.Close(page));
    EXPECT_FALSE(std::filesystem::exists(hub_.Settings() / "Communication"));

    hub_.WriteSetting("Communication/MOTD/MOTDs/.keep", "");
    Page& second = Open("Communication\\MOTD\\MOTDs\\New.txt", "N");
    Text(second).UserSetText("hello");
    ASSERT_TRUE(Click(second, "SAVE"));
    EXPECT_EQ(hub_.ReadSetting("Communication/MOTD/MOTDs/New.txt"), "hello\r\n");
}

TEST_F(TextEditorTest, OpeningTheEditorOnAnotherFileAsksAboutUnsavedText) {
    hub_.WriteSetting("A.txt", "a\r\n");
    hub_.WriteSetting("B.txt", "b\r\n");
    Page& a = Open("A.txt");
    Text(a).UserSetText("edited");
    host_.QueueAnswer(Answer::Cancel);
    EXPECT_EQ(container_.OpenTextEditor("B.txt", "E"), nullptr);
    EXPECT_EQ(Text(a).Text(), "edited");
    host_.QueueAnswer(Answer::OK);
    Page* b = container_.OpenTextEditor("B.txt", "E");
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(Text(*b).Text(), "b\r\n");
    EXPECT_EQ(container_.OpenPages().size(), 1u);
}

}  // namespace
}  // namespace qb::shell
