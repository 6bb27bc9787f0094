#include "gui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "gui/container_dialogs.h"
#include "gui/fatal.h"
#include "gui/icons.h"
#include "gui/page_view.h"
#include "gui/text.h"
#include "gui/toolbar_binding.h"
#include "shell/page_frame.h"

namespace qb::gui {
namespace {

int Pixels(int twips) {
    return twips / shell::kTwipsPerPixel;
}

constexpr int kKeyRole = Qt::UserRole;

// A status panel that tells of clicks on it.
class PanelLabel : public QLabel {
  public:
    explicit PanelLabel(std::function<void()> onClick) : onClick_(std::move(onClick)) {}

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
            onClick_();
        }
        QLabel::mouseReleaseEvent(event);
    }

  private:
    std::function<void()> onClick_;
};

}  // namespace

// ---- PageWindow ------------------------------------------------------------------------------

PageWindow::PageWindow(shell::Container& container, PageView* view)
    : container_(container), view_(view) {
    setWidget(view);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(view->windowTitle());
    setObjectName(view->objectName());
    setWindowIcon(WindowIcon());
}

void PageWindow::FitToPage() {
    // The page was laid out for a smaller font than a desktop's: it opens at its own size or at
    // the size of what it holds, whichever is larger, and is never made smaller than what it
    // holds needs, so that nothing is cut. Sizes are known once the window stands in the area,
    // with the style and the font applied to every widget of the page.
    view_->ensurePolished();
    const QSize frame = QMdiSubWindow::sizeHint() - view_->sizeHint();
    setMinimumSize(view_->MinimumPixels().expandedTo(view_->minimumSizeHint() + frame));
    // Opened at least wide enough for its whole caption.
    const int titleWidth = fontMetrics().horizontalAdvance(windowTitle()) +
                           4 * style()->pixelMetric(QStyle::PM_TitleBarHeight);
    resize(view_->InitialPixels()
               .expandedTo(view_->sizeHint() + frame)
               .expandedTo(minimumSize())
               .expandedTo({titleWidth, 0}));
}

void PageWindow::CloseForGood() {
    closing_ = true;
    close();
}

void PageWindow::closeEvent(QCloseEvent* event) {
    if (closing_) {
        QMdiSubWindow::closeEvent(event);
        return;
    }
    // The page decides, and may ask the user; the window closes when the container lets it go.
    event->ignore();
    const std::string key = view_->GetPage().Key();
    QMetaObject::invokeMethod(
        this,
        [this, key] {
            Guard([&] {
                if (shell::Page* page = container_.Find(key)) container_.Close(*page);
            });
        },
        Qt::QueuedConnection);
}

// ---- MainWindow ------------------------------------------------------------------------------

