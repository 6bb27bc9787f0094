#include "store/table_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <memory>

#include "store/change_record.h"
#include "store/cp1252.h"
#include "store/fatal_error.h"
#include "store/line_reader.h"
#include "store/paths.h"
#include "store/text_rules.h"
#include "store/value_index.h"

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

// A file is written to ".<name>.XXXXXX" beside it and renamed over it.
std::string TemporaryPrefix(const fs::path& target) {
    return "." + target.filename().string() + ".";
}

// A write cut off by a crash or a kill leaves its temporary file behind: the next write of the
// same file clears it away, so that a folder doesn't fill with them. With `listings`, the folder's
// temporaries come from its one listing.
void RemoveStaleTemporaries(const fs::path& target, FolderListings* listings) {
    const std::string prefix = TemporaryPrefix(target);
    const auto stale = [&](const std::string& name) {
        return name.size() == prefix.size() + 6 && name.starts_with(prefix);
    };
    std::error_code ec;
    if (listings != nullptr) {
        const fs::path folder = target.parent_path();
        std::vector<fs::path> gone;
        for (const std::string& name : listings->Temporaries(folder)) {
            if (stale(name) && fs::is_regular_file(folder / name, ec))
                gone.push_back(folder / name);
        }
        for (const fs::path& path : gone) {
            fs::remove(path, ec);
            listings->Removed(path);
        }
        return;
    }
    for (const auto& entry : fs::directory_iterator(target.parent_path(), ec)) {
        const std::string name = entry.path().filename().string();
        if (!stale(name)) continue;
        if (IsWriteTemporary(entry.path()) && entry.is_regular_file(ec)) {
            fs::remove(entry.path(), ec);
        }
    }
}

// The lines of a file: what the record holds for it, else the disk's.
std::unique_ptr<LineReader> OpenFile(const ChangeRecord* record, const fs::path& native,
                                     int& error) {
    if (record != nullptr) {
        if (const ChangeRecord::File* file = record->Find(native)) {
            // A memory stream over the recorded bytes, read by the same reader as a file.
            std::FILE* stream =
                ::fmemopen(const_cast<char*>(file->bytes.data()), file->bytes.size(), "r");
            if (stream != nullptr) return LineReader::Adopt(stream);
            error = errno;
            return nullptr;
        }
    }
    return LineReader::Open(native, error);
}

