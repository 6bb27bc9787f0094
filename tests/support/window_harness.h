#pragma once
// The desktop window over a temporary hub, for the window tests. A test makes one in init(),
// writes the hub's files, loads the container, may set up more of it, and shows the window; it
// drops the harness in cleanup(), and the window, the pages and the hub folder go with it.

#include <QMessageBox>
#include <QSize>
#include <functional>
#include <memory>
#include <string>

#include "gui/main_window.h"
#include "gui/qt_host.h"
#include "shell/container.h"
#include "shell/page_registry.h"
#include "store/table_files.h"
#include "support/temp_hub.h"

class QAbstractItemView;
class QAction;

namespace qb::test {

class WindowHarness {
  public:
    WindowHarness() = default;
    WindowHarness(const WindowHarness&) = delete;
    WindowHarness& operator=(const WindowHarness&) = delete;

    // Written before Load, as a hub is set up before the program starts.
    TempHub& Hub() { return hub_; }
    gui::QtHost& Host() { return host_; }
    // A test that needs its own pages, or pages with services, registers them before Load.
    shell::PageRegistry& Registry() { return registry_; }
    // The version the program behaves as, set before Load: the build's unless a test names one.
    void SetVersion(store::ProgramVersion version) { version_ = version; }

    // Opens the hub's files and makes the container: every page is registered unless the test
    // registered its own, the navigation is filled and the profiles are loaded, in the order
    // the program starts in.
    void Load();
    // A hub of `profiles` profiles with every page registered, the portal's on real sockets that
    // stay closed until a hub is ticked, loaded and rebuilt as a first start would: the pages
    // then open over the files a hub owner first meets.
    void LoadRebuilt(int profiles);
    // Makes the window over the loaded container (at `size` when one is given, before it shows,
    // so that the first layout is already the final one), makes it the parent of the host's
    // dialogs and shows it. True once it is on screen.
    [[nodiscard]] bool Show(QSize size = QSize());

    shell::Container& Container() const;
    gui::MainWindow& Window() const;

    // Null where the page isn't open.
    gui::PageWindow* PageWindowOf(const std::string& key) const;
    // The window of the page the container has active, or null when none is.
    gui::PageWindow* ActivePageWindow() const;
    // A button of a toolbar of the active page, or null when there is no such page, toolbar or
    // button.
    QAction* ToolbarButton(const char* toolbar, const char* key) const;

  private:
    // Declared in the order they depend on each other, so that they go in the reverse one.
    TempHub hub_;
    std::unique_ptr<store::TableFiles> files_;
    gui::QtHost host_;
    shell::PageRegistry registry_;
    store::ProgramVersion version_ = store::kBuildVersion;
    std::unique_ptr<shell::Container> container_;
    std::unique_ptr<gui::MainWindow> window_;
};

// Presses the middle of a list's row, as a user's click does.
void ClickRow(QAbstractItemView& list, int row);

// Clicks `button` of the message box that is about to open, once it has opened, and first hands
// the box to `seen`. The test's call that opens the box blocks in the box's own event loop, so
// the answer has to come from a timer.
void AnswerNextBox(QObject& context, QMessageBox::StandardButton button,
                   std::function<void(const QMessageBox&)> seen = {});

}  // namespace qb::test
