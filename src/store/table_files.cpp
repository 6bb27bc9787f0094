#include "store/table_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <memory>

#include "store/fatal_error.h"
#include "store/line_reader.h"
#include "store/paths.h"
#include "store/text_rules.h"

namespace qb::store {
namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSettingsBelowProgram = "\\Vandrell's Quillbook\\Settings";

std::string Reason(int error) {
    return std::strerror(error);
}

std::string Shown(const std::string& scriptPath) {
    const auto native = ToNativePath(scriptPath);
    return native ? native->string() : scriptPath;
}

// Counts the lines of one call that fail. The first one is skipped; the second one reaches the
// caller, and no caller handles it.
class LineFailures {
  public:
    explicit LineFailures(const std::string& path) : path_(path) {}
    void Fail(int lineNumber, std::string_view what) {
        if (++count_ < 2) return;
        throw FatalError(Shown(path_), "line " + std::to_string(lineNumber) + " " +
                                           std::string(what) +
                                           ", and an earlier line of the same read failed too");
    }

  private:
    const std::string& path_;
    int count_ = 0;
};

mode_t DefaultFileMode() {
    static const mode_t mode = [] {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return static_cast<mode_t>(0666 & ~mask);
    }();
    return mode;
}

}  // namespace

TableFiles::TableFiles(std::string programFolder) : programFolder_(std::move(programFolder)) {}

std::string TableFiles::SettingsFolder() const {
    return programFolder_ + std::string(kSettingsBelowProgram);
}

std::string TableFiles::HubFolder() const {
    return HubFolderOf(programFolder_);
}

std::string TableFiles::Resolve(std::string_view file, bool inAppFolder, bool driveTest) const {
    if (driveTest && HasDrive(file)) return std::string(file);
    if (inAppFolder) return programFolder_ + "\\" + std::string(file);
    return SettingsFolder() + "\\" + std::string(file);
}

namespace {

// Opens a script path for input, or gives the system's reason why not. A taken file slot fails
// every open as a missing file would.
std::unique_ptr<LineReader> OpenInput(const std::string& path, bool slotStuck, int& error) {
    if (slotStuck) {
        error = EBUSY;
        return nullptr;
    }
    const auto native = ToNativePath(path);
    if (!native) {
        error = ENOENT;
        return nullptr;
    }
    return LineReader::Open(*native, error);
}

}  // namespace

