// The switches and news pages in the real window: the balloon over the switches list, and the
// news article in a real message box with the icon its symbol picks.

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "gui/qt_host.h"
#include "pages/pages.h"
#include "shell/container.h"
#include "support/temp_hub.h"

namespace qb::gui {

class GeneralPagesWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        hub_ = std::make_unique<test::TempHub>();
        hub_->WriteSetting(
            "General/Globals/Switches.tbl",
            test::Crlf({"tSwitches = {", "\tbAntiVirus = 1,", "\tbRussianRoulette = 0,", "}"}));
        hub_->Write("scripts/Vandrell's Scripts/News/News.tbl",
                    test::Crlf({"tNews = {", "\t[1] = \"2026-01-02|Warning|Update now|3\",",
                                "\t[2] = \"2026-01-03|Alert|Site down|4\",", "}"}));
        files_ = std::make_unique<store::TableFiles>(hub_->ProgramFolder());
        pages::RegisterAllPages(registry_);
        container_ = std::make_unique<shell::Container>(*files_, host_, registry_);
        container_->FillNavigation();
        container_->LoadProfiles();
        window_ = std::make_unique<MainWindow>(*container_);
        host_.SetParent(window_.get());
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

    void aClickOnASwitchShowsItsDescriptionWhereThereIsOne() {
        window_->OpenPage("General~Switches");
        auto* list = window_->findChild<QTreeView*>("lvwSwitches");
        QVERIFY(list != nullptr);
        QTRY_VERIFY(list->visualRect(list->model()->index(1, 0)).isValid());
        QCOMPARE(list->model()->rowCount(), 2);
        ClickRow(list, 0);
        QTRY_VERIFY(QToolTip::isVisible());
        QVERIFY(QToolTip::text().contains(QStringLiteral("<b>AntiVirus</b>")));
        QVERIFY(QToolTip::text().contains(QStringLiteral("Detects Win.Tibick.32 worm")));
        // The old description table has no "RussianRoulette": the balloon goes.
        ClickRow(list, 1);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void aNewsArticleOpensInABoxWithItsSymbolsIcon() {
        window_->OpenPage("General~News");
        auto* list = window_->findChild<QTreeView*>("lvwNews");
        QVERIFY(list != nullptr);
        QTRY_VERIFY(list->visualRect(list->model()->index(1, 0)).isValid());
        QCOMPARE(list->model()->rowCount(), 2);
        QVERIFY(list->isColumnHidden(2) && !list->isColumnHidden(1));
        QMessageBox::Icon shown = QMessageBox::NoIcon;
        QString title;
        QTimer::singleShot(0, this, [&] { CloseNextBox(shown, title); });
        const QRect row = list->visualRect(list->model()->index(1, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(title, QStringLiteral("2026-01-03 - Alert"));
        QCOMPARE(shown, QMessageBox::Critical);
    }

  private:
    void ClickRow(QTreeView* list, int row) {
        const QRect rect = list->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rect.center());
    }

    void CloseNextBox(QMessageBox::Icon& icon, QString& title) {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            QTimer::singleShot(10, this, [&] { CloseNextBox(icon, title); });
            return;
        }
        icon = box->icon();
        title = box->windowTitle();
        box->button(QMessageBox::Ok)->click();
    }

    std::unique_ptr<test::TempHub> hub_;
    std::unique_ptr<store::TableFiles> files_;
    QtHost host_;
    shell::PageRegistry registry_;
    std::unique_ptr<shell::Container> container_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace qb::gui

QTEST_MAIN(qb::gui::GeneralPagesWindowTest)
#include "general_pages_window_test.moc"
