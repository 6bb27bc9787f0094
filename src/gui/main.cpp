// quillbook: the settings manager's desktop window. It runs from a hub's scripts folder, or from
// the folder given as its one argument.

#include <QApplication>
#include <QMessageBox>
#include <filesystem>

#include "gui/fatal.h"
#include "gui/main_window.h"
#include "gui/qt_host.h"
#include "gui/start.h"
#include "hublink/qt/socket_sessions.h"
#include "pages/pages.h"
#include "shell/container.h"
#include "store/paths.h"
#include "store/table_files.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    namespace fs = std::filesystem;
    using namespace qb;

    const QStringList arguments = QApplication::arguments();
    const fs::path folder = arguments.size() > 1
                                ? fs::path(arguments.at(1).toStdString())
                                : fs::path(QApplication::applicationDirPath().toStdString());
    store::TableFiles files(store::ToScriptPath(fs::absolute(folder).lexically_normal()));
    gui::QtHost host;
    shell::PageRegistry registry;
    pages::PageServices services;
    services.hubLink = hublink::SocketSessionsFactory();
    pages::RegisterAllPages(registry, services);
    shell::Container container(files, host, registry);

    host.openTextEditor = [&container](const std::string& file, const std::string& mode) {
        container.OpenTextEditor(file, mode);
    };

    // The navigation comes first, so that the portal switch is read before a rebuild could
    // touch the switches file; then the checks and the rebuild, before the window shows.
    gui::Guard([&] { container.FillNavigation(); });
    if (gui::FatalErrorShown()) return 1;
    store::BuilderRegistry builders;
    pages::RegisterAllBuilders(builders);
    // A Cancel at the rebuild prompt ends the program with status 3, as the command line does.
    if (!gui::StartBeforeWindow(container, builders)) return gui::FatalErrorShown() ? 1 : 3;

    gui::MainWindow window(container);
    host.SetParent(&window);
    window.show();
    return QApplication::exec();
}