FileStamp StampAt(const fs::path& native) {
    struct stat info {};
    if (::stat(native.c_str(), &info) != 0) return {};
    return {true, static_cast<std::uint64_t>(info.st_dev), static_cast<std::uint64_t>(info.st_ino),
            static_cast<std::uint64_t>(info.st_size),
            static_cast<std::int64_t>(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec};
}

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

struct TableFiles::CachedFile {
    int error = 0;  // why the file couldn't be opened, or 0
    std::vector<std::string> lines;
    // All the file's lines, or only the first kLineLimit, which is as far as a one-key read goes:
    // a matrix file holds ten times as many.
    bool whole = false;
    std::unique_ptr<ValueIndex> index;  // built at the first one-key read
};

// With the index switched off a scope holds nothing: every read goes to the disk.
TableFiles::ReadScope::ReadScope(TableFiles& files) : files_(files), counted_(files.indexing_) {
    if (counted_) ++files_.scopes_;
}

TableFiles::ReadScope::~ReadScope() {
    if (counted_ && --files_.scopes_ == 0) {
        files_.lastCached_ = nullptr;
        files_.cache_.clear();
        files_.natives_.clear();
        files_.listings_.Clear();
    }
}

TableFiles::~TableFiles() = default;

void TableFiles::RecordWrites(ChangeRecord* record) {
    record_ = record;
    lastCached_ = nullptr;
    cache_.clear();
    natives_.clear();
    listings_.Clear();
}

std::optional<fs::path> TableFiles::Native(std::string_view scriptPath) const {
    // Inside a scope nothing but these operations changes the folders, so each is listed once.
    auto native = ToNativePath(scriptPath, scopes_ > 0 ? &listings_ : nullptr);
    if (native && record_ != nullptr) native = record_->Spell(*native);
    return native;
}

std::string TableFiles::NativeOf(const std::string& path) {
    if (scopes_ > 0) {
        const auto known = natives_.find(path);
        if (known != natives_.end()) return known->second;
    }
    const auto native = Native(path);
    std::string result = native ? native->string() : std::string();
    if (scopes_ > 0) natives_.emplace(path, result);
    return result;
}

void TableFiles::Forget(const std::string& native) {
    lastCached_ = nullptr;
    cache_.erase(native);
    // A new file or folder may now match a name that matched nothing.
    natives_.clear();
}

TableFiles::CachedFile* TableFiles::Cached(const std::string& path, bool whole) {
    const std::string native = NativeOf(path);
    auto& entry = cache_[native];
    if (entry && (entry->whole || !whole || entry->error != 0)) return entry.get();
    if (!entry) entry = std::make_unique<CachedFile>();
    entry->lines.clear();
    int error = 0;
    auto reader = native.empty() ? nullptr : OpenFile(record_, native, error);
    if (reader) {
        const size_t most = whole ? SIZE_MAX : static_cast<size_t>(kLineLimit);
        reader->ReadAll(entry->lines, most);
        entry->whole = entry->lines.size() < most;
    } else {
        entry->error = native.empty() ? ENOENT : error;
    }
    return entry.get();
}

std::unique_ptr<LineSource> TableFiles::OpenLines(const std::string& path, int& error) {
    // A taken file slot fails every open as a missing file would.
    if (slotStuck_) {
        error = EBUSY;
        return nullptr;
    }
    if (scopes_ > 0) {
        CachedFile* cached = Cached(path);
        error = cached->error;
        if (error != 0) return nullptr;
        return std::make_unique<LinesOf>(cached->lines);
    }
    const std::string native = NativeOf(path);
    if (native.empty()) {
        error = ENOENT;
        return nullptr;
    }
    return OpenFile(record_, native, error);
}

std::string TableFiles::ReadTableValue(std::string_view file, std::string_view key,
                                       std::string_view table, bool inAppFolder) {
    if (scopes_ > 0 && !slotStuck_) {
        CachedFile* cached = lastCached_;
        if (cached == nullptr || inAppFolder != lastInAppFolder_ || file != lastFile_) {
            cached = Cached(Resolve(file, inAppFolder, true), false);
            lastFile_ = file;
            lastInAppFolder_ = inAppFolder;
            lastCached_ = cached;
        }
        if (cached->error != 0) return {};
        if (!cached->index) cached->index = std::make_unique<ValueIndex>(cached->lines);
        return cached->index->Find(key, table);
    }
    const std::string path = Resolve(file, inAppFolder, true);
    int error = 0;
    auto lines = OpenLines(path, error);
    return lines ? ScanTableValue(*lines, key, table) : std::string();
}

std::string TableFiles::ReadTableFlag(std::string_view file, std::string_view table,
                                      std::string_view key) {
    const std::string path = Resolve(file, false, false);
    int error = 0;
    auto lines = OpenLines(path, error);
    if (!lines) throw FatalError(Shown(path), Reason(error));
    return ScanTableFlag(*lines, table, key, Shown(path));
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
    auto lines = OpenLines(path, error);
    if (!lines) return rows;
    for (auto& scanned : ScanTableRows(*lines, delimiter, table, keepBrackets, Shown(path))) {
        if (!scanned.bare) {
            // Keyed rows are numbered after the rows the list holds, with a random part that
            // keeps keys apart; no page reads a key back.
            const int n = existingRows + static_cast<int>(rows.size());
            scanned.key =
                std::to_string(n + 1) + "*" + FormatGeneral(NextRandom() * 1000000000.0) + "ID";
        }
        rows.push_back({std::move(scanned.key), std::move(scanned.text), std::move(scanned.value)});
    }
    return rows;
}

std::vector<TableValue> TableFiles::ApplyTableValues(std::string_view file,
                                                     std::string_view table) {
    const std::string path = Resolve(file, false, false);
    int error = 0;
    auto lines = OpenLines(path, error);
    if (!lines) throw FatalError(Shown(path), Reason(error));
    return ScanTableValues(*lines, table);
}

std::vector<std::string> TableFiles::LoadFileNameRows(std::string_view file,
                                                      std::string_view table) {
    int error = 0;
    auto lines = OpenLines(Resolve(file, false, true), error);
    if (!lines) return {};
    return ScanFileNames(*lines, table);
}

std::string TableFiles::ReadTextFile(std::string_view file) {
    int error = 0;
    auto lines = OpenLines(Resolve(file, false, true), error);
    if (!lines) return {};
    std::string text;
    if (!ScanText(*lines, text)) {
        // The read gives up without closing its file, and the one file slot stays taken.
        slotStuck_ = true;
        return {};
    }
    return text;
}

void TableFiles::WriteTextFile(std::string_view file, std::string_view text, bool inAppFolder) {
    const std::string path = Resolve(file, inAppFolder, true);
    const auto native = Native(path);
    if (!native) throw FatalError(path, "not a path on a drive");
    const std::string shown = native->string();
    if (slotStuck_) throw FatalError(shown, "the file slot is still held by an unfinished read");
    Forget(shown);
    std::error_code ec;
    if (!fs::is_directory(native->parent_path(), ec) &&
        (record_ == nullptr || !record_->HasFolder(native->parent_path()))) {
        throw FatalError(shown, Reason(ENOENT));
    }
    struct stat old {};
    const bool existed = ::stat(native->c_str(), &old) == 0;
    if (existed && S_ISDIR(old.st_mode)) throw FatalError(shown, Reason(EISDIR));
    // The scripts' home system refuses to replace a read-only file; renaming over it would not.
    if (existed && ((old.st_mode & 0222) == 0 || ::access(native->c_str(), W_OK) != 0)) {
        throw FatalError(shown, Reason(EACCES));
    }
    if (record_ != nullptr) {
        std::string bytes;
        bytes.reserve(text.size() + 2);
        bytes.append(text).append("\r\n");
        record_->Replace(*native, std::move(bytes));
        return;
    }

    RemoveStaleTemporaries(*native, scopes_ > 0 ? &listings_ : nullptr);
    std::string temp = (native->parent_path() / TemporaryPrefix(*native)).string() + "XXXXXX";
    const int fd = ::mkstemp(temp.data());
    if (fd < 0) throw FatalError(shown, Reason(errno));
    auto fail = [&](int err) {
        ::close(fd);
        ::unlink(temp.c_str());
        throw FatalError(shown, Reason(err));
    };
    // The text, then the one line break behind it; a matrix file's text is megabytes, too much
    // to copy for the sake of two bytes.
    for (const std::string_view bytes : {text, std::string_view("\r\n")}) {
        size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) fail(n < 0 ? errno : ENOSPC);
            done += static_cast<size_t>(n);
        }
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
    ownWrites_[shown] = StampAt(*native);
    if (!existed && scopes_ > 0) listings_.Added(*native);
}

