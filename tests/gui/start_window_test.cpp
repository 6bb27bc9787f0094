// The start before the window opens, with the rebuild question in a real message box.

#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <filesystem>

#include "gui/main_window.h"
#include "gui/qt_host.h"
#include "gui/start.h"
#include "pages/pages.h"
#include "shell/container.h"
#include "support/temp_hub.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

namespace fs = std::filesystem;

class StartWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        hub_ = std::make_unique<test::TempHub>();
        fs::remove_all(hub_->Settings());  // a script pack that was never set up
        hub_->Write("cfg/Profiles.xml", "<Name>Master</Name>\n");
        files_ = std::make_unique<store::TableFiles>(hub_->ProgramFolder());
        pages::RegisterAllBuilders(builders_);
        container_ =
            std::make_unique<shell::Container>(*files_, host_, registry_, store::kBuildVersion);
    }

    void cleanup() {
        container_.reset();
        files_.reset();
        builders_ = store::BuilderRegistry();
        hub_.reset();
    }

    void cancelEndsTheStartWithNothingBuilt() {
        AnswerNextBox(QMessageBox::Cancel);
        QVERIFY(!StartBeforeWindow(*container_, builders_));
        QCOMPARE(seen_, QStringLiteral("Vandrell's Quillbook: Version Change Detected\n"
                                       "New version detected. Settings must be rebuilt; "
                                       "continue?"));
        QVERIFY(!fs::exists(hub_->Settings()));
        QVERIFY(fs::is_directory(hub_->Scripts() / "Vandrell's Scripts" / "News"));
    }

    void okBuildsTheTreeAndTheWindowMayOpen() {
        AnswerNextBox(QMessageBox::Ok);
        QVERIFY(StartBeforeWindow(*container_, builders_));
        QCOMPARE(QString::fromStdString(hub_->ReadSetting("General/Globals/Version.tbl")),
                 QStringLiteral("tVersion = {\r\n\tsVersion = \"5.3.0\",\r\n}\r\n"));
        QVERIFY(
            fs::exists(hub_->Settings() / "Security" / "CommandSpy" / "CommandSpySettings.tbl"));
    }

    // The version the program runs as, not the build's, is the one the window shows and the
    // rebuild stamps; as 6.0.0 the tree has the archive.
    void aRunAsAnotherVersionShowsAndStampsThatVersion() {
        container_ = std::make_unique<shell::Container>(*files_, host_, registry_,
                                                        store::ProgramVersion{6, 0, 0});
        container_->FillNavigation();
        AnswerNextBox(QMessageBox::Ok);
        QVERIFY(StartBeforeWindow(*container_, builders_));
        MainWindow window(*container_);
        window.show();
        QCOMPARE(window.windowTitle(), QStringLiteral("Vandrell's Quillbook 6.0.0"));
        QCOMPARE(window.StatusPanel(1)->text(), QStringLiteral("Installed Version = 6.0.0"));
        QVERIFY(fs::is_directory(hub_->Settings() / "TheVellum" / "Hyperlink"));
        QVERIFY(container_->Navigation().Find("Hyperlink~LinkOfTheWeek") != nullptr);
    }

    void theWindowOpensWithTheVersionAndTheLastArticleInItsStatusBar() {
        hub_->Write("scripts/Vandrell's Scripts/News/News.tbl",
                    test::Crlf({"tNews = {", "\t[7] = \"2026-01-02|Older|Old story|1\",",
                                "\t[8] = \"2026-02-03|Quillbook 5.3|All about it|1\",", "}"}));
        container_->FillNavigation();
        AnswerNextBox(QMessageBox::Ok);
        QVERIFY(StartBeforeWindow(*container_, builders_));
        MainWindow window(*container_);
        window.show();
        QCOMPARE(window.StatusPanel(1)->text(), QStringLiteral("Installed Version = 5.3.0"));
        QCOMPARE(window.StatusPanel(2)->text(), QStringLiteral("Current Version = Unknown"));
        QCOMPARE(window.StatusPanel(3)->text(), QStringLiteral("Quillbook 5.3"));
        QCOMPARE(window.StatusPanel(3)->toolTip(), QStringLiteral("Click to read news"));
        QCOMPARE(window.StatusPanel(4)->text(), QStringLiteral("All about it"));
        // The news panel invites a click that does nothing, and the current version is the
        // installed one: no box opens.
        QTest::mouseClick(window.StatusPanel(3), Qt::LeftButton);
        QTest::mouseClick(window.StatusPanel(2), Qt::LeftButton);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void showChangesListsTheRebuildAndLeavesTheQuestionOpen() {
        QString shown;
        QTimer::singleShot(0, this, [this, &shown] { ShowChangesThenCancel(shown); });
        QVERIFY(!StartBeforeWindow(*container_, builders_));
        QVERIFY2(shown.contains(QStringLiteral("create       General\\Globals\\Version.tbl\n")),
                 qPrintable(shown));
        QVERIFY(shown.contains(QStringLiteral("+\tsVersion = \"5.3.0\",\n")));
        // Only the answer to the question counts: Cancel, so the list wrote nothing.
        QVERIFY(!fs::exists(hub_->Settings()));
    }

  private:
    // Opens the list from the question's box, notes it, closes it, and cancels the question.
    void ShowChangesThenCancel(QString& shown) {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            QTimer::singleShot(0, this, [this, &shown] { ShowChangesThenCancel(shown); });
            return;
        }
        QTimer::singleShot(0, this, [&shown, box] {
            QWidget* dialog = QApplication::activeModalWidget();
            QVERIFY(dialog != box);
            shown = dialog->findChild<QPlainTextEdit*>(QStringLiteral("txtChanges"))->toPlainText();
            dialog->close();
            QTimer::singleShot(0, box, [box] { box->button(QMessageBox::Cancel)->click(); });
        });
        box->findChild<QPushButton*>(QStringLiteral("cmdShowChanges"))->click();
    }

    // Clicks a button of the message box that is about to open, and notes its title and text.
    void AnswerNextBox(QMessageBox::StandardButton button) {
        seen_.clear();
        test::AnswerNextBox(*this, button, [this](const QMessageBox& box) {
            seen_ = box.windowTitle() + "\n" + box.text();
        });
    }

    std::unique_ptr<test::TempHub> hub_;
    std::unique_ptr<store::TableFiles> files_;
    QtHost host_;
    shell::PageRegistry registry_;
    store::BuilderRegistry builders_;
    std::unique_ptr<shell::Container> container_;
    QString seen_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(start_window_test, qb::gui::StartWindowTest)
#include "start_window_test.moc"
