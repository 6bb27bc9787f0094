// A language page in the real window: OPEN shows a real file dialog, in the pages' own filter,
// and what is chosen there is listed.

#include <QDir>
#include <QFileDialog>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include "gui/main_window.h"
#include "gui/qt_host.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

class LanguageWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        harness_ = std::make_unique<test::WindowHarness>();
        test::TempHub& hub = harness_->Hub();
        hub.WriteSetting(kFiles + std::string("DEFAULT.tbl"),
                         test::Crlf({"tScriptRightClick = {", "\tsHelp = \"Help\",", "}"}));
        hub.WriteSetting(kFiles + std::string("English.TBL"),
                         test::Crlf({"tScriptRightClick = {", "\tsHelp = \"Help me\",", "}"}));
        hub.WriteSetting("Language/RightClick/RightClickLanguages.tbl",
                         test::Crlf({"tRightClickLanguages = {", "\tCurrent = \"DEFAULT\",", "}"}));
        harness_->Load();
        QVERIFY(harness_->Show());
        harness_->Window().OpenPage("General~RightClicks");
    }

    void cleanup() { harness_.reset(); }

    void openListsTheFileChosenInTheFileDialog() {
        PageWindow* page = harness_->PageWindowOf("General~RightClicks");
        QVERIFY(page != nullptr);
        QCOMPARE(page->windowTitle(), QStringLiteral("General ~ RightClick"));
        auto* list = page->findChild<QTreeView*>("lvwFiles");
        QVERIFY(list != nullptr);
        QCOMPARE(list->model()->rowCount(), 1);

        QString title;
        QStringList filters;
        const QString chosen =
            QString::fromStdString((harness_->Hub().Settings() / kFiles / "English.TBL").string());
        QTimer::singleShot(0, this, [&] { ChooseInNextDialog(chosen, title, filters); });
        QAction* open = harness_->ToolbarButton("tlbFiles", "OPEN");
        QVERIFY(open != nullptr);
        open->trigger();

        QCOMPARE(title, QStringLiteral("Select Language File to open"));
        QCOMPARE(filters, NameFilters("(*.TBL)|*.tbl"));
        QCOMPARE(list->model()->rowCount(), 2);
        QCOMPARE(list->model()->index(1, 0).data().toString(), QStringLiteral("English"));
        // Listing a language is no change to save.
        QVERIFY(!harness_->Container().Active()->SaveRequired());
    }

    // The scripts' home system ignores letter case, and so does the dialog's filter.
    void theFilterFindsTableFilesInAnyLetterCase() {
        const QStringList filters = NameFilters("(*.TBL)|*.tbl");
        QCOMPARE(filters.size(), 1);
        QVERIFY(filters.front().startsWith(QStringLiteral("(*.TBL) (")));
        const QString patterns = filters.front().section(QLatin1Char('('), 2).chopped(1);
        QTemporaryDir dir;
        for (const char* name : {"a.tbl", "b.TBL", "c.Tbl", "d.txt", "e.tbl.bak"}) {
            QFile file(dir.filePath(QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QCOMPARE(QDir(dir.path()).entryList(patterns.split(QLatin1Char(' ')), QDir::Files),
                 (QStringList{"a.tbl", "b.TBL", "c.Tbl"}));
    }

  private:
    static constexpr const char* kFiles = "Language/RightClick/Files/";

    void ChooseInNextDialog(const QString& path, QString& title, QStringList& filters) {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            QTimer::singleShot(10, this, [&, path] { ChooseInNextDialog(path, title, filters); });
            return;
        }
        title = dialog->windowTitle();
        filters = dialog->nameFilters();
        dialog->selectFile(path);
        QMetaObject::invokeMethod(dialog, "accept");
    }

    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(language_window_test, qb::gui::LanguageWindowTest)
#include "language_window_test.moc"