std::string TableFiles::ReadTableValue(std::string_view file, std::string_view key,
                                       std::string_view table, bool inAppFolder) {
    int error = 0;
    auto reader = OpenInput(Resolve(file, inAppFolder, true), slotStuck_, error);
    if (!reader) return {};
    std::string current;
    std::string line;
    for (int number = 1; reader->Next(line); ++number) {
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

std::string TableFiles::ReadTableFlag(std::string_view file, std::string_view table,
                                      std::string_view key) {
    const std::string path = Resolve(file, false, false);
    int error = 0;
    auto reader = OpenInput(path, slotStuck_, error);
    if (!reader) throw FatalError(Shown(path), Reason(error));
    const std::string tableName = TrimBlanks(table);
    LineFailures failures(path);
    bool inTable = false;
    std::string line;
    for (int number = 1; reader->Next(line); ++number) {
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

bool TableFiles::ReadTableFlagIsOne(std::string_view file, std::string_view table,
                                    std::string_view key) {
    return IsNumericallyOne(ReadTableFlag(file, table, key));
}

std::vector<TableRow> TableFiles::LoadTableRows(std::string_view file, std::string_view delimiter,
                                                std::string_view table, bool inAppFolder,
                                                bool keepBrackets, int existingRows) {
    std::vector<TableRow> rows;
    const std::string path = Resolve(file, inAppFolder, false);
    int error = 0;
    auto reader = OpenInput(path, slotStuck_, error);
    if (!reader) return rows;
    LineFailures failures(path);
    bool inTable = false;
    int rowCount = 0;
    std::string line;
    for (int number = 1; reader->Next(line); ++number) {
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
                rows.push_back({std::to_string(rowCount) + "ID", std::move(text), {}});
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
        const int n = existingRows + static_cast<int>(rows.size());
        rows.push_back(
            {std::to_string(n + 1) + "*" + FormatGeneral(NextRandom() * 1000000000.0) + "ID",
             std::move(key), std::move(value)});
    }
    return rows;
}

std::vector<TableValue> TableFiles::ApplyTableValues(std::string_view file,
                                                     std::string_view table) {
    const std::string path = Resolve(file, false, false);
    int error = 0;
    auto reader = OpenInput(path, slotStuck_, error);
    if (!reader) throw FatalError(Shown(path), Reason(error));
    std::vector<TableValue> values;
    std::string line;
    while (reader->Next(line)) {
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

std::vector<std::string> TableFiles::LoadFileNameRows(std::string_view file,
                                                      std::string_view table) {
    std::vector<std::string> names;
    int error = 0;
    auto reader = OpenInput(Resolve(file, false, true), slotStuck_, error);
    if (!reader) return names;
    std::string line;
    for (int number = 1; number <= kLineLimit && reader->Next(line); ++number) {
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

std::string TableFiles::ReadTextFile(std::string_view file) {
    int error = 0;
    auto reader = OpenInput(Resolve(file, false, true), slotStuck_, error);
    if (!reader) return {};
    std::string text;
    std::string line;
    for (int number = 1; reader->Next(line); ++number) {
        if (number > kLineLimit) {
            // The read gives up without closing its file, and the one file slot stays taken.
            slotStuck_ = true;
            return {};
        }
        text += line;
        text += "\r\n";
    }
    return text;
}

void TableFiles::WriteTextFile(std::string_view file, std::string_view text, bool inAppFolder) {
    const std::string path = Resolve(file, inAppFolder, true);
    const auto native = ToNativePath(path);
    if (!native) throw FatalError(path, "not a path on a drive");
    const std::string shown = native->string();
    if (slotStuck_) throw FatalError(shown, "the file slot is still held by an unfinished read");
    std::error_code ec;
    if (!fs::is_directory(native->parent_path(), ec)) throw FatalError(shown, Reason(ENOENT));
    struct stat old {};
    const bool existed = ::stat(native->c_str(), &old) == 0;
    if (existed && S_ISDIR(old.st_mode)) throw FatalError(shown, Reason(EISDIR));
    // The scripts' home system refuses to replace a read-only file; renaming over it would not.
    if (existed && ((old.st_mode & 0222) == 0 || ::access(native->c_str(), W_OK) != 0)) {
        throw FatalError(shown, Reason(EACCES));
    }

    std::string temp = (native->parent_path() / ("." + native->filename().string() + ".XXXXXX"));
    const int fd = ::mkstemp(temp.data());
    if (fd < 0) throw FatalError(shown, Reason(errno));
    auto fail = [&](int err) {
        ::close(fd);
        ::unlink(temp.c_str());
        throw FatalError(shown, Reason(err));
    };
    std::string bytes(text);
    bytes += "\r\n";
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) fail(n < 0 ? errno : ENOSPC);
        done += static_cast<size_t>(n);
    }
    if (::fchmod(fd, existed ? (old.st_mode & 07777) : DefaultFileMode()) != 0) fail(errno);
    if (::close(fd) != 0) {
        const int err = errno;
        ::unlink(temp.c_str());
        throw FatalError(shown, Reason(err));
    }
    if (::rename(temp.c_str(), native->c_str()) != 0) {
        const int err = errno;
        ::unlink(temp.c_str());
        throw FatalError(shown, Reason(err));
    }
}

bool TableFiles::FileExists(std::string_view path) const {
    const auto native = ToNativePath(path);
    std::error_code ec;
    return native && fs::is_regular_file(*native, ec);
}

bool TableFiles::FolderExists(std::string_view path) const {
    const auto native = ToNativePath(path);
    std::error_code ec;
    return native && fs::is_directory(*native, ec);
}

void TableFiles::CreateFolder(std::string_view path) {
    const auto native = ToNativePath(path);
    if (!native) throw FatalError(std::string(path), "not a path on a drive");
    if (::mkdir(native->c_str(), 0777) != 0 && errno != EEXIST) {
        throw FatalError(native->string(), Reason(errno));
    }
    std::error_code ec;
    if (!fs::is_directory(*native, ec)) throw FatalError(native->string(), Reason(ENOTDIR));
}

double TableFiles::NextRandom() {
    const auto span = static_cast<double>(random_.max() - random_.min()) + 1.0;
    return static_cast<double>(random_() - random_.min()) / span;
}

std::string FormatGeneral(double value) {
    // to_chars doesn't follow the locale, which the desktop front end sets from the user's.
    char buffer[40];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
    return std::string(buffer, result.ptr);
}

}  // namespace qb::store
