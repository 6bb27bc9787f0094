#pragma once
// The list readers as pages call them: straight into a list control.

#include <string>
#include <string_view>

#include "shell/controls.h"
#include "store/table_files.h"

namespace qb::shell {

// Appends a file's rows to `list`. With `asChecks` a row is ticked exactly when its value is
// numerically 1; otherwise, on a list of two or more columns, the value goes to column 2.
void LoadTableRows(store::TableFiles& files, std::string_view file, ListControl& list,
                   std::string_view delimiter, std::string_view table, bool asChecks,
                   bool inAppFolder, bool keepBrackets);

// Sets column 2 of the first row whose text equals each key of the file; other keys are ignored.
void ApplyTableValues(store::TableFiles& files, std::string_view file, std::string_view table,
                      ListControl& list);

// Appends a row per file name of the table.
void LoadFileNameRows(store::TableFiles& files, std::string_view file, ListControl& list,
                      std::string_view table);

// The key of a row the user adds to a list that then holds `count` rows: the count, "*", a random
// number scaled by 10000000 and "*ID". Its randomness only keeps it apart from the keys the list
// holds; no key reaches a file.
std::string NewRowKey(store::TableFiles& files, int count);

}  // namespace qb::shell
