// `quillbook-cli portal` as a user runs it: the saved portal, two hubs, Ctrl-C.

#include <signal.h>

#include <gtest/gtest.h>

#include <QProcess>

#include "hublink/portal_fixture.h"

namespace qb::test {
namespace {

TEST(PortalCommand, RelaysUntilInterruptedThenQuitsEveryHub) {
    FakeHub hub1;
    FakeHub hub2;
    TempHub folder;
    PortalFile file;
    file.hubs = {{hub1.Address(), "pw1", "0", {}}, {hub2.Address(), "pw2", "0", {}}};
    folder.WriteSetting("Communication/Portal/PortalSettings.tbl", file.Text());

    QProcess cli;
    cli.start(QB_CLI, {"--scripts", QString::fromStdString(folder.Scripts().string()), "portal"});
    ASSERT_TRUE(hub1.LogIn("Portal"));
    ASSERT_TRUE(hub2.LogIn("Portal"));
    hub1.Send("<Alice> hello|");
    ASSERT_TRUE(hub2.WaitFor("<Portal> <Alice> hello|"));

    ::kill(static_cast<pid_t>(cli.processId()), SIGINT);
    EXPECT_TRUE(hub1.WaitFor("$Quit " + hub1.Address() + "|"));
    EXPECT_TRUE(hub2.WaitFor("$Quit " + hub2.Address() + "|"));
    ASSERT_TRUE(WaitUntil([&] { return cli.state() == QProcess::NotRunning; }));
    EXPECT_EQ(cli.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();
    const std::string out = cli.readAllStandardOutput().toStdString();
    EXPECT_NE(out.find("hub 1: logged in"), std::string::npos) << out;
    EXPECT_NE(out.find("hub 1: relayed to hub 2: <Portal> <Alice> hello|"), std::string::npos)
        << out;
    EXPECT_NE(out.find("hub 2: closed: unticked"), std::string::npos) << out;
}

TEST(PortalCommand, EndsWhenTheHubsCloseEverySession) {
    FakeHub hub1;
    TempHub folder;
    PortalFile file;
    file.hubs = {{hub1.Address(), "", "0", {}}, {"127.0.0.1:", "", "0", {}}};
    folder.WriteSetting("Communication/Portal/PortalSettings.tbl", file.Text());

    QProcess cli;
    cli.start(QB_CLI, {"--scripts", QString::fromStdString(folder.Scripts().string()), "portal"});
    ASSERT_TRUE(hub1.WaitForClient());
    hub1.Drop();
    ASSERT_TRUE(WaitUntil([&] { return cli.state() == QProcess::NotRunning; }));
    EXPECT_EQ(cli.exitCode(), 4);
    const std::string out = cli.readAllStandardOutput().toStdString();
    EXPECT_NE(out.find("message: Hub Address Without Port: "), std::string::npos) << out;
    EXPECT_NE(out.find("every session has ended"), std::string::npos) << out;
}

}  // namespace
}  // namespace qb::test
