#include "gui/main_window.h"

#include <QCloseEvent>
#include <QMdiArea>

#include "gui/fatal.h"
#include "gui/page_view.h"
#include "gui/text.h"
#include "store/edition.h"

namespace qb::gui {

PageWindow::PageWindow(shell::Container& container, PageView* view)
    : container_(container), view_(view) {
    setWidget(view);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(view->windowTitle());
    setObjectName(view->objectName());
    setMinimumSize(view->MinimumPixels());
    resize(view->InitialPixels().expandedTo(view->MinimumPixels()));
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

MainWindow::MainWindow(shell::Container& container)
    : container_(container), area_(new QMdiArea(this)) {
    setObjectName(QStringLiteral("frmContainer"));
    setWindowTitle(QStringLiteral("Vandrell's ") + ToQt(std::string(store::kEdition)) +
                   QStringLiteral(" ") + QString::fromStdString(store::VersionText()));
    area_->setObjectName(QStringLiteral("mdiArea"));
    setCentralWidget(area_);
    resize(800, 600);

    container_.onPageOpened = [this](shell::Page& page) {
        auto* view = new PageView(page);
        auto* window = new PageWindow(container_, view);
        area_->addSubWindow(window);
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
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        auto* pageWindow = qobject_cast<PageWindow*>(window);
        if (pageWindow == nullptr) return;
        shell::Page& page = pageWindow->View()->GetPage();
        if (container_.Active() != &page) Guard([&] { container_.Activate(page); });
    });
}

MainWindow::~MainWindow() {
    container_.onPageOpened = nullptr;
    container_.onPageActivated = nullptr;
    container_.onPageClosing = nullptr;
    // The views go before the pages they show.
    for (QMdiSubWindow* window : area_->subWindowList())
        delete window;
}

PageWindow* MainWindow::WindowOf(const std::string& key) const {
    for (QMdiSubWindow* window : area_->subWindowList()) {
        auto* pageWindow = qobject_cast<PageWindow*>(window);
        if (pageWindow != nullptr && pageWindow->View()->GetPage().Key() == key) return pageWindow;
    }
    return nullptr;
}

void MainWindow::OpenPage(const std::string& key) {
    Guard([&] { container_.Open(key); });
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
