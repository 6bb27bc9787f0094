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
    Driver driver(session.container, session.host, std::cout);
    return driver.Run(std::cin, std::cerr);
}

}  // namespace qb::cli
