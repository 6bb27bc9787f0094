#pragma once
// `drive`: runs a script of user actions, one a line, against the pages, and prints what the user
// would see. Rows are numbered from 1; values with blanks are double quoted; a line starting with
// "#" is a comment.

#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/container.h"
#include "shell/scripted_host.h"

namespace qb::cli {

class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Splits a script line into words; double quotes group blanks, and a backslash escapes a quote.
std::vector<std::string> SplitWords(const std::string& line);

class Driver {
  public:
    Driver(shell::Container& container, shell::ScriptedHost& host, std::ostream& out)
        : container_(container), host_(host), out_(out) {}

    // Runs every line. Exit status 0, or 2 after a script error or a prompt with no queued answer
    // (reported on `err`). A fatal error of the store propagates to the caller.
    int Run(std::istream& script, std::ostream& err);

    // One action, given as its words.
    void Execute(const std::vector<std::string>& words);

  private:
    void MenuClick(const std::string& name);
    void ShowAllWindows(const std::string& choice);
    // The drive's `disk`: another program replaces a file below the settings folder.
    void WriteAsAnotherProgram(const std::string& file, const std::vector<std::string>& lines);
    shell::Page& ActivePage() const;
    shell::Control& ControlOf(const std::string& name) const;

    shell::Container& container_;
    shell::ScriptedHost& host_;
    std::ostream& out_;
    bool ended_ = false;  // the main window has closed
};

}  // namespace qb::cli
