#include <iostream>

#include "cli/commands.h"
#include "cli/driver.h"

namespace qb::cli {

int DriveCommand(Session& session, const Arguments& arguments) {
    if (!arguments.empty()) {
        std::cerr << "usage: quillbook-cli drive < SCRIPT\n";
        return 2;
    }
    session.container.LoadProfiles();
    session.container.FillNavigation();
    session.host.openTextEditor = [&session](const std::string& file, const std::string& mode) {
        session.container.OpenTextEditor(file, mode);
    };
    Driver driver(session.container, session.host, std::cout);
    return driver.Run(std::cin, std::cerr);
}

}  // namespace qb::cli
