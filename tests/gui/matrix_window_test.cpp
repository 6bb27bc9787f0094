// The permission matrices in the real window: a hub of a hundred profiles gives the Talk page ten
// thousand rows, which the view shows through its model; flips, the pop-up menu and the filter
// buttons work through the widgets.

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QToolBar>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "gui/page_view.h"
#include "gui/qt_host.h"
#include "pages/pages.h"
#include "shell/container.h"
#include "support/temp_hub.h"

namespace qb::gui {

class MatrixWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        hub_ = std::make_unique<test::TempHub>();
        std::string xml = "<Profiles>\r\n";
        for (int i = 0; i < kProfiles - 1; ++i)
            xml += "<Name>P" + std::to_string(i) + "</Name>\r\n";
        hub_->Write("cfg/Profiles.xml", xml + "</Profiles>\r\n");
        hub_->WriteSetting("Communication/Talk/Talk.tbl", "");
        files_ = std::make_unique<store::TableFiles>(hub_->ProgramFolder());
        pages::RegisterAllPages(registry_);
        container_ = std::make_unique<shell::Container>(*files_, host_, registry_);
        container_->LoadProfiles();
        window_ = std::make_unique<MainWindow>(*container_);
        window_->resize(1000, 800);
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void cleanup() {
        window_.reset();
        container_.reset();
        files_.reset();
        registry_ = shell::PageRegistry();
        hub_.reset();
    }

    void tenThousandRowsOpenOnceAndFlipAtTheBottom() {
        window_->OpenPage("Communication~Talk");
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
        QVERIFY(hub_->ReadSetting("Communication/Talk/Talk.tbl")
                    .ends_with("\t\t[98] = 1,\r\n\t},\r\n}\r\n"));
    }

    void thePopUpMenuOffersTheOneFlipTheCellAllows() {
        window_->OpenPage("Communication~Talk");
        QTreeView* list = List();
        QVERIFY(list != nullptr);
        QTRY_COMPARE(list->model()->rowCount(), kProfiles * kProfiles);
        const QModelIndex row = list->model()->index(1, 0);
        emit list->customContextMenuRequested(list->visualRect(row).center());
        QMenu* menu = window_->LastPopup();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().front()->objectName(), QStringLiteral("mnuTrueFalseTrue"));
        menu->actions().front()->trigger();
        QCOMPARE(list->model()->index(1, 3).data().toString(), QStringLiteral("Yes"));

        emit list->customContextMenuRequested(list->visualRect(row).center());
        menu = window_->LastPopup();
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().front()->objectName(), QStringLiteral("mnuTrueFalseFalse"));
        menu->actions().front()->trigger();
        QCOMPARE(list->model()->index(1, 3).data().toString(), QStringLiteral("No"));
    }

    void aFilterButtonIsPressedByItsMenuAndLiftedByItsClick() {
        window_->OpenPage("Arcade~Permissions");
        QTreeView* list = List();
        QVERIFY(list != nullptr);
        QTRY_COMPARE(list->model()->rowCount(), 5 * kProfiles);
        auto* toolbar = window_->findChild<QToolBar*>("tlbListview");
        QVERIFY(toolbar != nullptr);
        QAction* profile = toolbar->findChild<QAction*>("PROFILE");
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
        PageWindow* page = window_->WindowOf(container_->Active()->Key());
        return page == nullptr ? nullptr : page->findChild<QTreeView*>("lvwPermissions");
    }
    QAction* SaveAction() const {
        PageWindow* page = window_->WindowOf(container_->Active()->Key());
        auto* toolbar = page->findChild<QToolBar*>("tlbFormToolbar");
        return toolbar == nullptr ? nullptr : toolbar->findChild<QAction*>("SAVE");
    }

    std::unique_ptr<test::TempHub> hub_;
    std::unique_ptr<store::TableFiles> files_;
    QtHost host_;
    shell::PageRegistry registry_;
    std::unique_ptr<shell::Container> container_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace qb::gui

QTEST_MAIN(qb::gui::MatrixWindowTest)
#include "matrix_window_test.moc"
