// The permission matrices in the real window: a hub of a hundred profiles gives the Talk page ten
// thousand rows, which the view shows through its model; flips, the pop-up menu and the filter
// buttons work through the widgets.

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "gui/page_view.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class MatrixWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        harness_ = std::make_unique<test::WindowHarness>();
        harness_->Hub().Write("cfg/Profiles.xml", test::ProfilesXml(kProfiles - 1));
        harness_->Hub().WriteSetting("Communication/Talk/Talk.tbl", "");
        harness_->Load();
        QVERIFY(harness_->Show(QSize(1000, 800)));
    }

    void cleanup() { harness_.reset(); }

    void tenThousandRowsOpenOnceAndFlipAtTheBottom() {
        harness_->Window().OpenPage("Communication~Talk");
        QTreeView* list = List();
        QVERIFY(list != nullptr);
        QAbstractItemModel* model = list->model();
        QTRY_COMPARE(model->rowCount(), kProfiles * kProfiles);
        QVERIFY(list->isColumnHidden(4) && list->isColumnHidden(5));
        QCOMPARE(model->headerData(3, Qt::Horizontal).toString(), QStringLiteral("Allow To"));

        list->scrollToBottom();
        const QModelIndex last = model->index(model->rowCount() - 1, 0);
        QTRY_VERIFY(list->viewport()->rect().contains(list->visualRect(last).center()));
        const QPoint at = list->visualRect(last).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(model->index(last.row(), 3).data().toString(), QStringLiteral("Yes"));
        QCOMPARE(model->index(last.row(), 2).data().toString(), QStringLiteral("P98"));
        QVERIFY(SaveAction()->isEnabled());

        // A save empties the list and loads it again: the view is reset once for the click.
        QSignalSpy resets(model, &QAbstractItemModel::modelReset);
        SaveAction()->trigger();
        QTRY_COMPARE(resets.count(), 1);
        QTest::qWait(50);
        QCOMPARE(resets.count(), 1);
        QCOMPARE(model->rowCount(), kProfiles * kProfiles);
        QVERIFY(!SaveAction()->isEnabled());
        // The cell is the file's last; the page reads it back as "No", for no one-key read goes
        // past line 5000 of a file.
        QVERIFY(harness_->Hub()
                    .ReadSetting("Communication/Talk/Talk.tbl")
                    .ends_with("\t\t[98] = 1,\r\n\t},\r\n}\r\n"));
    }

    void thePopUpMenuOffersTheOneFlipTheCellAllows() {
        harness_->Window().OpenPage("Communication~Talk");
        QTreeView* list = List();
        QVERIFY(list != nullptr);
        QTRY_COMPARE(list->model()->rowCount(), kProfiles * kProfiles);
        const QModelIndex row = list->model()->index(1, 0);
        emit list->customContextMenuRequested(list->visualRect(row).center());
        QMenu* menu = harness_->Window().LastPopup();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().front()->objectName(), QStringLiteral("mnuTrueFalseTrue"));
        menu->actions().front()->trigger();
        QCOMPARE(list->model()->index(1, 3).data().toString(), QStringLiteral("Yes"));

        emit list->customContextMenuRequested(list->visualRect(row).center());
        menu = harness_->Window().LastPopup();
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().front()->objectName(), QStringLiteral("mnuTrueFalseFalse"));
        menu->actions().front()->trigger();
        QCOMPARE(list->model()->index(1, 3).data().toString(), QStringLiteral("No"));
    }

    void aFilterButtonIsPressedByItsMenuAndLiftedByItsClick() {
        harness_->Window().OpenPage("Arcade~Permissions");
        QTreeView* list = List();
        QVERIFY(list != nullptr);
        QTRY_COMPARE(list->model()->rowCount(), 5 * kProfiles);
        QAction* profile = harness_->ToolbarButton("tlbListview", "PROFILE");
        QVERIFY(profile != nullptr && profile->menu() != nullptr);
        QVERIFY(!profile->isChecked());
        QAction* entry = nullptr;
        for (QAction* action : profile->menu()->actions()) {
            if (action->data().toString() == QStringLiteral("P7")) entry = action;
        }
        QVERIFY(entry != nullptr);
        entry->trigger();
        QTRY_COMPARE(list->model()->rowCount(), 5);
        QVERIFY(profile->isChecked());
        QCOMPARE(list->model()->index(0, 1).data().toString(), QStringLiteral("P7"));

        profile->trigger();
        QTRY_COMPARE(list->model()->rowCount(), 5 * kProfiles);
        QVERIFY(!profile->isChecked());
    }

  private:
    static constexpr int kProfiles = 100;  // Unregistered and 99 of the hub's

    QTreeView* List() const {
        PageWindow* page = harness_->ActivePageWindow();
        return page == nullptr ? nullptr : page->findChild<QTreeView*>("lvwPermissions");
    }
    QAction* SaveAction() const { return harness_->ToolbarButton("tlbFormToolbar", "SAVE"); }

    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(matrix_window_test, qb::gui::MatrixWindowTest)
#include "matrix_window_test.moc"