MainWindow::MainWindow(shell::Container& container) : container_(container), area_(new QMdiArea) {
    setObjectName(QStringLiteral("frmContainer"));
    setWindowTitle(ToQt(container.WindowCaption()));
    setWindowIcon(WindowIcon());
    area_->setObjectName(QStringLiteral("mdiArea"));
    area_->setBackground(QColor(0x8c, 0x9a, 0xa6));

    tlbMDITop_ = new ToolbarBinding(container_.MDITop(), this);
    tlbMDITop_->setIconSize(QSize(24, 24));
    addToolBar(Qt::TopToolBarArea, tlbMDITop_);

    BuildSideBar();
    auto* splitter = new QSplitter;
    splitter->setObjectName(QStringLiteral("splitter"));
    splitter->addWidget(picSideBar_);
    splitter->addWidget(area_);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setCollapsible(1, false);
    setCentralWidget(splitter);

    BuildMenus();
    BuildStatusBar();

    // The smallest size the pages were laid out for.
    setMinimumSize(Pixels(shell::kContainerMinimum.width), Pixels(shell::kContainerMinimum.height));
    resize(1180, 800);

    tmrUpdate_ = new QTimer(this);
    tmrUpdate_->setObjectName(QStringLiteral("tmrUpdate"));
    tmrUpdate_->setInterval(60000);
    connect(tmrUpdate_, &QTimer::timeout, this, [this] { Guard([&] { container_.TimerTick(); }); });
    tmrUpdate_->start();

    container_.onPageOpened = [this](shell::Page& page) {
        auto* view = new PageView(page);
        auto* window = new PageWindow(container_, view);
        area_->addSubWindow(window);
        window->FitToPage();
        window->show();
    };
    container_.onPageActivated = [this](shell::Page& page) {
        if (PageWindow* window = WindowOf(page.Key())) area_->setActiveSubWindow(window);
    };
    container_.onPageClosing = [this](shell::Page& page) {
        if (PageWindow* window = WindowOf(page.Key())) {
            window->CloseForGood();
            area_->removeSubWindow(window);
            delete window;
        }
    };
    container_.onPopupMenu = [this](shell::Page&, const std::string& menu) { ShowPopup(menu); };
    container_.onNavigationChanged = [this] { SyncNavigation(); };
    container_.onWindowsChanged = [this] { SyncWindowsMenu(); };
    container_.onBusy = [](bool busy) {
        if (busy) {
            QApplication::setOverrideCursor(Qt::WaitCursor);
        } else {
            QApplication::restoreOverrideCursor();
        }
    };
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        auto* pageWindow = qobject_cast<PageWindow*>(window);
        if (pageWindow == nullptr) return;
        shell::Page& page = pageWindow->View()->GetPage();
        if (container_.Active() != &page) Guard([&] { container_.Activate(page); });
    });

    FillTree();
    // The side bar opens wide enough for the tree with every node open, beside its scroll bar.
    splitter->setSizes({std::max(230, FullTreeWidth()), 900});
    SyncWindowsMenu();
}

int MainWindow::FullTreeWidth() const {
    int widest = 0;
    for (QTreeWidgetItemIterator it(tvwFunctions_); *it; ++it) {
        int depth = 1;  // the root is decorated too
        for (const QTreeWidgetItem* parent = (*it)->parent(); parent != nullptr;
             parent = parent->parent()) {
            ++depth;
        }
        const int text = QFontMetrics((*it)->font(0)).horizontalAdvance((*it)->text(0));
        widest = std::max(widest, depth * tvwFunctions_->indentation() + text);
    }
    const QMargins margins = picSideBar_->layout()->contentsMargins();
    // The room an item keeps around its text, as the style draws it.
    const int padding = 4 * tvwFunctions_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    return widest + padding + 2 * tvwFunctions_->frameWidth() +
           tvwFunctions_->verticalScrollBar()->sizeHint().width() + margins.left() +
           margins.right();
}

MainWindow::~MainWindow() {
    container_.onPageOpened = nullptr;
    container_.onPageActivated = nullptr;
    container_.onPageClosing = nullptr;
    container_.onPopupMenu = nullptr;
    container_.onNavigationChanged = nullptr;
    container_.onWindowsChanged = nullptr;
    container_.onBusy = nullptr;
    container_.Status().SetListener(nullptr);
    // The views go before the pages they show.
    for (QMdiSubWindow* window : area_->subWindowList())
        delete window;
}

void MainWindow::BuildSideBar() {
    picSideBar_ = new QWidget;
    picSideBar_->setObjectName(QStringLiteral("picSideBar"));
    tlbSidebar_ = new ToolbarBinding(container_.Sidebar());
    tvwFunctions_ = new QTreeWidget;
    tvwFunctions_->setObjectName(QStringLiteral("tvwFunctions"));
    tvwFunctions_->setHeaderHidden(true);
    tvwFunctions_->setColumnCount(1);
    tvwFunctions_->setUniformRowHeights(true);
    tvwFunctions_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tvwFunctions_->header()->setStretchLastSection(false);
    auto* layout = new QVBoxLayout(picSideBar_);
    layout->setContentsMargins(2, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tlbSidebar_);
    layout->addWidget(tvwFunctions_, 1);
    picSideBar_->setMinimumWidth(170);

    connect(tvwFunctions_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        const std::string key = FromQt(item->data(0, kKeyRole).toString());
        Guard([&] {
            container_.SelectNode(key);
            container_.OpenFunctionPage("");
        });
    });
    connect(tvwFunctions_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) {
        if (!syncing_) container_.SetExpanded(FromQt(item->data(0, kKeyRole).toString()), true);
    });
    connect(tvwFunctions_, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) {
        if (!syncing_) container_.SetExpanded(FromQt(item->data(0, kKeyRole).toString()), false);
    });
}

