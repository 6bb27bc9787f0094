// quillbook: the settings manager's desktop window. It runs from a hub's scripts folder, or from
// the folder given as its one argument; --program-version X.Y.Z makes it behave as a build of
// that version.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileDialog>
#include <filesystem>
#include <iostream>
#include <optional>

#include "gui/application.h"
#include "store/edition.h"
#include "store/paths.h"

namespace {

constexpr const char* kUsage = "Usage: quillbook [--program-version X.Y.Z] [SCRIPTS_DIR]\n";

struct Options {
    qb::store::ProgramVersion version = qb::store::kBuildVersion;
    std::optional<std::filesystem::path> folder;
};

// Reads the window's own options; the status to end with when the line ends here (the help, the
// version, a usage error), printed before any window system is asked for, so that both answer
// where there is no display.
std::optional<int> Parse(const QStringList& arguments, Options& options, bool strict) {
    QCommandLineParser parser;
    const QCommandLineOption version(QStringLiteral("program-version"), QString(),
                                     QStringLiteral("X.Y.Z"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QString());
    const QCommandLineOption showVersion(QStringLiteral("version"), QString());
    parser.addOptions({version, help, showVersion});
    // Before the application is made its options (-platform, -style) are still in the line;
    // they are unknown here and left to it.
    const bool parsed = parser.parse(arguments);
    if (parser.isSet(version)) {
        const std::string text = parser.value(version).toStdString();
        const auto given = qb::store::ParseVersion(text);
        if (!given) {
            std::cerr << "quillbook: --program-version " << text
                      << ": not three numbers joined by \".\" (as 6.0.0); `quillbook --help` "
                         "tells more\n";
            return 2;
        }
        options.version = *given;
    }
    if (parser.isSet(help)) {
        std::cout
            << kUsage
            << "\nThe Quillbook settings manager's window, on the hub's scripts folder\n"
               "SCRIPTS_DIR (by default the folder the program is in, where the script pack\n"
               "sits beside it; else it asks for the folder).\n\n"
               "Options:\n"
               "  --program-version X.Y.Z   behave as a build of that version\n"
               "  -h, --help                print this help\n"
               "  --version                 print the program's version\n\n"
               "Exit status: 0; 1 when a file can't be written; 3 when Cancel at the rebuild\n"
               "question or at the folder question ended the program. `man quillbook` tells all.\n";
        return 0;
    }
    if (parser.isSet(showVersion)) {
        std::cout << "quillbook " << qb::store::VersionText(options.version) << "\n";
        return 0;
    }
    if (!strict) return std::nullopt;
    if (!parsed) {
        std::cerr << "quillbook: " << parser.errorText().toStdString()
                  << " `quillbook --help` tells more\n";
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 1) {
        std::cerr << "quillbook: one scripts folder at most; `quillbook --help` tells more\n";
        return 2;
    }
    if (!positional.isEmpty()) options.folder = positional.front().toStdString();
    return std::nullopt;
}

// The folder named on the line; else the program's own, where the pack sits beside it as in a
// hub's scripts folder; else the one the user picks, as the desktop menu starts the installed
// program from /usr/bin, far from any hub. None when the user cancels.
std::optional<std::filesystem::path> ScriptsFolder(const Options& options) {
    if (options.folder) return options.folder;
    const std::filesystem::path own = QApplication::applicationDirPath().toStdString();
    if (qb::store::HoldsScriptPack(own)) return own;
    const QString chosen = QFileDialog::getExistingDirectory(
        nullptr, QStringLiteral("Choose the hub's scripts folder"), QDir::homePath());
    if (chosen.isEmpty()) return std::nullopt;
    return chosen.toStdString();
}

QStringList ArgumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (const auto status = Parse(ArgumentsOf(argc, argv), options, false)) return *status;
    QApplication app(argc, argv);
    // The application has taken its own options out of the line; the rest must be ours.
    if (const auto status = Parse(QApplication::arguments(), options, true)) return *status;
    const auto folder = ScriptsFolder(options);
    // No folder chosen ends the program as a Cancel at the rebuild question does.
    if (!folder) return 3;
    qb::gui::Application program(*folder, options.version);
    if (const int status = program.Open(); status >= 0) return status;
    return QApplication::exec();
}
