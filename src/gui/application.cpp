#include "gui/application.h"

#include "gui/fatal.h"
#include "gui/main_window.h"
#include "gui/start.h"
#include "hublink/qt/socket_sessions.h"
#include "pages/pages.h"
#include "store/paths.h"

namespace qb::gui {

namespace {

pages::PageServices DesktopServices() {
    pages::PageServices services;
    services.hubLink = hublink::SocketSessionsFactory();
    return services;
}

}  // namespace

Application::Application(const std::filesystem::path& scripts, store::ProgramVersion version)
    : files_(store::ToScriptPath(std::filesystem::absolute(scripts).lexically_normal())),
      container_(files_, host_, registry_, version) {
    pages::RegisterAllPages(registry_, DesktopServices());
    pages::RegisterAllBuilders(builders_);
    host_.openTextEditor = [this](const std::string& file, const std::string& mode) {
        container_.OpenTextEditor(file, mode);
    };
}

Application::~Application() {
    // The window's views go before the pages they show.
    window_.reset();
}

int Application::Open() {
    // The navigation comes first, so that the portal switch is read before a rebuild could
    // touch the switches file; then the checks and the rebuild, before the window shows.
    Guard([&] { container_.FillNavigation(); });
    if (FatalErrorShown()) return 1;
    // A Cancel at the rebuild prompt ends the program with status 3, as the command line does.
    if (!StartBeforeWindow(container_, builders_)) return FatalErrorShown() ? 1 : 3;
    window_ = std::make_unique<MainWindow>(container_);
    host_.SetParent(window_.get());
    window_->show();
    return -1;
}

}  // namespace qb::gui
