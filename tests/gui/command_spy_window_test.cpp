// The command spy page in the real window, driven through its widgets.

#include <QLabel>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QToolBar>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "gui/page_view.h"
#include "gui/qt_host.h"
#include "gui/text.h"
#include "pages/pages.h"
#include "shell/container.h"
#include "support/temp_hub.h"

namespace qb::gui {

class CommandSpyWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        hub_ = std::make_unique<test::TempHub>();
        hub_->Write("cfg/Profiles.xml", "<Name>Master</Name>\n<Name>Operator</Name>\n");
        hub_->WriteSetting(
            "Security/CommandSpy/CommandSpySettings.tbl",
            test::Crlf({"tCommandSpySettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 0,",
                        "\t\t[0] = 1,", "\t\t[1] = 0,", "\t},", "}"}));
        files_ = std::make_unique<store::TableFiles>(hub_->ProgramFolder());
        pages::RegisterAllPages(registry_);
        container_ = std::make_unique<shell::Container>(*files_, host_, registry_);
        container_->LoadProfiles();
        window_ = std::make_unique<MainWindow>(*container_);
        window_->show();
        window_->OpenPage("Security~CommandSpy");
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void cleanup() {
        window_.reset();
        container_.reset();
        files_.reset();
        registry_ = shell::PageRegistry();
        hub_.reset();
    }

    void showsTheProfilesWithTheirTicks() {
        auto* list = window_->findChild<QTreeView*>("lvwEnabledProfiles");
        QVERIFY(list != nullptr);
        QAbstractItemModel* model = list->model();
        QCOMPARE(model->rowCount(), 3);
        QCOMPARE(model->headerData(0, Qt::Horizontal).toString(),
                 QStringLiteral("Enabled Profiles"));
        QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("Unregistered"));
        QCOMPARE(model->index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(model->index(2, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QVERIFY(!SaveAction()->isEnabled());
        QCOMPARE(StatusPanel(1)->text(), QString());
        QCOMPARE(window_->WindowOf("Security~CommandSpy")->windowTitle(),
                 QStringLiteral("Security ~ CommandSpy"));
    }

    void tickingARowThroughTheWidgetMarksThePageDirty() {
        auto* list = window_->findChild<QTreeView*>("lvwEnabledProfiles");
        QVERIFY(list != nullptr);
        const QModelIndex row = list->model()->index(0, 0);
        QStyleOptionViewItem option;
        option.initFrom(list);
        option.rect = list->visualRect(row);
        option.features |=
            QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        option.text = row.data().toString();
        const QRect box =
            list->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, box.center());

        QCOMPARE(row.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QVERIFY(SaveAction()->isEnabled());
        QCOMPARE(StatusPanel(1)->text(), QStringLiteral("Save Required"));
        QVERIFY(container_->Active()->SaveRequired());

        SaveAction()->trigger();
        QVERIFY(!SaveAction()->isEnabled());
        QCOMPARE(StatusPanel(1)->text(), QString());
        QCOMPARE(hub_->ReadSetting("Security/CommandSpy/CommandSpySettings.tbl"),
                 test::Crlf({"tCommandSpySettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                             "\t\t[0] = 1,", "\t\t[1] = 0,", "\t},", "}"}));
    }

    void thePageKeepsItsMinimumSize() {
        PageWindow* page = window_->WindowOf("Security~CommandSpy");
        QVERIFY(page != nullptr);
        QCOMPARE(page->minimumSize(), QSize(3400 / 15, 6075 / 15));
        page->resize(50, 50);
        QVERIFY(page->width() >= 3400 / 15 && page->height() >= 6075 / 15);
    }

  private:
    QAction* SaveAction() const {
        auto* toolbar = window_->findChild<QToolBar*>("tlbFormToolbar");
        return toolbar == nullptr ? nullptr : toolbar->findChild<QAction*>("SAVE");
    }
    QLabel* StatusPanel(int index) const {
        return window_->findChild<QLabel*>(QStringLiteral("panel%1").arg(index));
    }

    std::unique_ptr<test::TempHub> hub_;
    std::unique_ptr<store::TableFiles> files_;
    QtHost host_;
    shell::PageRegistry registry_;
    std::unique_ptr<shell::Container> container_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace qb::gui

QTEST_MAIN(qb::gui::CommandSpyWindowTest)
#include "command_spy_window_test.moc"
