// The general pages in the real window: the border of the settings page from file to widget to
// file, the balloon over the switches list, and the news article in a real message box with the
// icon its symbol picks.

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QToolBar>
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

    // The border is two bytes of the scripts' code page that are no ASCII: the widget shows them
    // as the characters they are, and a save writes the same two bytes, typed over or not.
    void theBorderGoesFromFileToWidgetToFileUnchanged_data() {
        QTest::addColumn<bool>("typed");
        QTest::newRow("left as it is") << false;
        QTest::newRow("typed over") << true;
    }

    void theBorderGoesFromFileToWidgetToFileUnchanged() {
        QFETCH(bool, typed);
        const std::string file = SettingsFile("\xBB\xAB");
        hub_->WriteSetting(kSettings, file);
        window_->OpenPage("General~Settings");
        auto* border = window_->findChild<QLineEdit*>("txtTextBox(0)");
        QVERIFY(border != nullptr);
        QCOMPARE(border->text(), kBorder);
        if (typed) {
            border->selectAll();
            QTest::keyClicks(border, kBorder);
        } else {
            // Ticked and unticked again: the page has a change to save, and the same values.
            auto* flat = window_->findChild<QCheckBox*>("chkCheckBox(1)");
            QVERIFY(flat != nullptr);
            flat->click();
            flat->click();
        }
        QVERIFY(Action("SAVE")->isEnabled());
        Action("SAVE")->trigger();
        QCOMPARE(hub_->ReadSetting(kSettings), file);
    }

    // What the scripts' readers trim, the page loses: the blank behind a typed border is saved,
    // and gone when the page reads the file again.
    void aBorderEndingInABlankLosesItOnReload() {
        hub_->WriteSetting(kSettings, SettingsFile("\xBB\xAB"));
        window_->OpenPage("General~Settings");
        auto* border = window_->findChild<QLineEdit*>("txtTextBox(0)");
        QVERIFY(border != nullptr);
        QTest::keyClick(border, Qt::Key_End);
        QTest::keyClick(border, Qt::Key_Space);
        Action("SAVE")->trigger();
        QCOMPARE(hub_->ReadSetting(kSettings), SettingsFile("\xBB\xAB "));
        QMessageBox::Icon shown = QMessageBox::NoIcon;
        QString title;
        QTimer::singleShot(0, this, [&] { CloseNextBox(shown, title); });
        Action("DISCARD")->trigger();
        QCOMPARE(title, QStringLiteral("Discard changes?"));
        QCOMPARE(border->text(), kBorder);
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
    static constexpr const char* kSettings = "General/Globals/GeneralSettings.tbl";
    inline static const QString kBorder = QString::fromUtf8("\u00BB\u00AB");

    // The file as the page writes it, with this border.
    static std::string SettingsFile(const std::string& border) {
        return test::Crlf({"tGeneralSettings = {", "\tbAllowAllPrefixes = 1,", "\tbFlatRC = 0,",
                           "\tbUnregRCEnable = 1,", "\tsBorder = \"" + border + "\",",
                           "\tsRightClickName = \"\",", "\tsPrefix = \"!\",", "}"});
    }

    QAction* Action(const char* key) const {
        auto* page = window_->WindowOf("General~Settings");
        auto* toolbar = page == nullptr ? nullptr : page->findChild<QToolBar*>("tlbFormToolbar");
        return toolbar == nullptr ? nullptr : toolbar->findChild<QAction*>(key);
    }

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
