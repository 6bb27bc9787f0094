// The portal page in the real window, its sessions on real sockets: a tick in the list logs the
// bot on, and a hub cut off for a line without end is named in the status bar.

#include <QLabel>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "hublink/qt/socket_sessions.h"
#include "pages/pages.h"
#include "support/fake_hub.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class PortalWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void tickConnectsAndACutOffShowsInTheStatusBar() {
        test::FakeHub hub1;
        test::WindowHarness harness;
        harness.Hub().WriteSetting("Communication/Portal/PortalSettings.tbl",
                                   test::Crlf({"tPortalSettings = {",
                                               "\ttUser = {",
                                               "\t\tsUsername = \"Portal\",",
                                               "\t\tsDescription = \"Links two hubs\",",
                                               "\t\tsEmail = \"portal@example.org\",",
                                               "\t\tsClientIP = \"192.0.2.7\",",
                                               "\t},",
                                               "\ttHubs = {",
                                               "\t\t[1] = {",
                                               "\t\t\tsHubAddress = \"" + hub1.Address() + "\",",
                                               "\t\t\tsClientPassword = \"\",",
                                               "\t\t\tsClientPort = \"0\",",
                                               "\t\t},",
                                               "\t\t[2] = {",
                                               "\t\t\tsHubAddress = \"other.example.net:411\",",
                                               "\t\t\tsClientPassword = \"\",",
                                               "\t\t\tsClientPort = \"\",",
                                               "\t\t},",
                                               "\t},",
                                               "\ttIgnoreNicks = {",
                                               "\t\t[1] = \"HubSecurity\",",
                                               "\t},"}));
        pages::PageServices services;
        services.hubLink = hublink::SocketSessionsFactory();
        pages::RegisterAllPages(harness.Registry(), services);
        harness.Load();
        QVERIFY(harness.Show());
        MainWindow& window = harness.Window();
        window.OpenPage("Communication~Portal");

        auto* list = window.findChild<QTreeView*>("lvwHubs");
        QVERIFY(list != nullptr);
        QCOMPARE(list->model()->rowCount(), 2);
        QVERIFY(list->isColumnHidden(3));
        QVERIFY(
            list->model()->setData(list->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(hub1.LogIn("Portal"));
        if (qEnvironmentVariableIsSet("QB_SCREENSHOT")) {
            window.grab().save(qEnvironmentVariable("QB_SCREENSHOT"));
        }

        hub1.Stream(2u << 20, [](std::size_t) { return std::string(64 * 1024, 'x'); });
        QVERIFY(hub1.WaitUntilGone());
        auto* status = window.findChild<QLabel*>("panel2");
        QVERIFY(status != nullptr);
        QVERIFY(
            test::WaitUntil([&] { return status->text().startsWith("Hub 1 was disconnected"); }));
        QCOMPARE(list->model()->index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    }
};

}  // namespace qb::gui

QB_WINDOW_TEST(portal_window_test, qb::gui::PortalWindowTest)
#include "portal_window_test.moc"
