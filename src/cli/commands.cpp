#include "cli/commands.h"

namespace qb::cli {

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands = {
        {"start", "start [--yes|--no]  start up as the window does: checks, rebuild, news",
         StartCommand},
        {"pages", "pages               print the navigation tree, a node a line: KEY<TAB>TEXT",
         PagesCommand},
        {"show", "show KEY            print the page of a function key, after its load, as JSON",
         ShowCommand},
        {"drive", "drive               run user actions read from standard input, one a line",
         DriveCommand},
        {"portal", "portal [-v]         connect the saved portal's hubs and relay until Ctrl-C",
         PortalCommand},
        {"check", "check               list the table files the scripts would fail to load",
         CheckCommand},
        {"restore", "restore [BACKUP]    list the backups of the settings, or put one back",
         RestoreCommand},
    };
    return commands;
}

}  // namespace qb::cli
