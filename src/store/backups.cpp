#include "store/backups.h"

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>

#include "store/fatal_error.h"

namespace qb::store {
namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSuffix = ".tar.gz";
constexpr std::string_view kPartialPrefix = ".backup-";
constexpr std::string_view kTreeName = "Settings";

struct ArchiveFree {
    void operator()(archive* a) const { archive_free(a); }
};
struct EntryFree {
    void operator()(archive_entry* e) const { archive_entry_free(e); }
};
using Archive = std::unique_ptr<archive, ArchiveFree>;
using Entry = std::unique_ptr<archive_entry, EntryFree>;

// The system's reason where libarchive has one, else its own words.
std::string ReasonOf(archive* a) {
    const int error = archive_errno(a);
    if (error > 0) return std::strerror(error);
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "the archive can't be written";
}

// A version as a file name can carry it: letters, digits, dots and dashes.
std::string NamePart(std::string_view version) {
    std::string part;
    for (char c : version) {
        if (std::isalnum(static_cast<unsigned char>(c)) || c == '.' || c == '-') part += c;
    }
    return part.empty() ? "none" : part;
}

std::string Stamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d-%H%M%S", &local);
    return text;
}

bool IsBackupName(const std::string& name) {
    return name.size() > kSuffix.size() && name.ends_with(kSuffix) &&
           std::isdigit(static_cast<unsigned char>(name[0]));
}

// Every entry of the tree, folders before what they hold, in name order.
std::vector<fs::path> TreeEntries(const fs::path& settings) {
    std::vector<fs::path> entries;
    for (const auto& entry : fs::recursive_directory_iterator(settings)) {
        entries.push_back(entry.path());
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

// Writes the tree into the open file `fd`; the reason on failure.
std::optional<std::string> PackTree(const fs::path& settings, int fd) {
    Archive out(archive_write_new());
    if (archive_write_add_filter_gzip(out.get()) != ARCHIVE_OK ||
        // GNU tar keeps names as the bytes they are, which is what the settings' names are:
        // no conversion through a locale that may not know them.
        archive_write_set_format_gnutar(out.get()) != ARCHIVE_OK ||
        archive_write_open_fd(out.get(), fd) != ARCHIVE_OK) {
        return ReasonOf(out.get());
    }
    std::vector<char> buffer(1 << 16);
    std::vector<fs::path> entries = TreeEntries(settings);
    entries.insert(entries.begin(), settings);
    for (const fs::path& path : entries) {
        struct stat info {};
        if (::lstat(path.c_str(), &info) != 0) return std::string(std::strerror(errno));
        if (!S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode)) continue;
        Entry entry(archive_entry_new());
        const fs::path name = fs::path(kTreeName) / path.lexically_relative(settings);
        archive_entry_copy_pathname(entry.get(), name.lexically_normal().c_str());
        archive_entry_copy_stat(entry.get(), &info);
        if (archive_write_header(out.get(), entry.get()) != ARCHIVE_OK) return ReasonOf(out.get());
        if (!S_ISREG(info.st_mode)) continue;
        const int in = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (in < 0) return std::string(std::strerror(errno));
        ssize_t got = 0;
        while ((got = ::read(in, buffer.data(), buffer.size())) > 0) {
            if (archive_write_data(out.get(), buffer.data(), static_cast<size_t>(got)) < 0) {
                ::close(in);
                return ReasonOf(out.get());
            }
        }
        const int readError = got < 0 ? errno : 0;
        ::close(in);
        if (readError != 0) return std::string(std::strerror(readError));
    }
    // The last blocks go out at the close: a full disk often shows only here.
    if (archive_write_close(out.get()) != ARCHIVE_OK) return ReasonOf(out.get());
    return std::nullopt;
}

void RemovePartials(const fs::path& folder) {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(folder, ec)) {
        if (entry.path().filename().string().starts_with(kPartialPrefix)) fs::remove_all(entry, ec);
    }
}

// Unpacks the tree of an archive into `target`, an empty folder; the reason on failure.
std::optional<std::string> UnpackTree(const fs::path& archivePath, const fs::path& target) {
    Archive in(archive_read_new());
    archive_read_support_filter_all(in.get());
    archive_read_support_format_all(in.get());
    if (archive_read_open_filename(in.get(), archivePath.c_str(), 1 << 16) != ARCHIVE_OK) {
        return ReasonOf(in.get());
    }
    Archive disk(archive_write_disk_new());
    // The entries are checked here and placed below the staging folder by absolute paths, so
    // libarchive's own path guards, which refuse any absolute path or a link above it, stay off.
    archive_write_disk_set_options(disk.get(), ARCHIVE_EXTRACT_TIME | ARCHIVE_EXTRACT_PERM);
    bool sawTree = false;
    archive_entry* entry = nullptr;
    int status = ARCHIVE_OK;
    while ((status = archive_read_next_header(in.get(), &entry)) == ARCHIVE_OK) {
        const fs::path name = fs::path(archive_entry_pathname(entry)).lexically_normal();
        auto part = name.begin();
        // Only the tree itself comes back: nothing beside it, nothing that climbs out of it.
        if (part == name.end() || *part != kTreeName) return "it holds " + name.string();
        const fs::path below = name.lexically_relative(kTreeName);
        if (below.empty() || below.string().starts_with("..")) {
            return "it holds " + name.string();
        }
        const auto type = archive_entry_filetype(entry);
        if (type != AE_IFREG && type != AE_IFDIR) return name.string() + " is not a file or folder";
        sawTree = true;
        const std::string placed = (target / below).lexically_normal().string();
        archive_entry_set_pathname(entry, placed.c_str());
        if (archive_write_header(disk.get(), entry) != ARCHIVE_OK) return ReasonOf(disk.get());
        const void* block = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        int data = ARCHIVE_OK;
        while ((data = archive_read_data_block(in.get(), &block, &size, &offset)) == ARCHIVE_OK) {
            if (archive_write_data_block(disk.get(), block, size, offset) != ARCHIVE_OK) {
                return ReasonOf(disk.get());
            }
        }
        if (data != ARCHIVE_EOF) return ReasonOf(in.get());
        if (archive_write_finish_entry(disk.get()) != ARCHIVE_OK) return ReasonOf(disk.get());
    }
    if (status != ARCHIVE_EOF) return ReasonOf(in.get());
    if (archive_write_close(disk.get()) != ARCHIVE_OK) return ReasonOf(disk.get());
    if (!sawTree) return std::string("it holds no settings");
    return std::nullopt;
}

}  // namespace

