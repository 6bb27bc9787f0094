#include "cli/command_line.h"

#include <QCommandLineParser>
#include <QStringList>
#include <algorithm>
#include <sstream>

#include "pages/pages.h"
#include "shell/page_registry.h"
#include "store/backups.h"
#include "store/paths.h"
#include "store/table_files.h"

namespace qb::cli {
namespace {

namespace fs = std::filesystem;

constexpr const char* kProgram = "quillbook-cli";
constexpr size_t kColumn = 30;  // where the help's descriptions start

struct GlobalOption {
    const char* names;  // as the help shows them
    const char* description;
};

const std::vector<GlobalOption> kGlobalOptions = {
    {"--scripts DIR", "the hub's scripts folder (default: the working directory)"},
    {"--program-version X.Y.Z", "behave as a build of that version"},
    {"-h, --help", "print this help; `help COMMAND` tells of one command"},
    {"--version", "print the program's version"},
};

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

// One line of a help's table: the word, then its description from `column` on.
void Row(std::ostream& text, const std::string& word, const std::string& description,
         size_t column = kColumn) {
    text << "  " << word << std::string(word.size() < column ? column - word.size() : 1, ' ')
         << description << "\n";
}

std::string OptionWord(const CommandOption& option) {
    return (std::string(option.name).size() == 1 ? "-" : "--") + std::string(option.name);
}

const Command* FindCommand(const std::string& name) {
    for (const Command& command : Commands()) {
        if (name == command.name) return &command;
    }
    return nullptr;
}

// "Unknown option 'x'." as one line with the way on.
int UsageError(std::ostream& err, const std::string& what, const std::string& help) {
    err << kProgram << ": " << what << "; `" << help << "` tells more\n";
    return 2;
}

std::string Lowered(std::string text) {
    if (!text.empty())
        text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
    while (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

// The command's own words, checked against its options and its count of arguments.
std::variant<Arguments, int> ParseCommand(const Command& command,
                                          const std::vector<std::string>& words, std::ostream& out,
                                          std::ostream& err) {
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QString());
    parser.addOption(help);
    for (const CommandOption& option : command.options) {
        parser.addOption(QCommandLineOption(QString::fromLatin1(option.name), QString()));
    }
    QStringList list{QString::fromLatin1(command.name)};
    for (const std::string& word : words)
        list << Q(word);
    const std::string helpHint = std::string(kProgram) + " help " + command.name;
    if (!parser.parse(list))
        return UsageError(err, Lowered(parser.errorText().toStdString()), helpHint);
    if (parser.isSet(help)) {
        out << CommandHelp(command);
        return 0;
    }
    Arguments arguments;
    for (const CommandOption& option : command.options) {
        if (parser.isSet(QString::fromLatin1(option.name))) arguments.push_back(OptionWord(option));
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.size() < command.fewest || positional.size() > command.most) {
        const std::string wanted = std::string(command.name) + " " + command.arguments;
        return UsageError(err, "usage: " + std::string(kProgram) + " " + wanted, helpHint);
    }
    for (const QString& word : positional)
        arguments.push_back(word.toStdString());
    return arguments;
}

// The value of the global option `name` among `words`, if any.
std::string GlobalValue(const std::vector<std::string>& words, const std::string& name) {
    for (size_t i = 0; i + 1 < words.size(); ++i) {
        if (words[i] == name) return words[i + 1];
        if (words[i].starts_with(name + "=")) return words[i].substr(name.size() + 1);
    }
    return {};
}

}  // namespace

std::string ProgramHelp() {
    std::ostringstream text;
    text << "Usage: " << kProgram << " [--scripts DIR] [--program-version X.Y.Z] COMMAND\n\n"
         << "The Quillbook settings manager without a window.\n\nOptions:\n";
    for (const GlobalOption& option : kGlobalOptions)
        Row(text, option.names, option.description);
    text << "\nCommands:\n";
    for (const Command& command : Commands())
        Row(text, std::string(command.name) + " " + command.arguments, command.summary);
    Row(text, "help [COMMAND]", "print this help, or a command's");
    text << "\nExit status: 0; 1 when a file can't be written or read; 2 for a usage or script\n"
         << "error; 3 when Cancel at the rebuild question ended the program; 4 when the portal's\n"
         << "hubs closed every session. `man " << kProgram << "` tells all.\n";
    return text.str();
}

std::string CommandHelp(const Command& command) {
    std::ostringstream text;
    text << "Usage: " << kProgram << " [--scripts DIR] " << command.name << " " << command.arguments
         << "\n\n"
         << static_cast<char>(std::toupper(static_cast<unsigned char>(command.summary[0])))
         << (command.summary + 1) << ".\n"
         << command.details << "\n";
    if (!command.options.empty()) {
        text << "\nOptions:\n";
        for (const CommandOption& option : command.options)
            Row(text, OptionWord(option), option.description, 12);
    }
    return text.str();
}

std::variant<Invocation, int> ParseCommandLine(const std::vector<std::string>& words,
                                               std::ostream& out, std::ostream& err) {
    QCommandLineParser parser;
    // The command's own options follow it and are read against the command.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption scripts(QStringLiteral("scripts"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption version(QStringLiteral("program-version"), QString(),
                                     QStringLiteral("X.Y.Z"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QString());
    const QCommandLineOption showVersion(QStringLiteral("version"), QString());
    parser.addOptions({scripts, version, help, showVersion});
    QStringList list{QString::fromLatin1(kProgram)};
    for (const std::string& word : words)
        list << Q(word);
    const std::string helpHint = std::string(kProgram) + " --help";
    if (!parser.parse(list)) {
        return UsageError(err, Lowered(parser.errorText().toStdString()), helpHint);
    }

    Invocation run;
    run.version = store::kBuildVersion;
    if (parser.isSet(version)) {
        const std::string text = parser.value(version).toStdString();
        const auto parsed = store::ParseVersion(text);
        if (!parsed) {
            err << kProgram << ": --program-version " << text
                << ": not three numbers joined by \".\" (as 6.0.0)\n";
            return 2;
        }
        run.version = *parsed;
    }
    if (parser.isSet(help)) {
        out << ProgramHelp();
        return 0;
    }
    if (parser.isSet(showVersion)) {
        out << kProgram << " " << store::VersionText(run.version) << "\n";
        return 0;
    }
    run.scripts =
        parser.isSet(scripts) ? fs::path(parser.value(scripts).toStdString()) : fs::current_path();

    const QStringList rest = parser.positionalArguments();
    if (rest.isEmpty()) {
        err << "usage: " << kProgram << " [--scripts DIR] [--program-version X.Y.Z] COMMAND\n"
            << "`" << helpHint << "` lists the commands\n";
        return 2;
    }
    const std::string name = rest.front().toStdString();
    std::vector<std::string> after;
    for (qsizetype i = 1; i < rest.size(); ++i)
        after.push_back(rest.at(i).toStdString());
    if (name == "help") {
        if (after.empty()) {
            out << ProgramHelp();
            return 0;
        }
        const Command* command = after.size() == 1 ? FindCommand(after[0]) : nullptr;
        if (command == nullptr) return UsageError(err, "no command " + after[0], helpHint);
        out << CommandHelp(*command);
        return 0;
    }
    run.command = FindCommand(name);
    if (run.command == nullptr) return UsageError(err, "unknown command '" + name + "'", helpHint);
    auto arguments = ParseCommand(*run.command, after, out, err);
    if (const int* status = std::get_if<int>(&arguments)) return *status;
    run.arguments = std::get<Arguments>(std::move(arguments));
    return run;
}

std::vector<std::string> Completions(const std::vector<std::string>& words) {
    const std::string typed = words.empty() ? "" : words.back();
    std::vector<std::string> offered;
    // The command is the first word that is neither a global option nor its value.
    size_t at = 0;
    const Command* command = nullptr;
    bool sawHelp = false;
    for (; at + 1 < words.size(); ++at) {
        const std::string& word = words[at];
        if (word == "--scripts" || word == "--program-version") {
            ++at;
            continue;
        }
        if (word.starts_with("-")) continue;
        sawHelp = word == "help";
        command = FindCommand(word);
        break;
    }
    if (command == nullptr && !sawHelp) {
        if (typed.starts_with("-")) {
            offered = {"--scripts", "--program-version", "--help", "--version"};
        } else {
            for (const Command& each : Commands())
                offered.push_back(each.name);
            offered.push_back("help");
        }
    } else if (sawHelp) {
        for (const Command& each : Commands())
            offered.push_back(each.name);
    } else if (typed.starts_with("-")) {
        for (const CommandOption& option : command->options)
            offered.push_back(OptionWord(option));
        offered.push_back("--help");
    } else if (std::string(command->name) == "show") {
        shell::PageRegistry registry;
        pages::RegisterAllPages(registry);
        offered = registry.Keys();
    } else if (std::string(command->name) == "restore") {
        const std::string dir = GlobalValue(words, "--scripts");
        const fs::path scripts = fs::absolute(dir.empty() ? fs::current_path() : fs::path(dir));
        const store::TableFiles files(store::ToScriptPath(scripts.lexically_normal()));
        if (const auto settings = store::ToNativePath(files.SettingsFolder())) {
            for (const store::Backup& backup : store::ListBackups(*settings))
                offered.push_back(backup.name);
        }
    }
    std::erase_if(offered, [&](const std::string& word) { return !word.starts_with(typed); });
    std::sort(offered.begin(), offered.end());
    return offered;
}

}  // namespace qb::cli