void MainWindow::FillTree() {
    tvwFunctions_->clear();
    std::function<void(QTreeWidgetItem*, const shell::CatalogueNode&)> add =
        [&](QTreeWidgetItem* item, const shell::CatalogueNode& node) {
            item->setText(0, ToQt(node.text));
            item->setData(0, kKeyRole, ToQt(node.key));
            item->setToolTip(0, ToQt(node.key));
            if (node.bold) {
                QFont font = item->font(0);
                font.setBold(true);
                item->setFont(0, font);
            }
            for (const auto& child : node.children)
                add(new QTreeWidgetItem(item), child);
        };
    add(new QTreeWidgetItem(tvwFunctions_), container_.Navigation().root);
    SyncNavigation();
}

QTreeWidgetItem* MainWindow::NodeOf(const std::string& key) const {
    const QString wanted = ToQt(key);
    for (QTreeWidgetItemIterator it(tvwFunctions_); *it; ++it) {
        if ((*it)->data(0, kKeyRole).toString() == wanted) return *it;
    }
    return nullptr;
}

void MainWindow::SyncNavigation() {
    syncing_ = true;
    const auto& expanded = container_.ExpandedNodes();
    for (QTreeWidgetItemIterator it(tvwFunctions_); *it; ++it) {
        const std::string key = FromQt((*it)->data(0, kKeyRole).toString());
        (*it)->setExpanded(expanded.contains(key));
    }
    if (QTreeWidgetItem* selected = NodeOf(container_.SelectedNode())) {
        tvwFunctions_->setCurrentItem(selected);
    }
    syncing_ = false;
    picSideBar_->setVisible(container_.SideBarVisible());
}

void MainWindow::BuildMenus() {
    auto action = [this](QMenu* menu, const char* name, const QString& text,
                         std::function<void()> run) {
        QAction* item = menu->addAction(text);
        item->setObjectName(QLatin1String(name));
        connect(item, &QAction::triggered, this, [run] { Guard(run); });
        return item;
    };
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    action(file, "mnuFileClose", QStringLiteral("&Close"), [this] { close(); });

    QMenu* tools = menuBar()->addMenu(QStringLiteral("&Tools"));
    tools->setObjectName(QStringLiteral("mnuTools"));
    toolsSideBar_ = action(tools, "mnuToolsSideBar", QStringLiteral("Show/Hide Functions &Sidebar"),
                           [this] { container_.ClickAppMenu("mnuToolsSideBar"); });

    mnuWindows_ = menuBar()->addMenu(QStringLiteral("&Windows"));
    mnuWindows_->setObjectName(QStringLiteral("mnuWindows"));
    for (int i = 1; i <= shell::kWindowsMenuItems; ++i) {
        const std::string name = "mnuWindows" + std::to_string(i);
        QAction* item = mnuWindows_->addAction(QString());
        item->setObjectName(QString::fromStdString(name));
        item->setVisible(false);
        connect(item, &QAction::triggered, this,
                [this, name] { Guard([&] { container_.ClickAppMenu(name); }); });
        windowsItems_.push_back(item);
    }
    mnuWindows_->addSeparator();
    action(mnuWindows_, "mnuWindowsShowAll", QStringLiteral("&Show All Windows"),
           [this] { ShowAllWindows(); });
    action(mnuWindows_, "mnuWindowsClose", QStringLiteral("&Close All Windows"),
           [this] { container_.ClickAppMenu("mnuWindowsClose"); });

    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    action(help, "mnuHelpVisit", QStringLiteral("&Visit Vandrell's Scripts"),
           [this] { container_.ClickAppMenu("mnuHelpVisit"); });
    action(help, "mnuHelpDonate", QStringLiteral("Make A &Donation"),
           [this] { container_.ClickAppMenu("mnuHelpDonate"); });
    help->addSeparator();
    action(help, "mnuHelpAbout", QStringLiteral("&About"), [this] { ShowAbout(); });
}

