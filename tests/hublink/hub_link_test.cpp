// HubLink without sockets: what only bytes in and actions out can show.

#include "hublink/hub_link.h"

#include <gtest/gtest.h>

#include "hublink/nmdc_text.h"

namespace qb::hublink {
namespace {

class Core : public ::testing::Test {
  protected:
    Core() {
        values.username = "Portal";
        values.description = "a bot";
        values.email = "bot@example.org";
        values.hubs = {{"hub.one:411", "pw", "412", "hub.one:411"},
                       {"hub.two:411", "", "413", "hub.two:411"}};
    }

    // What the link sends to `slot`, joined, since the last call.
    std::string Sent(int slot) {
        std::string bytes;
        for (const Action& action : link.TakeActions()) {
            if (action.kind == Action::Kind::Send && action.slot == slot) bytes += action.bytes;
        }
        return bytes;
    }

    void LogIn(int slot) {
        link.Receive(slot, "$Hello Portal|");
        link.TakeActions();
    }

    FixedValues values;
    HubLink link{values};
};

TEST_F(Core, RelayRules) {
    // Slot 2 not logged in: chat of hub 1 goes nowhere.
    link.Receive(1, "<Alice> hello|");
    EXPECT_EQ(Sent(2), "");

    LogIn(1);
    LogIn(2);
    // The leftmost ">" ends the sender; the message keeps the rest as it stands.
    link.Receive(1, "<Alice> a > b <c>|");
    EXPECT_EQ(Sent(2), "<Portal> <Alice> a > b <c>|");
    // A sender equal to the other hub's HubName cell isn't passed on.
    link.Receive(1, "<hub.two:411> welcome|<x>y|");
    EXPECT_EQ(Sent(2), "<Portal> <x>y |");
    // An empty line between pipes reaches the relay as a blank.
    link.Receive(2, "||");
    EXPECT_EQ(Sent(1), "<Portal>  |<Portal>  |");
    // A line starting with ">" has no sender.
    link.Receive(2, ">x|");
    EXPECT_EQ(Sent(1), "<Portal> >x |");
}

TEST_F(Core, LinesOverTheLimitCutTheSlotAndDropItsBuffer) {
    LogIn(2);
    const std::string piece(256 * 1024, 'x');
    for (int i = 0; i < 4; ++i)
        link.Receive(1, piece);
    EXPECT_EQ(link.Buffered(1), kMaxLineBytes) << "exactly the limit is allowed";
    link.TakeEvents();
    link.Receive(1, "y");
    EXPECT_EQ(link.Buffered(1), 0u);
    EXPECT_EQ(link.BufferPeak(1), kMaxLineBytes);
    const auto actions = link.TakeActions();
    ASSERT_EQ(actions.size(), 1u);
    EXPECT_EQ(actions[0].kind, Action::Kind::Close);
    EXPECT_EQ(actions[0].slot, 1);
    const auto events = link.TakeEvents();
    ASSERT_GE(events.size(), 2u);
    EXPECT_EQ(events[0].kind, Event::Kind::CutOff);
    EXPECT_TRUE(link.LoggedIn(2));

    // A long run that does end in a pipe is fine, whatever came before it.
    link.Receive(1, std::string(kMaxLineBytes, 'z'));
    link.Receive(1, "|");
    EXPECT_EQ(link.Buffered(1), 0u);
}

TEST_F(Core, BufferOutlivesAPlainCloseButNotAnUntick) {
    link.Receive(1, "$Lock AB");
    link.ConnectionLost(1, "closed by the hub");
    link.TakeActions();
    link.Receive(1, "C Pk=x|");
    EXPECT_EQ(Sent(1), "$Key T0\x10|$ValidateNick Portal|");

    link.Stop(1, "hub.one:411");
    const auto actions = link.TakeActions();
    ASSERT_EQ(actions.size(), 3u);
    EXPECT_EQ(actions[0].bytes, "$Quit hub.one:411|");
    EXPECT_EQ(actions[1].kind, Action::Kind::Close);
    EXPECT_EQ(actions[2].kind, Action::Kind::CloseUdp);
}

TEST_F(Core, GetInfoAsksOnlyLoggedInHubs) {
    LogIn(2);
    link.GetInfo("Alice");
    EXPECT_EQ(Sent(1), "");
    link.GetInfo("Bob");
    EXPECT_EQ(Sent(2), "$GetINFO Bob Portal|");
}

TEST(MyInfo, FieldsAsTheHubSendsThem) {
    const MyInfo info = ParseMyInfo("$ALL Alice my desc$A$LAN(T1)\x01$alice@x$123456$");
    EXPECT_EQ(info.nick, "Alice");
    EXPECT_EQ(info.description, "my desc");
    EXPECT_EQ(info.mode, "ACTIVE");
    EXPECT_EQ(info.speed, "LAN(T1)");
    EXPECT_EQ(info.status, 1);
    EXPECT_EQ(info.email, "alice@x");
    EXPECT_EQ(info.share, "123456");
}

TEST(MyInfo, ShortAndBrokenLinesStillParse) {
    const MyInfo broken = ParseMyInfo("$ALL Bob$P$$$lots$");
    EXPECT_EQ(broken.nick, "Bob$P$$$lots$");
    EXPECT_EQ(broken.mode, "PASSIVE");
    EXPECT_EQ(broken.status, 0);
    EXPECT_EQ(broken.share, "0");
    EXPECT_EQ(ParseMyInfo("$ALL C d$M$\x08$$1e3$").share, "1e3");
    EXPECT_EQ(ParseMyInfo("").nick, "");
}

}  // namespace
}  // namespace qb::hublink