FileStamp TableFiles::StampOf(std::string_view file, bool inAppFolder) const {
    const auto native = Native(Resolve(file, inAppFolder, true));
    return native ? StampAt(*native) : FileStamp{};
}

bool TableFiles::WroteLast(std::string_view file, bool inAppFolder, const FileStamp& stamp) const {
    const auto native = Native(Resolve(file, inAppFolder, true));
    if (!native) return false;
    const auto found = ownWrites_.find(native->string());
    return found != ownWrites_.end() && found->second == stamp;
}

bool TableFiles::FileExists(std::string_view path) const {
    const auto native = Native(path);
    std::error_code ec;
    if (native && record_ != nullptr && record_->Find(*native) != nullptr) return true;
    return native && fs::is_regular_file(*native, ec);
}

bool TableFiles::FolderExists(std::string_view path) const {
    const auto native = Native(path);
    std::error_code ec;
    if (native && record_ != nullptr && record_->HasFolder(*native)) return true;
    return native && fs::is_directory(*native, ec);
}

void TableFiles::CreateFolder(std::string_view path) {
    const auto native = Native(path);
    if (!native) throw FatalError(std::string(path), "not a path on a drive");
    if (record_ != nullptr) {
        // As mkdir would: a folder is made only inside one that is there, where no file is.
        std::error_code ec;
        if (fs::is_directory(*native, ec) || record_->HasFolder(*native)) return;
        if (fs::exists(*native, ec) || record_->Find(*native) != nullptr) {
            throw FatalError(native->string(), Reason(ENOTDIR));
        }
        if (!fs::is_directory(native->parent_path(), ec) &&
            !record_->HasFolder(native->parent_path())) {
            throw FatalError(native->string(), Reason(ENOENT));
        }
        record_->MakeFolder(*native);
        lastCached_ = nullptr;
        natives_.clear();
        return;
    }
    const bool made = ::mkdir(native->c_str(), 0777) == 0;
    if (!made && errno != EEXIST) throw FatalError(native->string(), Reason(errno));
    if (made && scopes_ > 0) listings_.Added(*native, true);
    std::error_code ec;
    if (!fs::is_directory(*native, ec)) throw FatalError(native->string(), Reason(ENOTDIR));
    lastCached_ = nullptr;
    natives_.clear();
}

