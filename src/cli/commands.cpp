#include "cli/commands.h"

namespace qb::cli {

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands = {
        {"start",
         "[--yes|--no|--dry-run]",
         "start up as the window does: checks, rebuild, news",
         "Reads the hub's profiles, checks the settings against the program's version and the\n"
         "hub's profiles, rebuilds them when either changed (after a backup), and ends. The\n"
         "rebuild question is asked on the terminal unless an option answers it.",
         {{"yes", "answer OK to the rebuild question"},
          {"no", "answer Cancel: the program ends with status 3"},
          {"dry-run", "list what a rebuild would write, with diffs, and write nothing"}},
         0,
         0,
         StartCommand},
        {"pages",
         "",
         "print the navigation tree, a node a line: KEY<TAB>TEXT",
         "Two blanks of indent per depth.",
         {},
         0,
         0,
         PagesCommand},
        {"show",
         "KEY",
         "print the page of a function key, after its load, as JSON",
         "KEY is a function key such as Security~CommandSpy.",
         {},
         1,
         1,
         ShowCommand},
        {"drive",
         "< SCRIPT",
         "run user actions read from standard input, one a line",
         "Prints what the user would see; `man quillbook-cli` lists the actions.",
         {},
         0,
         0,
         DriveCommand},
        {"portal",
         "[-v]",
         "connect the saved portal's hubs and relay until Ctrl-C",
         "Ends with status 2 when no hub could be ticked, 4 when the hubs closed every session.",
         {{"v", "print every protocol line the hubs send, not only the sessions' events"}},
         0,
         0,
         PortalCommand},
        {"check",
         "",
         "list the table files the scripts would fail to load",
         "Loads every .tbl file of the settings tree in Lua 5.4; status 1 when any fails.",
         {},
         0,
         0,
         CheckCommand},
        {"restore",
         "[BACKUP]",
         "list the backups of the settings, or put one back",
         "BACKUP is a number of the list (1 is the newest) or a backup's file name. The tree as\n"
         "it stands is kept as one more backup first.",
         {},
         0,
         1,
         RestoreCommand},
    };
    return commands;
}

}  // namespace qb::cli
