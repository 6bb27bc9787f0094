// The user action pages in the real window: the wards box shows its tip, and the Delete key on a
// list asks before it deletes the row.

#include <QCheckBox>
#include <QMessageBox>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class UserActionsWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        harness_ = std::make_unique<test::WindowHarness>();
        harness_->Hub().WriteSetting("UserActions/Attacks/Attacks.tbl",
                                     test::Crlf({"tAttacks = {", "\t\"!username! pokes !victim!\",",
                                                 "\t\"!username! tickles !victim!\",", "}"}));
        harness_->Load();
        QVERIFY(harness_->Show());
    }

    void cleanup() { harness_.reset(); }

    void theWardsBoxShowsItsTip() {
        harness_->Window().OpenPage("UserActions~Spells~Settings");
        auto* wards = harness_->Window().findChild<QCheckBox*>("chkCheckBox(0)");
        QVERIFY(wards != nullptr);
        QCOMPARE(wards->text(), QStringLiteral("Enable Wards"));
        QCOMPARE(wards->toolTip(), QStringLiteral("Allows IPs beginning with 0 (such as 0.3.6.0)"));
    }

    void theDeleteKeyAsksAndDeletesTheRow() {
        harness_->Window().OpenPage("UserActions~Attacks");
        auto* list = harness_->Window().findChild<QTreeView*>("lvwAttacks");
        QVERIFY(list != nullptr);
        test::ClickRow(*list, 1);
        QString asked;
        test::AnswerNextBox(*this, QMessageBox::Ok,
                            [&](const QMessageBox& box) { asked = box.text(); });
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(asked, QStringLiteral("Do you really want to delete this intro?"));
        QCOMPARE(list->model()->rowCount(), 1);
        QCOMPARE(list->model()->index(0, 0).data().toString(),
                 QStringLiteral("!username! pokes !victim!"));
        QVERIFY(harness_->Container().Active()->SaveRequired());
    }

  private:
    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(useractions_window_test, qb::gui::UserActionsWindowTest)
#include "useractions_window_test.moc"
