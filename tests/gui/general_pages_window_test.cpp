// The general pages in the real window: the border of the settings page from file to widget to
// file, the balloon over the switches list, and the news article in a real message box with the
// icon its symbol picks.

#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QToolTip>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class GeneralPagesWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        harness_ = std::make_unique<test::WindowHarness>();
        harness_->Hub().WriteSetting(
            "General/Globals/Switches.tbl",
            test::Crlf({"tSwitches = {", "\tbAntiVirus = 1,", "\tbRussianRoulette = 0,", "}"}));
        harness_->Hub().Write(
            "scripts/Vandrell's Scripts/News/News.tbl",
            test::Crlf({"tNews = {", "\t[1] = \"2026-01-02|Warning|Update now|3\",",
                        "\t[2] = \"2026-01-03|Alert|Site down|4\",", "}"}));
        harness_->Load();
        QVERIFY(harness_->Show());
    }

    void cleanup() { harness_.reset(); }

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
        harness_->Hub().WriteSetting(kSettings, file);
        harness_->Window().OpenPage("General~Settings");
        auto* border = harness_->Window().findChild<QLineEdit*>("txtTextBox(0)");
        QVERIFY(border != nullptr);
        QCOMPARE(border->text(), kBorder);
        if (typed) {
            border->selectAll();
            QTest::keyClicks(border, kBorder);
        } else {
            // Ticked and unticked again: the page has a change to save, and the same values.
            auto* flat = harness_->Window().findChild<QCheckBox*>("chkCheckBox(1)");
            QVERIFY(flat != nullptr);
            flat->click();
            flat->click();
        }
        QVERIFY(Action("SAVE")->isEnabled());
        Action("SAVE")->trigger();
        QCOMPARE(harness_->Hub().ReadSetting(kSettings), file);
    }

    // What the scripts' readers trim, the page loses: the blank behind a typed border is saved,
    // and gone when the page reads the file again.
    void aBorderEndingInABlankLosesItOnReload() {
        harness_->Hub().WriteSetting(kSettings, SettingsFile("\xBB\xAB"));
        harness_->Window().OpenPage("General~Settings");
        auto* border = harness_->Window().findChild<QLineEdit*>("txtTextBox(0)");
        QVERIFY(border != nullptr);
        QTest::keyClick(border, Qt::Key_End);
        QTest::keyClick(border, Qt::Key_Space);
        Action("SAVE")->trigger();
        QCOMPARE(harness_->Hub().ReadSetting(kSettings), SettingsFile("\xBB\xAB "));
        QMessageBox::Icon shown = QMessageBox::NoIcon;
        QString title;
        CloseNextBox(shown, title);
        Action("DISCARD")->trigger();
        QCOMPARE(title, QStringLiteral("Discard changes?"));
        QCOMPARE(border->text(), kBorder);
    }

    void aClickOnASwitchShowsItsDescriptionWhereThereIsOne() {
        harness_->Window().OpenPage("General~Switches");
        auto* list = harness_->Window().findChild<QTreeView*>("lvwSwitches");
        QVERIFY(list != nullptr);
        QTRY_VERIFY(list->visualRect(list->model()->index(1, 0)).isValid());
        QCOMPARE(list->model()->rowCount(), 2);
        test::ClickRow(*list, 0);
        QTRY_VERIFY(QToolTip::isVisible());
        QVERIFY(QToolTip::text().contains(QStringLiteral("<b>AntiVirus</b>")));
        QVERIFY(QToolTip::text().contains(QStringLiteral("Detects Win.Tibick.32 worm")));
        // The old description table has no "RussianRoulette": the balloon goes.
        test::ClickRow(*list, 1);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void aNewsArticleOpensInABoxWithItsSymbolsIcon() {
        harness_->Window().OpenPage("General~News");
        auto* list = harness_->Window().findChild<QTreeView*>("lvwNews");
        QVERIFY(list != nullptr);
        QTRY_VERIFY(list->visualRect(list->model()->index(1, 0)).isValid());
        QCOMPARE(list->model()->rowCount(), 2);
        QVERIFY(list->isColumnHidden(2) && !list->isColumnHidden(1));
        QMessageBox::Icon shown = QMessageBox::NoIcon;
        QString title;
        CloseNextBox(shown, title);
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

    // A button of the open page's form toolbar.
    QAction* Action(const char* key) const {
        return harness_->ToolbarButton("tlbFormToolbar", key);
    }

    // Closes the message box that is about to open with OK, noting its icon and title.
    void CloseNextBox(QMessageBox::Icon& icon, QString& title) {
        test::AnswerNextBox(*this, QMessageBox::Ok, [&](const QMessageBox& box) {
            icon = box.icon();
            title = box.windowTitle();
        });
    }

    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(general_pages_window_test, qb::gui::GeneralPagesWindowTest)
#include "general_pages_window_test.moc"
