#pragma once
// The command shape of the permission matrices: whether a profile may use a command of a function.
// Each command has a file of its own with a row per profile number. The page keeps its data in a
// collection of permission objects and shows a filtered view of it, by command and by profile.
// One page serves every function that has one; a member is a row of data.

#include <string>
#include <vector>

#include "shell/page_registry.h"

namespace qb::pages {

struct CommandMatrix {
    std::string key;                    // the function key, "Arcade~Permissions"
    std::vector<std::string> commands;  // in the order of the files and of the filter's menu
    std::string filePrefix;             // a command's file is this, the command and ".tbl"
    std::string tablePrefix;            // the table the page writes is this and the command
    // The first filter button: its key and tip. Its menu's keys are "C*" and the command.
    std::string commandButton = "COMMAND";
    std::string commandTip = "View By Command";
};

// The member must outlive the registry.
shell::PageEntry CommandMatrixPageOf(const CommandMatrix& matrix);

}  // namespace qb::pages
