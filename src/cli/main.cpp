// quillbook-cli: the settings manager without a window. It runs from a hub's scripts folder (or the
// folder given by --scripts) and prints what the desktop window would show.

#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "cli/driver.h"
#include "cli/page_json.h"
#include "pages/pages.h"
#include "shell/container.h"
#include "shell/scripted_host.h"
#include "store/fatal_error.h"
#include "store/paths.h"
#include "store/table_files.h"

namespace {

namespace fs = std::filesystem;
using namespace qb;

constexpr const char* kUsage =
    "usage: quillbook-cli [--scripts DIR] COMMAND\n"
    "commands:\n"
    "  show KEY   print the page of a function key, after its load, as JSON\n"
    "  drive      run user actions read from standard input, one a line\n";

struct Options {
    fs::path scripts = fs::current_path();
    std::vector<std::string> command;
};

Options ParseOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--scripts") == 0 && i + 1 < argc) {
            options.scripts = argv[++i];
        } else {
            options.command.emplace_back(argv[i]);
        }
    }
    options.scripts = fs::absolute(options.scripts).lexically_normal();
    return options;
}

int Run(const Options& options) {
    const auto& command = options.command;
    if (command.empty()) {
        std::cerr << kUsage;
        return 2;
    }
    store::TableFiles files(store::ToScriptPath(options.scripts));
    shell::ScriptedHost host(std::cout);
    shell::PageRegistry registry;
    pages::RegisterAllPages(registry);
    shell::Container container(files, host, registry);

    if (command[0] == "show" && command.size() == 2) {
        container.LoadProfiles();
        shell::Page* page = container.Open(command[1]);
        if (page == nullptr) {
            std::cerr << "quillbook-cli: no page has the key " << command[1] << "\n";
            return 2;
        }
        std::cout << cli::PageJson(*page) << "\n";
        return 0;
    }
    if (command[0] == "drive" && command.size() == 1) {
        container.LoadProfiles();
        cli::Driver driver(container, host, std::cout);
        return driver.Run(std::cin, std::cerr);
    }
    std::cerr << kUsage;
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(ParseOptions(argc, argv));
    } catch (const store::FatalError& error) {
        std::cout.flush();
        std::cerr << "quillbook-cli: " << error.Path() << ": " << error.Reason() << "\n";
        return 1;
    } catch (const shell::UnansweredPrompt& error) {
        std::cout.flush();
        std::cerr << "quillbook-cli: " << error.what() << "\n";
        return 2;
    }
}
