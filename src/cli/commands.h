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

using Arguments = std::vector<std::string>;  // the words after the command's name

// Each returns the exit status: 0, 2 for a usage or script error, 3 when the user ends the
// program at a prompt; a FatalError propagates.
int StartCommand(Session& session, const Arguments& arguments);
int PagesCommand(Session& session, const Arguments& arguments);
int ShowCommand(Session& session, const Arguments& arguments);
int DriveCommand(Session& session, const Arguments& arguments);
int CheckCommand(Session& session, const Arguments& arguments);
int PortalCommand(Session& session, const Arguments& arguments);
int RestoreCommand(Session& session, const Arguments& arguments);

struct Command {
    const char* name;
    const char* usage;  // the line of the usage text
    int (*run)(Session&, const Arguments&);
};

const std::vector<Command>& Commands();

}  // namespace qb::cli
