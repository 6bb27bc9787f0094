#include <iostream>

#include "cli/commands.h"
#include "cli/page_json.h"

namespace qb::cli {

int ShowCommand(Session& session, const Arguments& arguments) {
    session.container.LoadProfiles();
    shell::Page* page = session.container.Open(arguments[0]);
    if (page == nullptr) {
        std::cerr << "quillbook-cli: no page has the key " << arguments[0] << "\n";
        return 2;
    }
    std::cout << PageJson(*page) << "\n";
    return 0;
}

}  // namespace qb::cli