std::vector<std::string> TableFiles::FolderFiles(std::string_view folder) const {
    std::vector<std::string> names;
    const auto native = Native(folder);
    if (!native) return names;
    std::error_code ec;
    if (fs::is_directory(*native, ec)) {
        for (const auto& entry : fs::directory_iterator(*native, ec)) {
            if (!entry.is_regular_file(ec) || IsWriteTemporary(entry.path())) continue;
            names.push_back(Utf8ToCp1252(entry.path().filename().string()));
        }
    }
    if (record_ != nullptr) {
        for (std::string& name : record_->NamesIn(*native)) {
            const std::string folded = FoldCase(name);
            if (std::none_of(names.begin(), names.end(),
                             [&](const std::string& n) { return FoldCase(n) == folded; })) {
                names.push_back(std::move(name));
            }
        }
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string foldedA = FoldCase(a);
        const std::string foldedB = FoldCase(b);
        return foldedA != foldedB ? foldedA < foldedB : a < b;
    });
    return names;
}

bool TableFiles::DeleteFile(std::string_view path) {
    const auto native = Native(path);
    std::error_code ec;
    if (!native || !fs::is_regular_file(*native, ec)) return false;
    if (record_ != nullptr) throw FatalError(native->string(), "a dry run deletes nothing");
    Forget(native->string());
    listings_.Removed(*native);
    if (::unlink(native->c_str()) == 0) return true;
    if (errno == ENOENT) return false;  // gone between the look and the unlink
    throw FatalError(native->string(), Reason(errno));
}

double TableFiles::NextRandom() {
    const auto span = static_cast<double>(random_.max() - random_.min()) + 1.0;
    return static_cast<double>(random_() - random_.min()) / span;
}

void TableFiles::Randomize() {
    random_.seed(static_cast<std::minstd_rand::result_type>(
        std::chrono::steady_clock::now().time_since_epoch().count()));
}

std::string FormatGeneral(double value) {
    // to_chars doesn't follow the locale, which the desktop front end sets from the user's.
    char buffer[40];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
    return std::string(buffer, result.ptr);
}

}  // namespace qb::store
