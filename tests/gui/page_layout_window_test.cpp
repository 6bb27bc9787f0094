// Every registered page as a hub owner first meets it: opened at its normal size over a rebuilt
// tree, in the real window, nothing it holds may be cut, hidden under another control or drawn
// outside its frame. A page registered later is covered without a line of its own.

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>
#include <map>
#include <set>

#include "gui/main_window.h"
#include "gui/page_view.h"
#include "pages/pages.h"
#include "support/window_harness.h"
#include "support/window_test_main.h"

namespace qb::gui {

namespace {

// The widgets a page's layout places: those whose parent is the page's view or a frame of it.
// What lies inside a list, a spin box or a toolbar is Qt's own.
std::vector<QWidget*> Placed(QWidget& view) {
    std::vector<QWidget*> placed;
    for (QWidget* widget : view.findChildren<QWidget*>()) {
        QWidget* parent = widget->parentWidget();
        if (!widget->isVisible()) continue;
        if (parent == &view || qobject_cast<QGroupBox*>(parent) != nullptr) {
            placed.push_back(widget);
        }
    }
    return placed;
}

QString Describe(const QWidget* widget) {
    QString text = QString::fromLatin1(widget->metaObject()->className());
    if (!widget->objectName().isEmpty()) text += QStringLiteral(" ") + widget->objectName();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        text += QStringLiteral(" \"") + label->text() + QStringLiteral("\"");
    }
    return text;
}

// A control whose text would be cut below the size it asks for.
bool ShowsText(const QWidget* widget) {
    return qobject_cast<const QLabel*>(widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(widget) != nullptr ||
           qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
           qobject_cast<const QComboBox*>(widget) != nullptr;
}

// The names of the controls a frame's part of the layout puts in it, by frame.
void FramedControls(const shell::Layout& layout, const std::string& frame,
                    std::vector<std::pair<std::string, std::string>>& found) {
    std::string inside = frame;
    if (layout.type == shell::Layout::Type::Item && layout.control != nullptr) {
        if (!frame.empty()) found.emplace_back(frame, layout.control->Name());
        if (layout.control->Kind() == shell::ControlKind::Frame) inside = layout.control->Name();
    }
    for (const auto& item : layout.items)
        FramedControls(item, inside, found);
}

}  // namespace

class PageLayoutWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        harness_ = std::make_unique<test::WindowHarness>();
        // As 6.0.0, so that the archive's pages open over their built files like every other.
        harness_->SetVersion({6, 0, 0});
        harness_->LoadRebuilt(4);
        QVERIFY(harness_->Show(QSize(1180, 800)));
    }

    void cleanupTestCase() { harness_.reset(); }

    void everyPageShowsWhatItHoldsWhole_data() {
        QTest::addColumn<QString>("key");
        for (const std::string& key : harness_->Registry().Keys()) {
            QTest::newRow(key.c_str()) << QString::fromStdString(key);
        }
    }

    void everyPageShowsWhatItHoldsWhole() {
        QFETCH(QString, key);
        const std::string pageKey = key.toStdString();
        // By key, as `show` opens it: a page no node offers is drawn by the same renderer.
        harness_->Container().Open(pageKey);
        PageWindow* window = harness_->PageWindowOf(pageKey);
        QVERIFY2(window != nullptr, "the page didn't open");
        QTest::qWait(0);
        QWidget& view = *window->widget();
        QStringList faults;

        const std::vector<QWidget*> placed = Placed(view);
        for (QWidget* widget : placed) {
            const QRect room = widget->parentWidget()->contentsRect();
            if (!room.contains(widget->geometry())) {
                faults << Describe(widget) + QStringLiteral(" reaches outside its parent");
            }
            if (ShowsText(widget) && (widget->width() < widget->sizeHint().width() ||
                                      widget->height() < widget->sizeHint().height())) {
                faults << Describe(widget) + QStringLiteral(" is cut: %1x%2 of %3x%4")
                                                 .arg(widget->width())
                                                 .arg(widget->height())
                                                 .arg(widget->sizeHint().width())
                                                 .arg(widget->sizeHint().height());
            }
            if (auto* list = qobject_cast<QTreeView*>(widget);
                list != nullptr && list->horizontalScrollBar()->isVisible()) {
                faults << Describe(widget) + QStringLiteral(" shows a scroll bar across");
            }
            if (auto* edit = qobject_cast<QLineEdit*>(widget);
                edit != nullptr && edit->cursorPosition() != 0) {
                faults << Describe(widget) + QStringLiteral(" doesn't show its text's beginning");
            }
        }
        for (size_t a = 0; a < placed.size(); ++a) {
            for (size_t b = a + 1; b < placed.size(); ++b) {
                if (placed[a]->parentWidget() == placed[b]->parentWidget() &&
                    placed[a]->geometry().intersects(placed[b]->geometry())) {
                    faults << Describe(placed[a]) + QStringLiteral(" overlaps ") +
                                  Describe(placed[b]);
                }
            }
        }

        // Fields labelled one under another start at one edge.
        std::map<int, std::set<int>> fieldEdgesByLabelEdge;
        for (QLabel* label : view.findChildren<QLabel*>()) {
            if (label->buddy() == nullptr || !label->isVisible()) continue;
            const int labelEdge = label->mapTo(&view, QPoint()).x();
            fieldEdgesByLabelEdge[labelEdge].insert(label->buddy()->mapTo(&view, QPoint()).x());
        }
        for (const auto& [labelEdge, fieldEdges] : fieldEdgesByLabelEdge) {
            if (fieldEdges.size() > 1) {
                faults << QStringLiteral("the fields of the labels at %1 start at %2 edges")
                              .arg(labelEdge)
                              .arg(fieldEdges.size());
            }
        }

        const shell::Page& page = window->View()->GetPage();
        std::vector<std::pair<std::string, std::string>> framed;
        FramedControls(page.Body(), "", framed);
        for (const auto& [frame, control] : framed) {
            auto* group = view.findChild<QGroupBox*>(QString::fromStdString(frame));
            auto* widget = view.findChild<QWidget*>(QString::fromStdString(control));
            if (group == nullptr || widget == nullptr || !group->isAncestorOf(widget)) {
                faults << QString::fromStdString(control + " isn't drawn inside " + frame);
            }
        }
        // An up-down and the text box that shows its value are one control to the user.
        for (const auto& control : page.Controls()) {
            if (control->Kind() != shell::ControlKind::UpDown) continue;
            const auto& buddy = static_cast<const shell::UpDown&>(*control).Buddy();
            if (buddy.empty()) continue;
            if (auto* box = view.findChild<QWidget*>(QString::fromStdString(buddy));
                box != nullptr && box->isVisible()) {
                faults << QString::fromStdString(buddy + " shows the value of " + control->Name() +
                                                 " a second time");
            }
        }
        window->CloseForGood();
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("; "))));
    }

    // Texts with "&" show it: it is no shortcut mark on a menu entry of the window.
    void aGroupMenuShowsItsEntriesTexts() {
        QMenu* menu = harness_->Window().findChild<QMenu*>(QStringLiteral("CustomiseUserMenu"));
        QVERIFY(menu != nullptr);
        QStringList texts;
        for (const QAction* entry : menu->actions())
            texts << entry->text();
        QVERIFY2(texts.contains(QStringLiteral("Intros && Outros ~ Standard")),
                 qPrintable(texts.join('|')));
    }

    // The tree with every node open fits the side bar it opens in.
    void theSideBarHoldsTheWholeTree() {
        auto* tree = harness_->Window().findChild<QTreeWidget*>(QStringLiteral("tvwFunctions"));
        QVERIFY(tree != nullptr);
        tree->expandAll();
        QTest::qWait(0);
        QVERIFY(!tree->horizontalScrollBar()->isVisible());
        tree->collapseAll();
    }

  private:
    std::unique_ptr<test::WindowHarness> harness_;
};

}  // namespace qb::gui

QB_WINDOW_TEST(page_layout_window_test, qb::gui::PageLayoutWindowTest)
#include "page_layout_window_test.moc"
