// The main window, offscreen: its tree and group menus, the Windows menu and dialog, the group
// counters, the side bar, the pop-up menus, the status bar and its sizes; and the edit dialog, the
// text editor and the about box in their real widgets.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>
#include <sstream>

#include "gui/container_dialogs.h"
#include "gui/edit_dialog_view.h"
#include "gui/main_window.h"
#include "gui/page_view.h"
#include "gui/text.h"
#include "gui/toolbar_binding.h"
#include "shell/text_editor.h"
#include "support/stub_pages.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class ContainerWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        harness_ = std::make_unique<test::WindowHarness>();
        harness_->Hub().Write("cfg/Profiles.xml", "<Name>Master</Name>\n");
        harness_->Hub().WriteSetting("General/Globals/Version.tbl",
                                     test::Crlf({"tVersion = {", "\tsVersion = \"5.3.0\",", "}"}));
        std::vector<test::StubPageDesc> pages;
        for (const auto& key : test::TreeFunctionKeys(11))
            pages.push_back({key, "", {"gMenuFirstAddClick", "gMenuFirstEditClick"}});
        pages.push_back({"Games~Trivia~Settings", "", {}});
        test::RegisterStubPages(harness_->Registry(), pages, calls_);
        harness_->Load();
        harness_->Container().SetupStatusBar();
        harness_->Host().openTextEditor = [this](const std::string& file, const std::string& mode) {
            harness_->Container().OpenTextEditor(file, mode);
        };
        QVERIFY(harness_->Show());
    }

    void cleanup() {
        harness_.reset();
        calls_.clear();
    }

    void theTreeShowsTheCatalogueWithBoldGroups() {
        QTreeWidget* tree = harness_->Window().Tree();
        QCOMPARE(tree->topLevelItemCount(), 1);
        QTreeWidgetItem* root = tree->topLevelItem(0);
        QCOMPARE(root->text(0), QStringLiteral("Quillbook"));
        QVERIFY(root->font(0).bold());
        QVERIFY(root->isExpanded());
        QCOMPARE(root->childCount(), 6);
        QCOMPARE(root->child(2)->text(0), QStringLiteral("Customise User"));
        QVERIFY(root->child(2)->font(0).bold());
        QTreeWidgetItem* trivia = harness_->Window().NodeOf("Games~Trivia");
        QVERIFY(trivia != nullptr);
        QVERIFY(!trivia->font(0).bold());
        QCOMPARE(trivia->childCount(), 2);
        QCOMPARE(harness_->Window().windowTitle(), QStringLiteral("Vandrell's Quillbook 5.3.0"));

        harness_->Window().SideBarToolbar()->ActionOf("EXPAND")->trigger();
        QVERIFY(trivia->isExpanded());
        harness_->Window().SideBarToolbar()->ActionOf("CLOSE")->trigger();
        QVERIFY(!trivia->isExpanded());
        QVERIFY(root->isExpanded());
    }

    void groupButtonsDropTheirMenusAndOpenTheRowsPage() {
        QAction* general = harness_->Window().GroupToolbar()->ActionOf("General");
        QVERIFY(general != nullptr && general->menu() != nullptr);
        const auto& menu = harness_->Container().Navigation().Group("General")->menu;
        const QList<QAction*> items = general->menu()->actions();
        QCOMPARE(items.size(), static_cast<qsizetype>(menu.size()));
        QCOMPARE(items.at(2)->text(), QStringLiteral("Language~Commands"));
        QCOMPARE(items.at(2)->data().toString(), QStringLiteral("General~Commands"));
        items.at(2)->trigger();
        QVERIFY(harness_->PageWindowOf("General~Commands") != nullptr);

        QAction* userActions = harness_->Window().GroupToolbar()->ActionOf("UserActions");
        QAction* jokes = nullptr;
        for (QAction* item : userActions->menu()->actions()) {
            if (item->text() == QStringLiteral("Jokes ~ Settings")) jokes = item;
        }
        QVERIFY(jokes != nullptr);
        jokes->trigger();
        QCOMPARE(harness_->Container().Active()->Key(), std::string("Games~Trivia~Settings"));
        QVERIFY(harness_->Window().GroupToolbar()->ActionOf("TREEVIEW") != nullptr);
    }

    void aPageClickedTwiceInTheTreeIsOneWindow() {
        QTreeWidgetItem* bots = harness_->Window().NodeOf("General~Bots");
        harness_->Window().Tree()->expandAll();
        for (int i = 0; i < 2; ++i) {
            const QRect rect = harness_->Window().Tree()->visualItemRect(bots);
            QTest::mouseClick(harness_->Window().Tree()->viewport(), Qt::LeftButton, {},
                              rect.center());
        }
        QCOMPARE(harness_->Window().Area()->subWindowList().size(), static_cast<qsizetype>(1));
        QCOMPARE(harness_->Container().OpenWindows().Count(), 1);
        QCOMPARE(harness_->Window().Area()->activeSubWindow()->windowTitle(),
                 QStringLiteral("General ~ Bots"));
    }

    void elevenPagesGiveTenMenuEntriesAndElevenDialogRows() {
        const auto keys = test::TreeFunctionKeys(11);
        for (const auto& key : keys)
            harness_->Window().OpenPage(key);
        QCOMPARE(VisibleWindowItems().size(), static_cast<qsizetype>(10));
        QCOMPARE(VisibleWindowItems().back()->text(), "1&0. " + ToQt(shell::CaptionOfKey(keys[9])));

        WindowsDialog dialog(harness_->Container(), &harness_->Window());
        QCOMPARE(dialog.List()->topLevelItemCount(), 11);
        QCOMPARE(dialog.List()->topLevelItem(10)->text(0), ToQt(shell::CaptionOfKey(keys[10])));
        harness_->Window().OpenPage(keys[0]);
        dialog.List()->setCurrentItem(dialog.List()->topLevelItem(10));
        dialog.findChild<QPushButton*>("cmdOK")->click();
        QCOMPARE(harness_->Container().Active()->Key(), keys[10]);
        QCOMPARE(harness_->Window().Area()->subWindowList().size(), static_cast<qsizetype>(11));
    }

    void closingTheThirdOfFiveRenumbersTheMenu() {
        const auto keys = test::TreeFunctionKeys(5);
        for (const auto& key : keys)
            harness_->Window().OpenPage(key);
        harness_->PageWindowOf(keys[2])->close();
        QTRY_COMPARE(harness_->Window().Area()->subWindowList().size(), static_cast<qsizetype>(4));
        const auto items = VisibleWindowItems();
        QCOMPARE(items.size(), static_cast<qsizetype>(4));
        QCOMPARE(items.at(2)->text(), "&3. " + ToQt(shell::CaptionOfKey(keys[3])));
        items.at(2)->trigger();
        QCOMPARE(harness_->Container().Active()->Key(), keys[3]);
    }

    void anIntermediateNodesEntryStays() {
        harness_->Window().Tree()->expandAll();
        QTreeWidgetItem* trivia = harness_->Window().NodeOf("Games~Trivia");
        QTest::mouseClick(harness_->Window().Tree()->viewport(), Qt::LeftButton, {},
                          harness_->Window().Tree()->visualItemRect(trivia).center());
        harness_->Window().OpenPage("General~Bots");
        QCOMPARE(VisibleWindowItems().size(), static_cast<qsizetype>(2));
        harness_->PageWindowOf("General~Bots")->close();
        QTRY_COMPARE(VisibleWindowItems().size(), static_cast<qsizetype>(1));
        QCOMPARE(VisibleWindowItems().front()->text(), QStringLiteral("&1. Games ~ Trivia"));
        VisibleWindowItems().front()->trigger();
        QVERIFY(harness_->Window().Area()->subWindowList().isEmpty());
    }

    void theGroupCounterKeepsRunningAcrossClosedWindows() {
        const auto& menu = harness_->Container().Navigation().Group("General")->menu;
        QAction* general = harness_->Window().GroupToolbar()->ActionOf("General");
        general->trigger();
        QCOMPARE(harness_->Container().Active()->Key(), menu[0].key);
        harness_->PageWindowOf(menu[0].key)->close();
        QTRY_VERIFY(harness_->Window().Area()->subWindowList().isEmpty());
        general->trigger();
        QCOMPARE(harness_->Container().Active()->Key(), menu[1].key);
        QCOMPARE(harness_->Container().GroupCounter("General"), 2);
    }

    void theTreeviewButtonHidesTheSideBar() {
        QVERIFY(harness_->Window().SideBar()->isVisible());
        harness_->Window().GroupToolbar()->ActionOf("TREEVIEW")->trigger();
        QVERIFY(!harness_->Window().SideBar()->isVisible());
        harness_->Window().findChild<QAction*>("mnuToolsSideBar")->trigger();
        QVERIFY(harness_->Window().SideBar()->isVisible());
    }

    void theWindowAndItsPagesKeepTheirMinimumSizes() {
        QCOMPARE(harness_->Window().minimumSize(), QSize(11790 / 15, 9060 / 15));
        harness_->Window().resize(300, 200);
        QVERIFY(harness_->Window().width() >= 786 && harness_->Window().height() >= 604);
        harness_->Window().OpenPage("General~Bots");
        PageWindow* page = harness_->PageWindowOf("General~Bots");
        // No smaller than the page's own minimum, nor than what it holds needs in this font.
        page->resize(10, 10);
        QVERIFY(page->width() >= 3400 / 15 && page->height() >= 6075 / 15);
        QCOMPARE(page->widget()->size().expandedTo(page->widget()->minimumSizeHint()),
                 page->widget()->size());
    }

    void aRightClickPopsUpOnlyThePagesEntries() {
        harness_->Window().OpenPage("General~Bots");
        harness_->Container().Active()->Find("lvwRows");
        auto& list =
            static_cast<shell::ListControl&>(*harness_->Container().Active()->Find("lvwRows"));
        list.UserRightClick(1);
        QMenu* popup = harness_->Window().LastPopup();
        QVERIFY(popup != nullptr);
        QCOMPARE(popup->actions().size(), static_cast<qsizetype>(2));
        QCOMPARE(popup->actions().at(1)->objectName(), QStringLiteral("mnuFirstEdit"));
        popup->actions().at(1)->trigger();
        QCOMPARE(calls_, (std::vector<std::string>{"General~Bots:gMenuFirstEditClick"}));
    }

    void theStatusBarShowsTheVersions() {
        QCOMPARE(harness_->Window().StatusPanel(1)->text(),
                 QStringLiteral("Installed Version = 5.3.0"));
        harness_->Window().StatusPanel(2)->setText(QString());
        harness_->Container().Status().SetText(2, "stale");
        QCOMPARE(harness_->Window().StatusPanel(2)->text(), QStringLiteral("stale"));
        QCOMPARE(harness_->Window().UpdateTimer()->interval(), 60000);
        QMetaObject::invokeMethod(harness_->Window().UpdateTimer(), "timeout",
                                  Qt::DirectConnection);
        QCOMPARE(harness_->Window().StatusPanel(2)->text(),
                 QStringLiteral("Current Version = Unknown"));
    }

    void theEditDialogPaintsGovernsAndClosesAsCancel() {
        shell::DialogRequest request;
        request.kind = shell::DialogKind::TwoTextCombo;
        request.caption = "Edit Bot";
        request.frameCaption = "Main Bot";
        request.labels = {"Name", "Description", "Action"};
        request.values = {"Bot", "", "Kick", ""};
        request.comboItems = {{"Kick", "Ban"}};
        request.required = 3;
        EditDialogView dialog(request, &harness_->Window());
        dialog.show();
        auto* name = dialog.findChild<QLineEdit*>("txtTextBox(0)");
        auto* description = dialog.findChild<QLineEdit*>("txtTextBox(1)");
        auto* combo = dialog.findChild<QComboBox*>("cboComboBox(0)");
        auto* ok = dialog.findChild<QPushButton*>("cmdOK");
        auto* add = dialog.findChild<QPushButton*>("cmdAdd");
        QVERIFY(name && description && combo && ok && add);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Edit Bot"));
        QCOMPARE(dialog.findChild<QLabel*>("lblLabel(1)")->text(), QStringLiteral("Description"));
        QCOMPARE(name->palette().color(QPalette::Base), kMandatoryColour);
        QCOMPARE(combo->palette().color(QPalette::Button), kMandatoryColour);
        QVERIFY(description->palette().color(QPalette::Base) != kMandatoryColour);
        QCOMPARE(combo->currentText(), QStringLiteral("Kick"));

        QVERIFY(!ok->isEnabled() && !add->isEnabled());
        QTest::keyClicks(description, "words");
        QVERIFY(!ok->isEnabled());
        name->selectAll();
        QTest::keyClicks(name, "Guard");
        QVERIFY(ok->isEnabled() && add->isEnabled());
        description->clear();
        QTest::keyClick(description, Qt::Key_A);
        QTest::keyClick(description, Qt::Key_Backspace);
        add->click();
        QVERIFY(dialog.isVisible());  // Add with an empty field does nothing
        dialog.close();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.Result().mode, std::string());

        EditDialogView second(request, &harness_->Window());
        second.show();
        second.findChild<QLineEdit*>("txtTextBox(0)")->setText(QString());
        QTest::keyClicks(second.findChild<QLineEdit*>("txtTextBox(0)"), "X");
        second.findChild<QPushButton*>("cmdOK")->click();
        QCOMPARE(second.Result().mode, std::string("1"));
        QCOMPARE(second.Result().fields[0], std::string("X"));
        QCOMPARE(second.Result().fields[2], std::string("Kick"));
    }

    void theUpDownDialogKeepsItsNumberInBounds() {
        shell::DialogRequest request;
        request.kind = shell::DialogKind::OneUpDown;
        request.caption = "Edit Number";
        request.values = {"", "", "", ""};
        request.bounds = {{1, 5, 1}};
        request.required = 1;
        EditDialogView dialog(request, &harness_->Window());
        dialog.show();
        auto* spin = dialog.findChild<QSpinBox*>("updUpDown(0)");
        QVERIFY(spin != nullptr);
        QCOMPARE(spin->palette().color(QPalette::Base), kMandatoryColour);
        QCOMPARE(spin->text().trimmed(), QString());
        for (int i = 0; i < 9; ++i)
            spin->stepUp();
        QCOMPARE(spin->value(), 5);
        QVERIFY(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
        dialog.findChild<QPushButton*>("cmdOK")->click();
        QCOMPARE(dialog.Result().fields[0], std::string("5"));
    }

    void theTextEditorShowsTheFileWithPlainLineEnds() {
        harness_->Hub().WriteSetting("Notes.txt", "one\r\ntwo\r\n");
        harness_->Host().OpenTextEditor("Notes.txt", "E");
        PageWindow* editor = harness_->PageWindowOf(shell::kTextEditorKey);
        QVERIFY(editor != nullptr);
        auto* text = editor->findChild<QPlainTextEdit*>("txtTextBox");
        QCOMPARE(text->toPlainText(), QStringLiteral("one\ntwo\n"));
        QTest::keyClicks(text, "three");
        text->moveCursor(QTextCursor::End);
        auto& model =
            static_cast<shell::TextBox&>(*harness_->Container().Active()->Find("txtTextBox"));
        QVERIFY(model.Text().find("\r\n") != std::string::npos);
        QVERIFY(model.Text().find('\n') == model.Text().find("\r\n") + 1);
        QVERIFY(harness_->Container().Active()->SaveRequired());
        QCOMPARE(harness_->Container().OpenWindows().Count(), 0);
    }

    void theAboutBoxAndItsSystemInformation() {
        AboutDialog about(harness_->Container().Version(), &harness_->Window());
        QCOMPARE(about.windowTitle(), QStringLiteral("About Quillbook"));
        QCOMPARE(about.findChild<QLabel*>("lblVersion")->text(), QStringLiteral("Version 5.3.0"));
        QVERIFY(about.findChild<QLabel*>("lblDescription")
                    ->text()
                    .startsWith(QStringLiteral("Quillbook is an All-in-One bot")));
        QVERIFY(about.findChild<QPushButton*>("cmdSysInfo") != nullptr);
        const QString details = SystemInformation();
        QVERIFY(details.contains(QStringLiteral("Linux")));
        QVERIFY(details.contains(QStringLiteral("Qt ")));
        // With neither source there is nothing to show, and the button says so instead.
        QVERIFY(SystemInformation(QStringLiteral("quillbook-no-such-program"),
                                  QStringLiteral("/nonexistent/os-release"))
                    .isEmpty());
        QVERIFY(!SystemInformation(QStringLiteral("quillbook-no-such-program"),
                                   QStringLiteral("/proc/version"))
                     .isEmpty());
    }

  private:
    QList<QAction*> VisibleWindowItems() const {
        QList<QAction*> items;
        for (int i = 1; i <= 10; ++i) {
            auto* item =
                harness_->Window().findChild<QAction*>(QStringLiteral("mnuWindows%1").arg(i));
            if (item != nullptr && item->isVisible()) items.append(item);
        }
        return items;
    }

    std::vector<std::string> calls_;
    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(container_window_test, qb::gui::ContainerWindowTest)
#include "container_window_test.moc"
