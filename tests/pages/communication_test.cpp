// The communication area through a rebuild: what a fresh tree holds, what a rebuild keeps by
// profile number, what it resets, and the files it never touches.

#include <gtest/gtest.h>

#include <filesystem>

#include "pages/pages.h"
#include "support/area_rebuild.h"
#include "support/page_harness.h"
#include "support/temp_hub.h"

namespace qb::pages {
namespace {

using test::Crlf;

class CommunicationRebuild : public test::AreaRebuild {
  protected:
    CommunicationRebuild() : AreaRebuild(store::Area::Communication, "Communication/") {}
};

TEST_F(CommunicationRebuild, AFreshTreeHoldsEveryDefaultInTheBuildersOrder) {
    Rebuild(2);
    // The row for all users first; each row's text is one line break.
    EXPECT_EQ(
        Read("MOTD/MOTDSettings.tbl"),
        Crlf({"tMOTDSettings = {", "\ttAll = {", "\t\tbUse = 0,", "\t\tbInMain = 0,", "\t},",
              "\ttByProfile = {", "\t\t[-1] = {", "\t\t\tbUse = 0,", "\t\t\tbInMain = 0,", "\t\t},",
              "\t\t[0] = {", "\t\t\tbUse = 0,", "\t\t\tbInMain = 0,", "\t\t},", "\t},", "}"}));
    for (const char* text : {"MOTD/MOTDs/-1.asc", "MOTD/MOTDs/0.asc", "MOTD/MOTDs/all.asc"})
        EXPECT_EQ(Read(text), "\r\n") << text;
    EXPECT_EQ(Read("ChatRooms/ChatRoomSettings.tbl"), Crlf({"tChatRoomSettings = {",
                                                            "\ttAnnounce = {",
                                                            "\t\tbDeleted = 1,",
                                                            "\t\tbSuspended = 1,",
                                                            "\t},",
                                                            "\ttEnabledProfiles = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesCreate = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesDelete = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesSuspend = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesMembers = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t},",
                                                            "}"}));
    EXPECT_EQ(
        Read("RotatingPrivateMessage/RotatingPrivateMessageSettings.tbl"),
        Crlf({"tRotatingPrivateMessageSettings = {", "\tbRandomise = 1,", "\tiDelay = 120,",
              "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},",
              "\ttEnabledAdProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},",
              "\ttEnabledMaintainProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},", "}"}));
    EXPECT_EQ(Read("Clock/ClockSettings.tbl"),
              Crlf({"tClockSettings = {", "\tiDelay = 60,", "\tbManualControl = 0,",
                    "\tsDaylightSaving = \"BST\",", "\tsStandardTime = \"GMT\",",
                    "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},", "}"}));
    EXPECT_EQ(Read("Whisper/WhisperSettings.tbl"),
              Crlf({"tWhisperSettings = {", "\tbSendConfirmation = 1,", "}"}));
    for (const auto& [file, table] : std::vector<std::pair<std::string, std::string>>{
             {"ChatRooms/ChatRooms.tbl", "tChatRooms"},
             {"AutoCorrect/AutoCorrectWords.tbl", "tAutoCorrectWords"},
             {"AutoCorrect/AutoCorrectFilters.tbl", "tAutoCorrectFilters"},
             {"WelcomeInfo/WelcomeInfoNetworkHubs.tbl", "tWelcomeInfoNetworkHubs"},
             {"RotatingMainMessage/RotatingMainMessageFiles.tbl", "tRotatingMainMessageFiles"},
             {"RotatingPrivateMessage/RotatingPrivateMessageImmuneUsers.tbl",
              "tRotatingPrivateMessageImmuneUsers"},
             {"TopicChanger/TopicChangerTopics.tbl", "tTopicChangerTopics"},
             {"KickBarChanger/KickBarChangerTopics.tbl", "tKickBarChangerTopics"}}) {
        EXPECT_EQ(Read(file), Crlf({table + " = {", "}"})) << file;
    }
    // The hub e-mail has no place in the tree.
    EXPECT_FALSE(std::filesystem::exists(hub.Settings() / "Communication/HubEmail"));
}

// Files as the pages saved them, then a profile added at the hub: each value stays with its
// number, the new one takes its default, and the lists and texts are left as they were.
TEST_F(CommunicationRebuild, AProfileAddedKeepsValuesByNumberAndLeavesDataAlone) {
    Rebuild(2);
    Write("ChatRooms/ChatRoomSettings.tbl",
          Crlf({"tChatRoomSettings = {", "\ttEnabledProfilesDelete = {", "\t\t[-1] = 0,",
                "\t\t[0] = 1,", "\t},", "\ttEnabledProfiles = {", "\t\t[-1] = 1,", "\t\t[0] = 1,",
                "\t},", "}"}));
    Write("MOTD/MOTDSettings.tbl",
          Crlf({"tMOTDSettings = {", "\ttByProfile = {", "\t\t[-1] = {", "\t\t\tbUse = 1,",
                "\t\t\tbInMain = 0,", "\t\t},", "\t\t[0] = {", "\t\t\tbUse = 0,",
                "\t\t\tbInMain = 1,", "\t\t},", "\t},", "\ttAll = {", "\t\tbUse = 1,",
                "\t\tbInMain = 1,", "\t},", "}"}));
    Write("MOTD/MOTDs/0.asc", "Welcome, master\r\n");
    const std::string words = Crlf({"tAutoCorrectWords = {", "\t[\"teh\"] = \"the\",", "}"});
    Write("AutoCorrect/AutoCorrectWords.tbl", words);
    const std::string list = Crlf({"tRotatingMainMessageFiles = {", "\t\"rules\",", "}"});
    Write("RotatingMainMessage/RotatingMainMessageFiles.tbl", list);
    Write("RotatingMainMessage/Files/rules.asc", "Be nice\r\n");
    // Both labels emptied on the clock page.
    Write("Clock/ClockSettings.tbl",
          Crlf({"tClockSettings = {", "\tiDelay = 5,", "\tbManualControl = 1,",
                "\tsDaylightSaving = \"\",", "\tsStandardTime = \"\",", "\ttEnabledProfiles = {",
                "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "}"}));

    Rebuild(3);
    // The announce boxes the page's file lacked come back on.
    EXPECT_EQ(Read("ChatRooms/ChatRoomSettings.tbl"), Crlf({"tChatRoomSettings = {",
                                                            "\ttAnnounce = {",
                                                            "\t\tbDeleted = 1,",
                                                            "\t\tbSuspended = 1,",
                                                            "\t},",
                                                            "\ttEnabledProfiles = {",
                                                            "\t\t[-1] = 1,",
                                                            "\t\t[0] = 1,",
                                                            "\t\t[1] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesCreate = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t\t[1] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesDelete = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 1,",
                                                            "\t\t[1] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesSuspend = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t\t[1] = 0,",
                                                            "\t},",
                                                            "\ttEnabledProfilesMembers = {",
                                                            "\t\t[-1] = 0,",
                                                            "\t\t[0] = 0,",
                                                            "\t\t[1] = 0,",
                                                            "\t},",
                                                            "}"}));
    // The profiles keep their rows; the row for all users is reset.
    EXPECT_EQ(Read("MOTD/MOTDSettings.tbl"), Crlf({"tMOTDSettings = {",
                                                   "\ttAll = {",
                                                   "\t\tbUse = 0,",
                                                   "\t\tbInMain = 0,",
                                                   "\t},",
                                                   "\ttByProfile = {",
                                                   "\t\t[-1] = {",
                                                   "\t\t\tbUse = 1,",
                                                   "\t\t\tbInMain = 0,",
                                                   "\t\t},",
                                                   "\t\t[0] = {",
                                                   "\t\t\tbUse = 0,",
                                                   "\t\t\tbInMain = 1,",
                                                   "\t\t},",
                                                   "\t\t[1] = {",
                                                   "\t\t\tbUse = 0,",
                                                   "\t\t\tbInMain = 0,",
                                                   "\t\t},",
                                                   "\t},",
                                                   "}"}));
    EXPECT_EQ(Read("MOTD/MOTDs/0.asc"), "Welcome, master\r\n");
    EXPECT_EQ(Read("MOTD/MOTDs/1.asc"), "\r\n");
    EXPECT_EQ(Read("AutoCorrect/AutoCorrectWords.tbl"), words);
    EXPECT_EQ(Read("RotatingMainMessage/RotatingMainMessageFiles.tbl"), list);
    EXPECT_EQ(Read("RotatingMainMessage/Files/rules.asc"), "Be nice\r\n");
    EXPECT_EQ(Read("Clock/ClockSettings.tbl"),
              Crlf({"tClockSettings = {", "\tiDelay = 5,", "\tbManualControl = 1,",
                    "\tsDaylightSaving = \"BST\",", "\tsStandardTime = \"GMT\",",
                    "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t\t[1] = 0,",
                    "\t},", "}"}));
}

// The rebuild crosses the network's name and address, so a second one puts them back; the
// minimum share the page never writes comes back empty. A value ending in a double quote loses
// that quote to the readers' trim at the first rebuild.
TEST_F(CommunicationRebuild, EachRebuildSwapsTheNetworksNameAndAddress) {
    Rebuild(2);
    Write("WelcomeInfo/WelcomeInfoSettings.tbl",
          Crlf({"tWelcomeInfoSettings = {", "\tbShowOps = 0,", "\tbOnlyOnline = 1,",
                "\tsNetworkName = \"Net \"quoted\"\",", "\tsHubOwner = \"Ann\",",
                "\tsNetworkAddress = \"net.example\",", "\ttEnabledProfiles = {", "\t\t[-1] = 0,",
                "\t\t[0] = 1,", "\t},", "}"}));
    const auto expected = [](const std::string& name, const std::string& address) {
        return Crlf({"tWelcomeInfoSettings = {", "\tbShowOps = 0,", "\tbOnlyOnline = 1,",
                     "\tsNetworkFounder = \"\",", "\tsNetworkName = \"" + name + "\",",
                     "\tsNetworkFounded = \"\",", "\tsHubOwner = \"Ann\",", "\tsHubEmail = \"\",",
                     "\tsHublistAddress = \"\",", "\tsWebSite = \"\",",
                     "\tsNetworkAddress = \"" + address + "\",", "\tsMinShare = \"\",",
                     "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "}"});
    };
    Rebuild(2);
    EXPECT_EQ(Read("WelcomeInfo/WelcomeInfoSettings.tbl"), expected("net.example", "Net \"quoted"));
    Rebuild(2);
    EXPECT_EQ(Read("WelcomeInfo/WelcomeInfoSettings.tbl"), expected("Net \"quoted", "net.example"));
}

}  // namespace
}  // namespace qb::pages
