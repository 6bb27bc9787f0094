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

}  // namespace

int StartCommand(Session& session, const Arguments& arguments) {
    if (arguments.size() > 1 ||
        (arguments.size() == 1 && arguments[0] != "--yes" && arguments[0] != "--no")) {
        std::cerr << "usage: quillbook-cli start [--yes|--no]\n";
        return 2;
    }
    const bool onTerminal = arguments.empty() && ::isatty(STDIN_FILENO) == 1;
    if (!arguments.empty()) {
        const shell::Answer standing =
            arguments[0] == "--yes" ? shell::Answer::OK : shell::Answer::Cancel;
        session.host.answerUnqueued = [standing](const shell::Message&) { return standing; };
    } else if (onTerminal) {
        session.host.answerUnqueued = AskOnTerminal;
    }

    store::BuilderRegistry builders;
    pages::RegisterAllBuilders(builders);
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
