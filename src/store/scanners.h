#pragma once
// The line scanners behind the table file readers: each reads lines in order and applies its own
// split, trims and stops. They are the reference for what a reader returns; TableFiles feeds them
// from the file or from lines it has read before, and answers one-key reads from an index that
// gives exactly what ScanTableValue would.

#include <string>
#include <string_view>
#include <vector>

#include "store/line_reader.h"

namespace qb::store {

inline constexpr int kLineLimit = 5000;

// ReadTableValue's scan: the value of `key` after the header of `table` (or anywhere, with no
// table), until a blank line, a line without "=" other than a closing line, or line 5001.
std::string ScanTableValue(LineSource& lines, std::string_view key, std::string_view table);

// ReadTableFlag's scan. `path` names the file in the error of a second failing line.
std::string ScanTableFlag(LineSource& lines, std::string_view table, std::string_view key,
                          const std::string& path);

// A row LoadTableRows adds. Bare rows carry their key; keyed rows get theirs from the caller,
// which numbers them after the rows its list holds.
struct ScannedRow {
    bool bare;
    std::string key;
    std::string text;
    std::string value;
};
std::vector<ScannedRow> ScanTableRows(LineSource& lines, std::string_view delimiter,
                                      std::string_view table, bool keepBrackets,
                                      const std::string& path);

struct TableValue {
    std::string key;
    std::string value;
};
std::vector<TableValue> ScanTableValues(LineSource& lines, std::string_view table);

std::vector<std::string> ScanFileNames(LineSource& lines, std::string_view table);

// ReadTextFile's scan: every line followed by CRLF; false when the file runs past line 5000.
bool ScanText(LineSource& lines, std::string& text);

}  // namespace qb::store
