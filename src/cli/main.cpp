// quillbook-cli: the settings manager without a window. It runs from a hub's scripts folder (or the
// folder given by --scripts) and prints what the desktop window would show.

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <variant>
#include <vector>

#include "cli/command_line.h"
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

int Run(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    // The shell's completion asks for the words that may follow what is typed so far.
    if (const auto marker = std::find(words.begin(), words.end(), "__complete");
        marker != words.end()) {
        words.erase(marker);
        for (const std::string& word : cli::Completions(words))
            std::cout << word << "\n";
        return 0;
    }
    auto parsed = cli::ParseCommandLine(words, std::cout, std::cerr);
    if (const int* status = std::get_if<int>(&parsed)) return *status;
    const cli::Invocation& run = std::get<cli::Invocation>(parsed);

    store::TableFiles files(store::ToScriptPath(fs::absolute(run.scripts).lexically_normal()));
    shell::ScriptedHost host(std::cout);
    shell::PageRegistry registry;
    // Drives tick the portal's hubs against a recorder that writes down what it is asked.
    pages::PageServices services;
    services.hubLink = [](const hublink::PortalValues& values) {
        return std::make_unique<hublink::RecordingSessions>(values, std::cout);
    };
    pages::RegisterAllPages(registry, services);
    shell::Container container(files, host, registry, run.version);
    cli::Session session{files, host, container};
    return run.command->run(session, run.arguments);
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
