#include <iostream>

#include "cli/commands.h"
#include "cli/driver.h"

namespace qb::cli {

int DriveCommand(Session& session, const Arguments& /*none: the parser allows none*/) {
    session.container.LoadProfiles();
    session.container.FillNavigation();
    // A pop-up menu shows the entries the page has; the script then picks one with `menu`.
    session.container.onPopupMenu = [&session](shell::Page&, const std::string& menu) {
        std::string line = "popup:";
        const char* separator = " ";
        for (const auto& entry : session.container.PopupEntries(menu)) {
            std::string caption;
            for (char c : entry.caption) {
                if (c != '&') caption.push_back(c);
            }
            line += separator + caption;
            separator = ", ";
        }
        std::cout << line << "\n";
    };
    session.host.openTextEditor = [&session](const std::string& file, const std::string& mode) {
        session.container.OpenTextEditor(file, mode);
    };
    Driver driver(session.container, session.host, std::cout);
    return driver.Run(std::cin, std::cerr);
}

}  // namespace qb::cli
