// The portal page's sessions against fake hubs over real loopback sockets.

#include <gtest/gtest.h>

#include "hublink/portal_fixture.h"

namespace qb::test {
namespace {

using Session = PortalFixture;

std::string InfoLine(const std::string& description = "a bot") {
    return "$MyINFO $ALL Portal " + description + "$A$Bot\x08$bot@example.org$0$|";
}

// Sends a line that the client answers, and returns all the client sent since `mark` once the
// answer is in: whatever the client sent for the lines before comes ahead of it.
std::string SentUpToProbe(FakeHub& hub, std::size_t mark, const std::string& info = InfoLine()) {
    hub.Send("$GetINFO Portal probe|");
    EXPECT_TRUE(hub.WaitFor(info, mark));
    return hub.Since(mark);
}

TEST_F(Session, LogsOnByteForByteAndIgnoresLaterHellos) {
    Open(TwoHubs());
    Tick(1, true);
    ASSERT_TRUE(hub1.WaitForClient());
    EXPECT_EQ(hub1.Received(), "") << "nothing is sent until the hub speaks";
    hub1.Send("$Lock Lock Pk=FakeHub|$HubName Fake|");
    ASSERT_TRUE(hub1.WaitFor("$ValidateNick Portal|"));
    hub1.Send("$GetPass|");
    ASSERT_TRUE(hub1.WaitFor("$MyPass pw1|"));
    hub1.Send("$Hello Portal|");
    ASSERT_TRUE(hub1.WaitFor("$GetNickList|"));
    EXPECT_EQ(hub1.Received(), "$Key " + std::string(FakeHub::kKey) +
                                   "|$ValidateNick Portal|$MyPass pw1|$Version 1.0091|" +
                                   InfoLine() + "$GetNickList|");
    EXPECT_TRUE(Link().LoggedIn(1));

    // Once logged in, hellos and log-in notices of anyone start nothing more.
    const std::size_t mark = hub1.Mark();
    hub1.Send("$Hello Alice|$Hello Portal|$LogedIn Portal|$NickList Alice$$Bob$$|$OpList Op$$|");
    EXPECT_EQ(SentUpToProbe(hub1, mark), InfoLine());
}

TEST_F(Session, RefusedNickIsTriedAgainAndBadPasswordGetsNoAnswer) {
    Open(TwoHubs());
    Tick(1, true);
    ASSERT_TRUE(hub1.WaitForClient());
    hub1.Send("$Lock Lock Pk=FakeHub|");
    ASSERT_TRUE(hub1.WaitFor("$ValidateNick Portal|"));
    std::size_t mark = hub1.Mark();
    hub1.Send("$ValidateDenide Portal|$VALIDATEDENIDE Portal|");
    EXPECT_EQ(SentUpToProbe(hub1, mark), "$ValidateNick Portal|$ValidateNick Portal|" + InfoLine());

    mark = hub1.Mark();
    hub1.Send("$BadPass|");
    EXPECT_EQ(SentUpToProbe(hub1, mark), InfoLine());
    EXPECT_FALSE(hub1.ClientGone()) << "the connection stays as it is";
}

TEST_F(Session, PasswordRulesOfTheTwoSlots) {
    // Row 1 without a client port: slot 1 gives no password. Slot 2 gives row 1's password
    // whenever the description is filled in.
    PortalFile file = TwoHubs();
    file.hubs[0].clientPort = "";
    Open(file);
    Tick(1, true);
    Tick(2, true);
    ASSERT_TRUE(hub1.WaitForClient());
    ASSERT_TRUE(hub2.WaitForClient());

    std::size_t mark1 = hub1.Mark();
    std::size_t mark2 = hub2.Mark();
    hub1.Send("$GetPass|");
    hub2.Send("$GetPass|");
    EXPECT_EQ(SentUpToProbe(hub1, mark1), InfoLine());
    EXPECT_EQ(SentUpToProbe(hub2, mark2), "$MyPass pw1|" + InfoLine());

    // The sessions read the page as it is now, saved or not.
    ASSERT_TRUE(TextBox(1).UserSetText(""));
    mark2 = hub2.Mark();
    hub2.Send("$GetPass|");
    EXPECT_EQ(SentUpToProbe(hub2, mark2, InfoLine("")), InfoLine(""));
}

TEST_F(Session, LineSplitAcrossArrivalsIsCompletedByTheNext) {
    Open(TwoHubs());
    Tick(1, true);
    ASSERT_TRUE(hub1.WaitForClient());
    hub1.Send("$Lo");
    ASSERT_TRUE(WaitUntil([this] { return Link().Buffered(1) == 3; }));
    hub1.Send("ck Lock Pk=FakeHub|$Hub");
    ASSERT_TRUE(hub1.WaitFor("$ValidateNick Portal|"));
    EXPECT_EQ(hub1.Received(), "$Key " + std::string(FakeHub::kKey) + "|$ValidateNick Portal|");
    EXPECT_EQ(Link().Buffered(1), 4u) << "the text behind the last pipe waits";
}

TEST_F(Session, RelaysChatBothWaysButNotItsOwnNorIgnoredNicks) {
    LogInBoth();
    std::size_t mark1 = hub1.Mark();
    std::size_t mark2 = hub2.Mark();
    hub1.Send("<Alice> hello|");
    hub2.Send("<Bob> hi there|");
    ASSERT_TRUE(hub2.WaitFor("<Portal> <Alice> hello|", mark2));
    ASSERT_TRUE(hub1.WaitFor("<Portal> <Bob> hi there|", mark1));

    // Hub 2 shows everyone the bot's line, the bot too; a line without a blank still counts as
    // chat; the ignore list is matched with letter case; commands are never relayed.
    mark1 = hub1.Mark();
    hub2.Send(
        "<Portal> <Alice> hello|<Ignored> not passed on|<ignored> passed on|no-blank|"
        "$Search Hub:x F?T?0?1?abc|<Carol> end|");
    ASSERT_TRUE(hub1.WaitFor("<Portal> <Carol> end|", mark1));
    EXPECT_EQ(hub1.Since(mark1),
              "<Portal> <ignored> passed on|<Portal> no-blank |<Portal> <Carol> end|");
}

TEST_F(Session, UntickSendsQuitWithTheRowTextAndADropLeavesTheTick) {
    LogInBoth();
    Tick(1, false);
    ASSERT_TRUE(hub1.WaitFor("$Quit " + hub1.Address() + "|"));
    EXPECT_TRUE(hub1.WaitUntilGone());
    EXPECT_FALSE(Link().LoggedIn(1));
    EXPECT_EQ(Sessions().UdpPort(1), 0) << "the UDP socket closes with the untick";

    // A hub that closes the connection leaves the row ticked and its UDP socket bound; chat of
    // a hub whose partner is gone goes nowhere.
    hub2.Drop();
    ASSERT_TRUE(WaitUntil([this] { return !Link().LoggedIn(2); }));
    EXPECT_TRUE(Hubs().Row(2).checked);
    EXPECT_NE(Sessions().UdpPort(2), 0);
    EXPECT_EQ(Sessions().ListenPort(2), 0);
}

}  // namespace
}  // namespace qb::test
