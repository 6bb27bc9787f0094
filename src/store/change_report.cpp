#include "store/change_report.h"

#include <dtl/dtl.hpp>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include "store/cp1252.h"

namespace qb::store {
namespace fs = std::filesystem;

namespace {

constexpr long long kContext = 3;

// One line of the diff, with the note on its end where it isn't CRLF.
void AppendLine(std::string& out, char sign, const std::string& line) {
    std::string_view text = line;
    std::string_view note;
    if (text.ends_with("\r\n")) {
        text.remove_suffix(2);
    } else if (text.ends_with('\n')) {
        text.remove_suffix(1);
        note = "\\ line ends in LF\n";
    } else if (text.ends_with('\r')) {
        text.remove_suffix(1);
        note = "\\ line ends in CR\n";
    } else {
        note = "\\ No newline at end of file\n";
    }
    out += sign;
    out += Cp1252ToUtf8(text);
    out += '\n';
    out += note;
}

struct Edit {
    char sign;  // ' ', '-' or '+'
    const std::string* line;
};

// The hunks of an edit script: runs of changes with up to three lines of context around them,
// runs closer than twice that joined into one.
std::string Hunks(const std::vector<Edit>& edits) {
    std::string out;
    const long long count = static_cast<long long>(edits.size());
    long long i = 0;
    // Line numbers before and after edit i.
    std::vector<long long> before(edits.size() + 1, 1), after(edits.size() + 1, 1);
    for (long long k = 0; k < count; ++k) {
        before[k + 1] = before[k] + (edits[k].sign != '+' ? 1 : 0);
        after[k + 1] = after[k] + (edits[k].sign != '-' ? 1 : 0);
    }
    while (i < count) {
        if (edits[i].sign == ' ') {
            ++i;
            continue;
        }
        const long long first = std::max(0LL, i - kContext);
        long long last = i;  // the last change of the hunk
        for (long long k = i; k < count; ++k) {
            if (edits[k].sign != ' ') {
                last = k;
            } else if (k - last > 2 * kContext) {
                break;
            }
        }
        const long long end = std::min(count, last + 1 + kContext);
        const long long oldLines = before[end] - before[first];
        const long long newLines = after[end] - after[first];
        // A side with no lines is numbered by the line before it, as diff does.
        out += "@@ -" + std::to_string(oldLines == 0 ? before[first] - 1 : before[first]) + "," +
               std::to_string(oldLines) + " +" +
               std::to_string(newLines == 0 ? after[first] - 1 : after[first]) + "," +
               std::to_string(newLines) + " @@\n";
        for (long long k = first; k < end; ++k)
            AppendLine(out, edits[k].sign, *edits[k].line);
        i = end;
    }
    return out;
}

std::string Shown(const fs::path& path, const fs::path& base) {
    std::string shown = path.lexically_relative(base).string();
    if (shown.empty()) shown = path.string();
    std::replace(shown.begin(), shown.end(), '/', '\\');
    return shown;
}

bool ReadWhole(const fs::path& path, std::string& bytes) {
    std::error_code ec;
    const auto size = fs::file_size(path, ec);
    if (ec) return false;
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    bytes.resize(size);
    in.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<size_t>(in.gcount()));
    return true;
}

}  // namespace

std::vector<std::string> LinesWithEnds(std::string_view text) {
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        if (text[i] == '\r' || text[i] == '\n') {
            lines.emplace_back(text.substr(start, i + 1 - start));
            start = i + 1;
        }
    }
    if (start < text.size()) lines.emplace_back(text.substr(start));
    return lines;
}

std::string UnifiedDiff(std::string_view before, std::string_view after, const std::string& from,
                        const std::string& to) {
    if (before == after) return {};
    const std::vector<std::string> a = LinesWithEnds(before);
    const std::vector<std::string> b = LinesWithEnds(after);
    dtl::Diff<std::string, std::vector<std::string>> diff(a, b);
    diff.onHuge();
    diff.compose();
    std::vector<Edit> edits;
    for (const auto& entry : diff.getSes().getSequence()) {
        const dtl::elemInfo& info = entry.second;
        const char sign = info.type == dtl::SES_ADD      ? '+'
                          : info.type == dtl::SES_DELETE ? '-'
                                                         : ' ';
        // The script holds copies; point at the lines of the side they come from.
        const std::string& source = sign == '+' ? b[static_cast<size_t>(info.afterIdx - 1)]
                                                : a[static_cast<size_t>(info.beforeIdx - 1)];
        edits.push_back({sign, &source});
    }
    return "--- " + from + "\n+++ " + to + "\n" + Hunks(edits);
}

std::string DescribeChanges(const ChangeRecord& record, const fs::path& base,
                            ChangeCounts* counts) {
    ChangeCounts tally;
    std::string list;
    std::string diffs;
    for (const fs::path& folder : record.Folders()) {
        list += "make folder  " + Shown(folder, base) + "\\\n";
        ++tally.folders;
    }
    for (const ChangeRecord::File& file : record.Files()) {
        const std::string shown = Shown(file.path, base);
        std::string old;
        if (!ReadWhole(file.path, old)) {
            list += "create       " + shown + "\n";
            diffs += UnifiedDiff("", file.bytes, "/dev/null", shown);
            ++tally.created;
        } else if (old != file.bytes) {
            list += "change       " + shown + "\n";
            diffs += UnifiedDiff(old, file.bytes, shown, shown);
            ++tally.changed;
        } else {
            list += "leave as is  " + shown + "\n";
            ++tally.unchanged;
        }
    }
    if (counts != nullptr) *counts = tally;
    return list + diffs;
}

}  // namespace qb::store
