// quillbook-cli: the settings manager without a window. It runs from a hub's scripts folder (or the
// folder given by --scripts) and prints what the desktop window would show.

#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "pages/pages.h"
#include "shell/container.h"
#include "shell/scripted_host.h"
#include "store/edition.h"
#include "store/fatal_error.h"
#include "store/paths.h"
#include "store/table_files.h"

namespace {

namespace fs = std::filesystem;
using namespace qb;

int Usage() {
    std::cerr << "usage: quillbook-cli [--scripts DIR] [--program-version X.Y.Z] COMMAND\n"
                 "commands:\n";
    for (const auto& command : cli::Commands())
        std::cerr << "  " << command.usage << "\n";
    return 2;
}

int Run(int argc, char** argv) {
    fs::path scripts = fs::current_path();
    // The run behaves as a build of this version; it is read here once and handed down.
    store::ProgramVersion version = store::kBuildVersion;
    std::vector<std::string> words;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--scripts") == 0 && i + 1 < argc) {
            scripts = argv[++i];
        } else if (std::strcmp(argv[i], "--program-version") == 0) {
            if (i + 1 == argc) return Usage();
            const auto parsed = store::ParseVersion(argv[++i]);
            if (!parsed) {
                std::cerr << "quillbook-cli: --program-version " << argv[i]
                          << ": not three numbers joined by \".\" (as 6.0.0)\n";
                return 2;
            }
            version = *parsed;
        } else {
            words.emplace_back(argv[i]);
        }
    }
    if (words.empty()) return Usage();
    for (const auto& command : cli::Commands()) {
        if (words.front() != command.name) continue;
        store::TableFiles files(store::ToScriptPath(fs::absolute(scripts).lexically_normal()));
        shell::ScriptedHost host(std::cout);
        shell::PageRegistry registry;
        // Drives tick the portal's hubs against a recorder that writes down what it is asked.
        pages::PageServices services;
        services.hubLink = [](const hublink::PortalValues& values) {
            return std::make_unique<hublink::RecordingSessions>(values, std::cout);
        };
        pages::RegisterAllPages(registry, services);
        shell::Container container(files, host, registry, version);
        cli::Session session{files, host, container};
        return command.run(session, {words.begin() + 1, words.end()});
    }
    return Usage();
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
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
