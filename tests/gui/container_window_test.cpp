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
#include "gui/qt_host.h"
#include "gui/text.h"
#include "gui/toolbar_binding.h"
#include "shell/container.h"
#include "shell/text_editor.h"
#include "support/stub_pages.h"
#include "support/temp_hub.h"

namespace qb::gui {

class ContainerWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        hub_ = std::make_unique<test::TempHub>();
        hub_->Write("cfg/Profiles.xml", "<Name>Master</Name>\n");
        hub_->WriteSetting("General/Globals/Version.tbl",
                           test::Crlf({"tVersion = {", "\tsVersion = \"5.3.0\",", "}"}));
        files_ = std::make_unique<store::TableFiles>(hub_->ProgramFolder());
        std::vector<test::StubPageDesc> pages;
        for (const auto& key : test::TreeFunctionKeys(11))
            pages.push_back({key, "", {"gMenuFirstAddClick", "gMenuFirstEditClick"}});
        pages.push_back({"Games~Trivia~Settings", "", {}});
        test::RegisterStubPages(registry_, pages, calls_);
        container_ = std::make_unique<shell::Container>(*files_, host_, registry_);
        container_->FillNavigation();
        container_->LoadProfiles();
        container_->SetupStatusBar();
        host_.openTextEditor = [this](const std::string& file, const std::string& mode) {
            container_->OpenTextEditor(file, mode);
        };
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
        calls_.clear();
        hub_.reset();
    }

    void theTreeShowsTheCatalogueWithBoldGroups() {
        QTreeWidget* tree = window_->Tree();
        QCOMPARE(tree->topLevelItemCount(), 1);
        QTreeWidgetItem* root = tree->topLevelItem(0);
        QCOMPARE(root->text(0), QStringLiteral("Quillbook"));
        QVERIFY(root->font(0).bold());
        QVERIFY(root->isExpanded());
        QCOMPARE(root->childCount(), 6);
        QCOMPARE(root->child(2)->text(0), QStringLiteral("Customise User"));
        QVERIFY(root->child(2)->font(0).bold());
        QTreeWidgetItem* trivia = window_->NodeOf("Games~Trivia");
        QVERIFY(trivia != nullptr);
        QVERIFY(!trivia->font(0).bold());
        QCOMPARE(trivia->childCount(), 2);
        QCOMPARE(window_->windowTitle(), QStringLiteral("Vandrell's Quillbook 5.3.0"));

        window_->SideBarToolbar()->ActionOf("EXPAND")->trigger();
        QVERIFY(trivia->isExpanded());
        window_->SideBarToolbar()->ActionOf("CLOSE")->trigger();
        QVERIFY(!trivia->isExpanded());
        QVERIFY(root->isExpanded());
    }

    void groupButtonsDropTheirMenusAndOpenTheRowsPage() {
        QAction* general = window_->GroupToolbar()->ActionOf("General");
        QVERIFY(general != nullptr && general->menu() != nullptr);
        const auto& menu = container_->Navigation().Group("General")->menu;
        const QList<QAction*> items = general->menu()->actions();
        QCOMPARE(items.size(), static_cast<qsizetype>(menu.size()));
        QCOMPARE(items.at(2)->text(), QStringLiteral("Language~Commands"));
        QCOMPARE(items.at(2)->data().toString(), QStringLiteral("General~Commands"));
        items.at(2)->trigger();
        QVERIFY(window_->WindowOf("General~Commands") != nullptr);

        QAction* userActions = window_->GroupToolbar()->ActionOf("UserActions");
        QAction* jokes = nullptr;
        for (QAction* item : userActions->menu()->actions()) {
            if (item->text() == QStringLiteral("Jokes ~ Settings")) jokes = item;
        }
        QVERIFY(jokes != nullptr);
        jokes->trigger();
        QCOMPARE(container_->Active()->Key(), std::string("Games~Trivia~Settings"));
        QVERIFY(window_->GroupToolbar()->ActionOf("TREEVIEW") != nullptr);
    }

    void aPageClickedTwiceInTheTreeIsOneWindow() {
        QTreeWidgetItem* bots = window_->NodeOf("General~Bots");
        window_->Tree()->expandAll();
        for (int i = 0; i < 2; ++i) {
            const QRect rect = window_->Tree()->visualItemRect(bots);
            QTest::mouseClick(window_->Tree()->viewport(), Qt::LeftButton, {}, rect.center());
        }
        QCOMPARE(window_->Area()->subWindowList().size(), static_cast<qsizetype>(1));
        QCOMPARE(container_->OpenWindows().Count(), 1);
        QCOMPARE(window_->Area()->activeSubWindow()->windowTitle(),
                 QStringLiteral("General ~ Bots"));
    }

    void elevenPagesGiveTenMenuEntriesAndElevenDialogRows() {
        const auto keys = test::TreeFunctionKeys(11);
        for (const auto& key : keys)
            window_->OpenPage(key);
        QCOMPARE(VisibleWindowItems().size(), static_cast<qsizetype>(10));
        QCOMPARE(VisibleWindowItems().back()->text(), "1&0. " + ToQt(shell::CaptionOfKey(keys[9])));

        WindowsDialog dialog(*container_, window_.get());
        QCOMPARE(dialog.List()->topLevelItemCount(), 11);
        QCOMPARE(dialog.List()->topLevelItem(10)->text(0), ToQt(shell::CaptionOfKey(keys[10])));
        window_->OpenPage(keys[0]);
        dialog.List()->setCurrentItem(dialog.List()->topLevelItem(10));
        dialog.findChild<QPushButton*>("cmdOK")->click();
        QCOMPARE(container_->Active()->Key(), keys[10]);
        QCOMPARE(window_->Area()->subWindowList().size(), static_cast<qsizetype>(11));
    }

    void closingTheThirdOfFiveRenumbersTheMenu() {
        const auto keys = test::TreeFunctionKeys(5);
        for (const auto& key : keys)
            window_->OpenPage(key);
        window_->WindowOf(keys[2])->close();
        QTRY_COMPARE(window_->Area()->subWindowList().size(), static_cast<qsizetype>(4));
        const auto items = VisibleWindowItems();
        QCOMPARE(items.size(), static_cast<qsizetype>(4));
        QCOMPARE(items.at(2)->text(), "&3. " + ToQt(shell::CaptionOfKey(keys[3])));
        items.at(2)->trigger();
        QCOMPARE(container_->Active()->Key(), keys[3]);
    }

    void anIntermediateNodesEntryStays() {
        window_->Tree()->expandAll();
        QTreeWidgetItem* trivia = window_->NodeOf("Games~Trivia");
        QTest::mouseClick(window_->Tree()->viewport(), Qt::LeftButton, {},
                          window_->Tree()->visualItemRect(trivia).center());
        window_->OpenPage("General~Bots");
        QCOMPARE(VisibleWindowItems().size(), static_cast<qsizetype>(2));
        window_->WindowOf("General~Bots")->close();
        QTRY_COMPARE(VisibleWindowItems().size(), static_cast<qsizetype>(1));
        QCOMPARE(VisibleWindowItems().front()->text(), QStringLiteral("&1. Games ~ Trivia"));
        VisibleWindowItems().front()->trigger();
        QVERIFY(window_->Area()->subWindowList().isEmpty());
    }

    void theGroupCounterKeepsRunningAcrossClosedWindows() {
        const auto& menu = container_->Navigation().Group("General")->menu;
        QAction* general = window_->GroupToolbar()->ActionOf("General");
        general->trigger();
        QCOMPARE(container_->Active()->Key(), menu[0].key);
        window_->WindowOf(menu[0].key)->close();
        QTRY_VERIFY(window_->Area()->subWindowList().isEmpty());
        general->trigger();
        QCOMPARE(container_->Active()->Key(), menu[1].key);
        QCOMPARE(container_->GroupCounter("General"), 2);
    }

    void theTreeviewButtonHidesTheSideBar() {
        QVERIFY(window_->SideBar()->isVisible());
        window_->GroupToolbar()->ActionOf("TREEVIEW")->trigger();
        QVERIFY(!window_->SideBar()->isVisible());
        window_->findChild<QAction*>("mnuToolsSideBar")->trigger();
        QVERIFY(window_->SideBar()->isVisible());
    }

    void theWindowAndItsPagesKeepTheirMinimumSizes() {
        QCOMPARE(window_->minimumSize(), QSize(11790 / 15, 9060 / 15));
        window_->resize(300, 200);
        QVERIFY(window_->width() >= 786 && window_->height() >= 604);
        window_->OpenPage("General~Bots");
        PageWindow* page = window_->WindowOf("General~Bots");
        QCOMPARE(page->minimumSize(), QSize(3400 / 15, 6075 / 15));
    }

    void aRightClickPopsUpOnlyThePagesEntries() {
        window_->OpenPage("General~Bots");
        container_->Active()->Find("lvwRows");
        auto& list = static_cast<shell::ListControl&>(*container_->Active()->Find("lvwRows"));
        list.UserRightClick(1);
        QMenu* popup = window_->LastPopup();
        QVERIFY(popup != nullptr);
        QCOMPARE(popup->actions().size(), static_cast<qsizetype>(2));
        QCOMPARE(popup->actions().at(1)->objectName(), QStringLiteral("mnuFirstEdit"));
        popup->actions().at(1)->trigger();
        QCOMPARE(calls_, (std::vector<std::string>{"General~Bots:gMenuFirstEditClick"}));
    }

    void theStatusBarShowsTheVersions() {
        QCOMPARE(window_->StatusPanel(1)->text(), QStringLiteral("Installed Version = 5.3.0"));
        window_->StatusPanel(2)->setText(QString());
        container_->Status().SetText(2, "stale");
        QCOMPARE(window_->StatusPanel(2)->text(), QStringLiteral("stale"));
        QCOMPARE(window_->UpdateTimer()->interval(), 60000);
        QMetaObject::invokeMethod(window_->UpdateTimer(), "timeout", Qt::DirectConnection);
        QCOMPARE(window_->StatusPanel(2)->text(), QStringLiteral("Current Version = Unknown"));
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
        EditDialogView dialog(request, window_.get());
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

        EditDialogView second(request, window_.get());
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
        EditDialogView dialog(request, window_.get());
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
        hub_->WriteSetting("Notes.txt", "one\r\ntwo\r\n");
        host_.OpenTextEditor("Notes.txt", "E");
        PageWindow* editor = window_->WindowOf(shell::kTextEditorKey);
        QVERIFY(editor != nullptr);
        auto* text = editor->findChild<QPlainTextEdit*>("txtTextBox");
        QCOMPARE(text->toPlainText(), QStringLiteral("one\ntwo\n"));
        QTest::keyClicks(text, "three");
        text->moveCursor(QTextCursor::End);
        auto& model = static_cast<shell::TextBox&>(*container_->Active()->Find("txtTextBox"));
        QVERIFY(model.Text().find("\r\n") != std::string::npos);
        QVERIFY(model.Text().find('\n') == model.Text().find("\r\n") + 1);
        QVERIFY(container_->Active()->SaveRequired());
        QCOMPARE(container_->OpenWindows().Count(), 0);
    }

    void theAboutBoxAndItsSystemInformation() {
        AboutDialog about(window_.get());
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
            auto* item = window_->findChild<QAction*>(QStringLiteral("mnuWindows%1").arg(i));
            if (item != nullptr && item->isVisible()) items.append(item);
        }
        return items;
    }

    std::unique_ptr<test::TempHub> hub_;
    std::unique_ptr<store::TableFiles> files_;
    QtHost host_;
    shell::PageRegistry registry_;
    std::vector<std::string> calls_;
    std::unique_ptr<shell::Container> container_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace qb::gui

QTEST_MAIN(qb::gui::ContainerWindowTest)
#include "container_window_test.moc"
