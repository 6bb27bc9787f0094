// The command spy page in the real window, driven through its widgets.

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTreeView>
#include <QtTest>

#include <filesystem>

#include "gui/main_window.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class CommandSpyWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        harness_ = std::make_unique<test::WindowHarness>();
        harness_->Hub().Write("cfg/Profiles.xml", "<Name>Master</Name>\n<Name>Operator</Name>\n");
        harness_->Hub().WriteSetting(
            "Security/CommandSpy/CommandSpySettings.tbl",
            test::Crlf({"tCommandSpySettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 0,",
                        "\t\t[0] = 1,", "\t\t[1] = 0,", "\t},", "}"}));
        harness_->Load();
        QVERIFY(harness_->Show());
        harness_->Window().OpenPage("Security~CommandSpy");
    }

    void cleanup() { harness_.reset(); }

    void showsTheProfilesWithTheirTicks() {
        auto* list = harness_->Window().findChild<QTreeView*>("lvwEnabledProfiles");
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
        QCOMPARE(harness_->PageWindowOf("Security~CommandSpy")->windowTitle(),
                 QStringLiteral("Security ~ CommandSpy"));
    }

    void tickingARowThroughTheWidgetMarksThePageDirty() {
        auto* list = harness_->Window().findChild<QTreeView*>("lvwEnabledProfiles");
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
        QVERIFY(harness_->Container().Active()->SaveRequired());

        SaveAction()->trigger();
        QVERIFY(!SaveAction()->isEnabled());
        QCOMPARE(StatusPanel(1)->text(), QString());
        QCOMPARE(harness_->Hub().ReadSetting("Security/CommandSpy/CommandSpySettings.tbl"),
                 test::Crlf({"tCommandSpySettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                             "\t\t[0] = 1,", "\t\t[1] = 0,", "\t},", "}"}));
    }

    void thePageKeepsItsMinimumSize() {
        PageWindow* page = harness_->PageWindowOf("Security~CommandSpy");
        QVERIFY(page != nullptr);
        QCOMPARE(page->minimumSize(), QSize(3400 / 15, 6075 / 15));
        page->resize(50, 50);
        QVERIFY(page->width() >= 3400 / 15 && page->height() >= 6075 / 15);
    }

    void aFileChangedOnDiskShowsTheBarAndSaveAsksBeforeOverwriting() {
        auto* bar = harness_->ActivePageWindow()->findChild<QWidget*>("barDisk");
        QVERIFY(bar != nullptr);
        QVERIFY(!bar->isVisible());
        QAbstractItemModel* model =
            harness_->Window().findChild<QTreeView*>("lvwEnabledProfiles")->model();

        // Another program ticks Unregistered; the watcher shows the bar, Reload the tick.
        WriteAsAnotherProgram({"\t\t[-1] = 1,", "\t\t[0] = 1,", "\t\t[1] = 0,"});
        QTRY_VERIFY(bar->isVisible());
        bar->findChild<QPushButton*>("cmdReload")->click();
        QVERIFY(!bar->isVisible());
        QCOMPARE(model->index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));

        // The user ticks Operator; another change comes, and the user keeps theirs.
        model->setData(model->index(2, 0), Qt::Checked, Qt::CheckStateRole);
        WriteAsAnotherProgram({"\t\t[-1] = 0,", "\t\t[0] = 0,", "\t\t[1] = 0,"});
        QTRY_VERIFY(bar->isVisible());
        bar->findChild<QPushButton*>("cmdKeepMine")->click();
        QVERIFY(!bar->isVisible());
        QCOMPARE(model->index(2, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));

        // SAVE asks first; Yes writes the page's values over the other program's.
        QString asked;
        test::AnswerNextBox(*this, QMessageBox::Yes,
                            [&asked](const QMessageBox& box) { asked = box.windowTitle(); });
        SaveAction()->trigger();
        QCOMPARE(asked, QStringLiteral("Vandrell's Quillbook: File Changed On Disk"));
        QCOMPARE(harness_->Hub().ReadSetting("Security/CommandSpy/CommandSpySettings.tbl"),
                 test::Crlf({"tCommandSpySettings = {", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                             "\t\t[0] = 1,", "\t\t[1] = 1,", "\t},", "}"}));
        // Its own save is no change on disk.
        QTest::qWait(200);
        QVERIFY(!bar->isVisible());
    }

  private:
    // As an editor would: a new file renamed over the old one.
    void WriteAsAnotherProgram(std::initializer_list<std::string_view> rows) {
        std::vector<std::string_view> lines = {"tCommandSpySettings = {", "\ttEnabledProfiles = {"};
        lines.insert(lines.end(), rows);
        lines.insert(lines.end(), {"\t},", "}"});
        std::string text;
        for (std::string_view line : lines)
            text += std::string(line) + "\r\n";
        harness_->Hub().WriteSetting("Security/CommandSpy/new.tmp", text);
        const auto folder = harness_->Hub().Settings() / "Security" / "CommandSpy";
        std::filesystem::rename(folder / "new.tmp", folder / "CommandSpySettings.tbl");
    }

    QAction* SaveAction() const { return harness_->ToolbarButton("tlbFormToolbar", "SAVE"); }
    // A panel of the page's own status bar, where its dirty mark shows.
    QLabel* StatusPanel(int index) const {
        return harness_->ActivePageWindow()->findChild<QLabel*>(
            QStringLiteral("panel%1").arg(index));
    }

    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(command_spy_window_test, qb::gui::CommandSpyWindowTest)
#include "command_spy_window_test.moc"
