#pragma once
// What a recorded run would do to the disk, told to the user before it happens: each folder it
// would make and each file it would create, change or leave as it is, then a unified diff of each
// file it would create or change.
//
// The files are Windows-1252 text with CRLF line ends, which a terminal shows badly, so a diff
// shows them as the window does: each line's text in UTF-8, without its line end. CRLF, the end
// every write uses, is not shown; a line of the old file that ended otherwise is followed by a
// note, "\ line ends in LF" or "\ line ends in CR", and a last line without an end by "\ No
// newline at end of file", as diff has it. Lines are compared with their ends, so a file that
// only changes its line ends shows as changed.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/change_record.h"

namespace qb::store {

struct ChangeCounts {
    int folders = 0;    // to make
    int created = 0;    // files to create
    int changed = 0;    // files whose bytes would change
    int unchanged = 0;  // files the run would write with the bytes they hold
};

// The list and the diffs. Paths are shown relative to `base` (the settings folder), with
// backslashes, as the scripts name their files.
std::string DescribeChanges(const ChangeRecord& record, const std::filesystem::path& base,
                            ChangeCounts* counts = nullptr);

// A text's lines, each with its end (CRLF, CR or LF, the ends the readers take); a last line
// without an end stands as it is. The diff compares these.
std::vector<std::string> LinesWithEnds(std::string_view text);

// A unified diff of two texts, lines shown as above, with three lines of context; empty when
// they are equal. The headers name the two sides.
std::string UnifiedDiff(std::string_view before, std::string_view after, const std::string& from,
                        const std::string& to);

}  // namespace qb::store
