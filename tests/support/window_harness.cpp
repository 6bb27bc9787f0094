#include "support/window_harness.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QTimer>
#include <QToolBar>
#include <QtTest>
#include <stdexcept>

#include "hublink/qt/socket_sessions.h"
#include "pages/pages.h"
#include "shell/startup.h"

namespace qb::test {
namespace {

template <typename T>
T& Loaded(const std::unique_ptr<T>& part, const char* what) {
    if (part == nullptr) throw std::logic_error(std::string(what) + " asked for before it exists");
    return *part;
}

}  // namespace

void WindowHarness::Load() {
    files_ = std::make_unique<store::TableFiles>(hub_.ProgramFolder());
    if (registry_.Keys().empty()) pages::RegisterAllPages(registry_);
    container_ = std::make_unique<shell::Container>(*files_, host_, registry_, version_);
    container_->FillNavigation();
    container_->LoadProfiles();
}

void WindowHarness::LoadRebuilt(int profiles) {
    hub_.Write("cfg/Profiles.xml", ProfilesXml(profiles));
    pages::PageServices services;
    services.hubLink = hublink::SocketSessionsFactory();
    pages::RegisterAllPages(registry_, services);
    Load();
    store::BuilderRegistry builders;
    pages::RegisterAllBuilders(builders);
    store::BuildRun run{.files = Container().Files(),
                        .lastProfile = Container().Profiles().LastNumber(),
                        .version = Container().Version(),
                        .profileNames = Container().Profiles().Names()};
    shell::RebuildSettings(run, builders);
}

bool WindowHarness::Show(QSize size) {
    window_ = std::make_unique<gui::MainWindow>(Container());
    if (size.isValid()) window_->resize(size);
    host_.SetParent(window_.get());
    window_->show();
    return QTest::qWaitForWindowExposed(window_.get());
}

shell::Container& WindowHarness::Container() const {
    return Loaded(container_, "the container");
}

gui::MainWindow& WindowHarness::Window() const {
    return Loaded(window_, "the window");
}

gui::PageWindow* WindowHarness::PageWindowOf(const std::string& key) const {
    return Window().WindowOf(key);
}

gui::PageWindow* WindowHarness::ActivePageWindow() const {
    const shell::Page* active = Container().Active();
    return active == nullptr ? nullptr : PageWindowOf(active->Key());
}

QAction* WindowHarness::ToolbarButton(const char* toolbar, const char* key) const {
    gui::PageWindow* page = ActivePageWindow();
    auto* bar = page == nullptr ? nullptr : page->findChild<QToolBar*>(toolbar);
    return bar == nullptr ? nullptr : bar->findChild<QAction*>(key);
}

void ClickRow(QAbstractItemView& list, int row) {
    const QRect rect = list.visualRect(list.model()->index(row, 0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, rect.center());
}

void AnswerNextBox(QObject& context, QMessageBox::StandardButton button,
                   std::function<void(const QMessageBox&)> seen) {
    QTimer::singleShot(0, &context, [&context, button, seen = std::move(seen)] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            AnswerNextBox(context, button, seen);  // not open yet: look again
            return;
        }
        if (seen) seen(*box);
        box->button(button)->click();
    });
}

}  // namespace qb::test
