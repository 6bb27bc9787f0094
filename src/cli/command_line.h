#pragma once
// The command line of quillbook-cli, read with Qt's QCommandLineParser: the global options, the
// command and the command's own options and arguments, the help and version texts, and the
// words the shell's completion offers.

#include <filesystem>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "cli/commands.h"
#include "store/edition.h"

namespace qb::cli {

struct Invocation {
    std::filesystem::path scripts;  // the working directory when not given
    store::ProgramVersion version;  // the version the run behaves as
    const Command* command = nullptr;
    Arguments arguments;  // the command's options, as "--yes" or "-v", then its arguments
};

// Reads the words after the program's name. Either the command to run, or the exit status of a
// line that ended here: 0 after the help or the version (printed to `out`), 2 after a usage
// error (one line and a hint to `err`).
std::variant<Invocation, int> ParseCommandLine(const std::vector<std::string>& words,
                                               std::ostream& out, std::ostream& err);

// The help of the whole program, and of one command.
std::string ProgramHelp();
std::string CommandHelp(const Command& command);

// What the shell may put in place of the last of `words` (the words after the program's name,
// the last one being typed, maybe empty): commands, options, function keys and backups, one a
// line.
std::vector<std::string> Completions(const std::vector<std::string>& words);

}  // namespace qb::cli