fs::path BackupFolder(const fs::path& settings) {
    return settings.parent_path() / "Settings-backups";
}

std::vector<Backup> ListBackups(const fs::path& settings) {
    std::vector<Backup> backups;
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(BackupFolder(settings), ec)) {
        const std::string name = entry.path().filename().string();
        if (!entry.is_regular_file(ec) || !IsBackupName(name)) continue;
        backups.push_back({entry.path(), name, entry.file_size(ec)});
    }
    // The names begin with the time they were made.
    std::sort(backups.begin(), backups.end(),
              [](const Backup& a, const Backup& b) { return a.name > b.name; });
    return backups;
}

std::optional<fs::path> BackUpSettings(const fs::path& settings, std::string_view version, int keep,
                                       const fs::path& spare) {
    std::error_code ec;
    if (!fs::is_directory(settings, ec)) return std::nullopt;
    const fs::path folder = BackupFolder(settings);
    if (::mkdir(folder.c_str(), 0777) != 0 && errno != EEXIST) {
        throw FatalError(folder.string(), std::strerror(errno));
    }
    RemovePartials(folder);
    // A second backup in the same second takes a number behind the time, which sorts after it
    // whatever the versions, so the names alone give the order; the number goes on from the
    // newest kept, as the oldest of the second may be gone already.
    const std::string stamp = Stamp();
    const std::string tail = "-" + NamePart(version) + std::string(kSuffix);
    const std::vector<Backup> existing = ListBackups(settings);
    std::string name = stamp + tail;
    for (int n = 2; n < 100 && !existing.empty() && name <= existing.front().name; ++n) {
        name = stamp + (n < 10 ? ".0" : ".") + std::to_string(n) + tail;
    }
    const fs::path target = folder / name;
    std::string temp = (folder / kPartialPrefix).string() + "XXXXXX";
    const int fd = ::mkstemp(temp.data());
    if (fd < 0) throw FatalError(target.string(), std::strerror(errno));
    std::optional<std::string> failure = PackTree(settings, fd);
    // The backup must be on the disk before any file it keeps is replaced.
    if (!failure && ::fsync(fd) != 0) failure = std::strerror(errno);
    if (::close(fd) != 0 && !failure) failure = std::strerror(errno);
    if (!failure && ::rename(temp.c_str(), target.c_str()) != 0) failure = std::strerror(errno);
    if (failure) {
        ::unlink(temp.c_str());
        throw FatalError(target.string(), *failure);
    }
    int kept = 0;
    for (const Backup& backup : ListBackups(settings)) {
        if (fs::equivalent(backup.path, spare, ec)) continue;
        if (++kept > std::max(keep, 1)) fs::remove(backup.path, ec);
    }
    return target;
}

std::optional<fs::path> FindBackup(const fs::path& settings, std::string_view name) {
    const std::vector<Backup> backups = ListBackups(settings);
    const std::string text(name);
    const auto digit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    if (!text.empty() && text.size() < 6 && std::all_of(text.begin(), text.end(), digit)) {
        const size_t number = std::stoul(text);
        if (number >= 1 && number <= backups.size()) return backups[number - 1].path;
        return std::nullopt;
    }
    for (const Backup& backup : backups) {
        if (backup.name == text) return backup.path;
    }
    std::error_code ec;
    if (fs::is_regular_file(text, ec)) return fs::absolute(text);
    return std::nullopt;
}

std::optional<fs::path> RestoreSettings(const fs::path& settings, const fs::path& archivePath,
                                        std::string_view version) {
    const fs::path pack = settings.parent_path();
    RemovePartials(pack);  // what a restore cut off by a kill left
    std::string staging = (pack / (std::string(kPartialPrefix) + "restore-")).string() + "XXXXXX";
    if (::mkdtemp(staging.data()) == nullptr) throw FatalError(pack.string(), std::strerror(errno));
    std::error_code ec;
    auto fail = [&](const std::string& reason) {
        fs::remove_all(staging, ec);
        throw FatalError(archivePath.string(), reason);
    };
    if (const auto failure = UnpackTree(archivePath, staging)) fail(*failure);
    std::optional<fs::path> kept;
    try {
        kept = BackUpSettings(settings, version, kBackupsKept, archivePath);
    } catch (const FatalError&) {
        fs::remove_all(staging, ec);
        throw;
    }
    // The unpacked tree takes the place of the old one in one step; the old one, now under the
    // staging name, goes after.
    if (fs::exists(settings, ec)) {
        if (::renameat2(AT_FDCWD, staging.c_str(), AT_FDCWD, settings.c_str(), RENAME_EXCHANGE) !=
            0) {
            fail(std::strerror(errno));
        }
    } else if (::rename(staging.c_str(), settings.c_str()) != 0) {
        fail(std::strerror(errno));
    }
    fs::remove_all(staging, ec);
    return kept;
}

}  // namespace qb::store