void MainWindow::SyncWindowsMenu() {
    const auto& items = container_.WindowsMenu();
    for (size_t i = 0; i < windowsItems_.size(); ++i) {
        // The entry's number carries its shortcut ("&3. "); the page's caption behind it shows
        // as it stands.
        const std::string& caption = items[i].caption;
        const size_t name = caption.find(". ");
        windowsItems_[i]->setText(name == std::string::npos
                                      ? ToQtLiteral(caption)
                                      : ToQt(caption.substr(0, name + 2)) +
                                            ToQtLiteral(caption.substr(name + 2)));
        windowsItems_[i]->setData(ToQt(items[i].tag));
        windowsItems_[i]->setVisible(items[i].visible);
    }
}

void MainWindow::BuildStatusBar() {
    shell::StatusBar& status = container_.Status();
    auto* bar = statusBar();
    bar->setObjectName(QStringLiteral("stsContainer"));
    for (int i = 1; i <= status.Count(); ++i) {
        auto* panel = new PanelLabel([this, i] { Guard([&] { container_.ClickStatusPanel(i); }); });
        panel->setObjectName(QStringLiteral("panel%1").arg(i));
        panel->setFrameShape(QFrame::StyledPanel);
        panel->setTextInteractionFlags(Qt::NoTextInteraction);
        bar->addWidget(panel, i == status.Count() ? 1 : 0);
        panels_.push_back(panel);
    }
    status.SetListener([this] { SyncStatus(); });
    SyncStatus();
}

void MainWindow::SyncStatus() {
    const shell::StatusBar& status = container_.Status();
    for (int i = 1; i <= status.Count(); ++i) {
        const auto& panel = status.Panel(i);
        QLabel* label = panels_[static_cast<size_t>(i - 1)];
        label->setText(ToQt(panel.text));
        // A news panel with nothing to tell takes no room.
        if (i > 2) label->setVisible(!panel.text.empty() || i == status.Count());
        label->setToolTip(ToQt(panel.tip));
        if (i < status.Count()) label->setMinimumWidth(Pixels(std::max(0, panel.width)));
    }
}

QLabel* MainWindow::StatusPanel(int index) const {
    if (index < 1 || index > static_cast<int>(panels_.size())) return nullptr;
    return panels_[static_cast<size_t>(index - 1)];
}

void MainWindow::ShowPopup(const std::string& menu) {
    const auto entries = container_.PopupEntries(menu);
    if (entries.empty()) return;
    if (popup_ != nullptr) popup_->deleteLater();
    popup_ = new QMenu(this);
    popup_->setObjectName(QString::fromStdString(menu));
    for (const auto& entry : entries) {
        QAction* item = popup_->addAction(ToQt(entry.caption));
        item->setObjectName(QString::fromStdString(entry.name));
        const std::string name = entry.name;
        connect(item, &QAction::triggered, this,
                [this, name] { Guard([&] { container_.ClickPopupEntry(name); }); });
    }
    popup_->popup(QCursor::pos());
}

PageWindow* MainWindow::WindowOf(const std::string& key) const {
    for (QMdiSubWindow* window : area_->subWindowList()) {
        auto* pageWindow = qobject_cast<PageWindow*>(window);
        if (pageWindow != nullptr && pageWindow->View()->GetPage().Key() == key) return pageWindow;
    }
    return nullptr;
}

void MainWindow::OpenPage(const std::string& key) {
    Guard([&] { container_.OpenFunctionPage(key); });
}

void MainWindow::ShowAllWindows() {
    WindowsDialog dialog(container_, this);
    dialog.exec();
}

void MainWindow::ShowAbout() {
    AboutDialog dialog(container_.Version(), this);
    dialog.exec();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    bool closed = false;
    Guard([&] { closed = container_.CloseAll(); });
    if (closed || FatalErrorShown()) {
        event->accept();
    } else {
        event->ignore();
    }
}

}  // namespace qb::gui
