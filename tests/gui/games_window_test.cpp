// The game pages in the real window: an option group turns its siblings off and keeps the one
// that is on, the hint box keeps one character however it is typed, a large question file
// loaded into the editor finds a question by the first letters typed, and Hangman's slider,
// moved with the keys, picks the stage its EDIT opens.

#include <QElapsedTimer>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class GamesWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { harness_ = std::make_unique<test::WindowHarness>(); }
    void cleanup() { harness_.reset(); }

    void anOptionTurnsItsGroupOffAndStaysOnWhenClickedAgain() {
        Start();
        harness_->Window().OpenPage("Games~Trivia~Settings");
        auto* standard = Option("optOption(0)");
        auto* expanded = Option("optOption(1)");
        auto* reduction = Option("optOption(4)");
        QVERIFY(standard->isChecked());
        QVERIFY(reduction->isChecked());
        QTest::mouseClick(expanded, Qt::LeftButton);
        QVERIFY(expanded->isChecked());
        QVERIFY(!standard->isChecked());
        // The other group is left alone.
        QVERIFY(reduction->isChecked());
        QTest::mouseClick(expanded, Qt::LeftButton);
        QVERIFY(expanded->isChecked());
        QVERIFY(harness_->Container().Active()->SaveRequired());
    }

    void theHintBoxKeepsOneCharacter() {
        Start();
        harness_->Window().OpenPage("Games~Anagrams");
        auto* hint = harness_->Window().findChild<QLineEdit*>("txtTextBox(0)");
        QVERIFY(hint != nullptr);
        hint->selectAll();
        QTest::keyClicks(hint, "xyz");
        // Each key that makes the text longer is cut away again: the box and the page hold one
        // character, whichever the caret left in front.
        QCOMPARE(hint->text().size(), 1);
        const auto* page = harness_->Container().Active();
        QCOMPARE(hint->text().toStdString(),
                 static_cast<const shell::TextBox*>(page->Find("txtTextBox(0)"))->Text());
        QVERIFY(page->SaveRequired());
    }

    void aLargeQuestionFileFindsAQuestionByItsFirstLetters() {
        constexpr int kQuestions = 20000;
        std::string text;
        for (int n = 1; n <= kQuestions; ++n) {
            text += "Misc: Question " + std::to_string(n) + "?*Answer" + std::to_string(n) + "\r\n";
        }
        harness_->Hub().WriteSetting("Games/Trivia/QuestionFiles/TriviaQuestions.lst", text);
        Start();
        harness_->Window().OpenPage("Games~Trivia~Questions");
        test::AnswerNextBox(*this, QMessageBox::Ok);
        QAction* edit = harness_->ToolbarButton("tlbQuestionFiles", "EDIT");
        QVERIFY(edit != nullptr);
        edit->trigger();
        auto* list = harness_->Window().findChild<QTreeView*>("lvwQuestions");
        QVERIFY(list != nullptr);
        QTRY_COMPARE(list->model()->rowCount(), kQuestions);
        list->setFocus();
        QElapsedTimer timer;
        timer.start();
        list->keyboardSearch(QStringLiteral("Misc: Question 15000?"));
        QCOMPARE(list->currentIndex().row(), 15000 - 1);
        // Found while the user types, without a pause to notice (a generous bound for a debug
        // build under the sanitizers).
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

    void theSliderMovedByTheKeysPicksTheStageEditOpens() {
        Start();
        harness_->Host().openTextEditor = [this](const std::string& file, const std::string& mode) {
            harness_->Container().OpenTextEditor(file, mode);
        };
        harness_->Window().OpenPage("Games~Hangman");
        auto* slider = harness_->Window().findChild<QSlider*>("sldAscii");
        QVERIFY(slider != nullptr);
        QCOMPARE(slider->maximum(), 13);
        // An arrow moves it one stage, a page key five.
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_PageUp);
        QTest::keyClick(slider, Qt::Key_Right);
        QCOMPARE(slider->value(), 6);
        shell::Page* page = harness_->Container().Active();
        QCOMPARE(static_cast<const shell::Slider*>(page->Find("sldAscii"))->Value(), 6);
        QAction* edit = harness_->ToolbarButton("tlbAscii", "EDIT");
        QVERIFY(edit != nullptr);
        edit->trigger();
        const shell::Page* editor = harness_->Container().Active();
        QVERIFY(editor != page);
        QCOMPARE(static_cast<const shell::TextBox*>(editor->Find("txtPath"))->Text(),
                 std::string("Games\\Hangman\\Ascii\\7.asc"));
        QVERIFY(!page->SaveRequired());
    }

  private:
    void Start() {
        harness_->LoadRebuilt(4);
        QVERIFY(harness_->Show());
    }
    QRadioButton* Option(const char* name) const {
        auto* option = harness_->Window().findChild<QRadioButton*>(name);
        if (option == nullptr) qFatal("no option %s", name);
        return option;
    }

    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(games_window_test, qb::gui::GamesWindowTest)
#include "games_window_test.moc"
