#pragma once
// The desktop program as a whole: the files of one scripts folder, the pages, the main window's
// model and, once the start has let it, the window itself.

#include <filesystem>
#include <memory>

#include "gui/qt_host.h"
#include "shell/container.h"
#include "store/builders.h"
#include "store/table_files.h"

namespace qb::gui {

class MainWindow;

class Application {
  public:
    // `version` is the one the run behaves as: the build's, or the one the command line names.
    Application(const std::filesystem::path& scripts, store::ProgramVersion version);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // The main window's load: the navigation, the checks and the rebuild (asking in real message
    // boxes), the status bar and the news; then the window shows. Returns the exit status when
    // the program ends before it has a window (3 after a Cancel, 1 after a fatal error), or -1
    // once the window is shown.
    int Open();

    shell::Container& Container() { return container_; }
    store::TableFiles& Files() { return files_; }
    MainWindow* Window() const { return window_.get(); }

  private:
    store::TableFiles files_;
    QtHost host_;
    shell::PageRegistry registry_;
    store::BuilderRegistry builders_;
    shell::Container container_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace qb::gui
