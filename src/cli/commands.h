#pragma once
// The commands of quillbook-cli. Each lives in its own source and gets the manager's parts, set up
// for the scripts folder the command line names.

#include <string>
#include <vector>

#include "shell/container.h"
#include "shell/scripted_host.h"
#include "store/table_files.h"

namespace qb::cli {

struct Session {
    store::TableFiles& files;
    shell::ScriptedHost& host;
    shell::Container& container;
};

// The words after the command's name, checked against its options and its count of arguments
// before the command runs: the options it was given (as "--yes" or "-v"), then its arguments.
using Arguments = std::vector<std::string>;

// Each returns the exit status: 0, 2 for a usage or script error, 3 when the user ends the
// program at a prompt; a FatalError propagates.
int StartCommand(Session& session, const Arguments& arguments);
int PagesCommand(Session& session, const Arguments& arguments);
int ShowCommand(Session& session, const Arguments& arguments);
int DriveCommand(Session& session, const Arguments& arguments);
int CheckCommand(Session& session, const Arguments& arguments);
int PortalCommand(Session& session, const Arguments& arguments);
int RestoreCommand(Session& session, const Arguments& arguments);

struct CommandOption {
    const char* name;  // "yes" for --yes, "v" for -v
    const char* description;
};

struct Command {
    const char* name;
    const char* arguments;  // the synopsis after the name: "[--yes|--no|--dry-run]", "KEY"
    const char* summary;    // one line of the command list
    const char* details;    // what `help COMMAND` adds
    std::vector<CommandOption> options;
    int fewest = 0;  // arguments, options aside
    int most = 0;
    int (*run)(Session&, const Arguments&);
};

const std::vector<Command>& Commands();

}  // namespace qb::cli
