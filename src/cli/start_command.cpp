#include <unistd.h>

#include <iostream>
#include <string>

#include "cli/commands.h"
#include "pages/general/news.h"
#include "pages/pages.h"
#include "shell/startup.h"
#include "store/cp1252.h"

namespace qb::cli {
namespace {

// Asks the user on the terminal; the transcript line follows on standard output as usual.
std::optional<shell::Answer> AskOnTerminal(const shell::Message& message) {
    std::cerr << store::Cp1252ToUtf8(message.title) << "\n"
              << store::Cp1252ToUtf8(message.text) << " [OK/Cancel] " << std::flush;
    std::string line;
    while (std::getline(std::cin, line)) {
        if (line == "OK" || line == "ok" || line == "o") return shell::Answer::OK;
        if (line == "Cancel" || line == "cancel" || line == "c") return shell::Answer::Cancel;
        std::cerr << "Please answer OK or Cancel: " << std::flush;
    }
    std::cerr << "\n";
    return std::nullopt;
}

// The start without writing: what it would make, create and change, with the diffs.
int DryRun(Session& session, const store::BuilderRegistry& builders) {
    store::ChangeRecord record;
    const auto change = shell::RecordStart(session.container, builders, record);
    if (!change) {
        std::cout << "No rebuild is due: the settings match this version and the hub's profiles.\n";
    } else {
        std::cout << (*change == shell::SettingsChange::Version
                          ? "A rebuild is due: a new version.\n"
                          : "A rebuild is due: the hub has new "
                            "profiles.\n");
    }
    std::cout << shell::DescribeRecord(session.container, record);
    std::cout << "Dry run: nothing was written.\n";
    return 0;
}

}  // namespace

int StartCommand(Session& session, const Arguments& arguments) {
    if (arguments.size() > 1) {
        std::cerr << "quillbook-cli: start: --yes, --no and --dry-run exclude each other\n";
        return 2;
    }
    store::BuilderRegistry builders;
    pages::RegisterAllBuilders(builders);
    if (arguments.size() == 1 && arguments[0] == "--dry-run") return DryRun(session, builders);
    const bool onTerminal = arguments.empty() && ::isatty(STDIN_FILENO) == 1;
    if (!arguments.empty()) {
        const shell::Answer standing =
            arguments[0] == "--yes" ? shell::Answer::OK : shell::Answer::Cancel;
        session.host.answerUnqueued = [standing](const shell::Message&) { return standing; };
    } else if (onTerminal) {
        session.host.answerUnqueued = AskOnTerminal;
    }

    try {
        if (shell::RunStartChecks(session.container, builders) == shell::StartResult::Cancelled) {
            return 3;
        }
    } catch (const shell::UnansweredPrompt&) {
        std::cout.flush();
        if (onTerminal) {
            std::cerr << "quillbook-cli: start: the question went unanswered\n";
        } else {
            std::cerr << "quillbook-cli: start has a question and no terminal to ask it on; "
                         "answer it with --yes or --no\n";
        }
        return 2;
    }
    pages::LoadNews(session.files, session.container.News(), nullptr);
    return 0;
}

}  // namespace qb::cli
