#include "store/scanners.h"

#include "store/fatal_error.h"
#include "store/text_rules.h"

namespace qb::store {
namespace {

// The first failing line of a read is skipped; the second reaches the caller, and no caller
// handles it.
class LineFailures {
  public:
    explicit LineFailures(const std::string& path) : path_(path) {}
    void Fail(int lineNumber, std::string_view what) {
        if (++count_ < 2) return;
        throw FatalError(path_, "line " + std::to_string(lineNumber) + " " + std::string(what) +
                                    ", and an earlier line of the same read failed too");
    }

  private:
    const std::string& path_;
    int count_ = 0;
};

}  // namespace

std::string ScanTableValue(LineSource& lines, std::string_view key, std::string_view table) {
    std::string current;
    std::string line;
    for (int number = 1; lines.Next(line); ++number) {
        if (number > kLineLimit || line.empty()) return {};
        const size_t equals = line.find('=');
        std::string left = TrimBlanks(std::string_view(line).substr(0, equals));
        TrimTableKey(left, false);
        if (left == "}") continue;
        if (equals == std::string::npos) return {};
        std::string right = line.substr(equals + 1);
        TrimTableValue(right);
        if (right == "{" && left == table) current = table;
        if (left == key && table == current && right != "{") return right;
    }
    return {};
}

std::string ScanTableFlag(LineSource& lines, std::string_view table, std::string_view key,
                          const std::string& path) {
    const std::string tableName = TrimBlanks(table);
    LineFailures failures(path);
    bool inTable = false;
    std::string line;
    for (int number = 1; lines.Next(line); ++number) {
        const auto fields = SplitAll(line, "=");
        if (fields.empty()) {
            failures.Fail(number, "is empty");
            continue;
        }
        std::string first(fields[0]);
        TrimTableKey(first, false);
        if (first == tableName) {
            inTable = true;
            continue;
        }
        if (inTable && first == key) {
            if (fields.size() < 2) {
                failures.Fail(number, "has no \"=\"");
                continue;
            }
            std::string value(fields[1]);
            TrimTableValue(value);
            return value;
        }
    }
    return {};
}

std::vector<ScannedRow> ScanTableRows(LineSource& lines, std::string_view delimiter,
                                      std::string_view table, bool keepBrackets,
                                      const std::string& path) {
    std::vector<ScannedRow> rows;
    LineFailures failures(path);
    bool inTable = false;
    int rowCount = 0;
    std::string line;
    for (int number = 1; lines.Next(line); ++number) {
        if (line.empty()) continue;
        std::string first;
        if (!table.empty()) {
            first = std::string(SplitAll(line, "=")[0]);
            TrimTableKey(first, keepBrackets);
            if (first == "}") {
                inTable = false;
                continue;
            }
        }
        if (delimiter.empty()) {
            // Bare rows. The test of the last character keeps rows that a writer closed with a
            // comma and drops a sub-table's name line; an unquoted row ending in "t" goes with it.
            const bool add =
                table.empty() ? line != "}" : inTable && line.back() != 't' && line != "}";
            if (add) {
                std::string text = line;
                TrimTableKey(text, false);
                ++rowCount;
                rows.push_back({true, std::to_string(rowCount) + "ID", std::move(text), {}});
            }
            if (table.empty() || first == table) inTable = true;
            continue;
        }
        const auto fields = SplitAll(line, delimiter);
        if (fields.size() < 2) {
            failures.Fail(number, "has no \"" + std::string(delimiter) + "\"");
            continue;
        }
        std::string key(fields[0]);
        TrimTableKey(key, keepBrackets);
        std::string value(fields[1]);
        TrimTableValue(value);
        // The header counts as a row, so after an empty sub-table the count is still 1 and the
        // next table's rows load in its place.
        if (table.empty() || key == table || rowCount == 1) inTable = true;
        if (value == "}") {
            inTable = false;
            continue;
        }
        if (!inTable) continue;
        ++rowCount;
        if (value == "{" || line.back() == 't') continue;
        rows.push_back({false, {}, std::move(key), std::move(value)});
    }
    return rows;
}

std::vector<TableValue> ScanTableValues(LineSource& lines, std::string_view table) {
    std::vector<TableValue> values;
    std::string line;
    while (lines.Next(line)) {
        if (line.find('=') == std::string::npos) continue;
        const auto fields = SplitAll(line, "=");
        std::string key(fields[0]);
        TrimTableKey(key, false);
        std::string value(fields[1]);
        TrimTableValue(value);
        if (key == "}" || key == table) continue;
        values.push_back({std::move(key), std::move(value)});
    }
    return values;
}

std::vector<std::string> ScanFileNames(LineSource& lines, std::string_view table) {
    std::vector<std::string> names;
    std::string line;
    for (int number = 1; number <= kLineLimit && lines.Next(line); ++number) {
        if (line.empty()) continue;
        std::string name = TrimBlanks(SplitAll(line, "=")[0]);
        TrimTableKey(name, true);
        if (name == "}" || name == table) continue;
        if (name.ends_with(".lst") || name.ends_with(".tbl") || name.ends_with(".txt")) {
            name.resize(name.size() - 4);
        }
        names.push_back(std::move(name));
    }
    return names;
}

bool ScanText(LineSource& lines, std::string& text) {
    text.clear();
    std::string line;
    for (int number = 1; lines.Next(line); ++number) {
        if (number > kLineLimit) {
            text.clear();
            return false;
        }
        text += line;
        text += "\r\n";
    }
    return true;
}

}  // namespace qb::store
