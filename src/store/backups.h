#pragma once
// Backups of the settings tree. Before every rebuild the tree as it was goes into one archive in
// the folder beside it, "Settings-backups", so that no hand edit a rebuild drops is lost for good;
// the newest five are kept. A backup can be put back whole, in one step.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qb::store {

inline constexpr int kBackupsKept = 5;

// "<the pack's folder>/Settings-backups", beside the settings folder.
std::filesystem::path BackupFolder(const std::filesystem::path& settings);

struct Backup {
    std::filesystem::path path;
    std::string name;  // "2026-11-25-170812-5.2.9.tar.gz"
    std::uintmax_t size = 0;
};

// The backups kept, newest first.
std::vector<Backup> ListBackups(const std::filesystem::path& settings);

// Packs the settings tree as it is into a new archive named by the local time and `version` (the
// tree's own, "none" when it has none), then keeps only the newest `keep`. The archive is written
// under a hidden name and renamed when whole, so a kill or a full disk leaves no half backup: a
// failure removes what was written and raises FatalError naming the archive. Nothing when there
// is no tree.
// `spare` is a backup the count never pushes out (the one a restore is putting back).
std::optional<std::filesystem::path> BackUpSettings(const std::filesystem::path& settings,
                                                    std::string_view version,
                                                    int keep = kBackupsKept,
                                                    const std::filesystem::path& spare = {});

// The backup a user names: its number in ListBackups (1 the newest), its file name, or a path.
std::optional<std::filesystem::path> FindBackup(const std::filesystem::path& settings,
                                                std::string_view name);

// Puts the tree of `archive` in place of the settings tree in one step: the archive is unpacked
// beside the tree and checked whole, the tree as it stands is backed up (named by `version`) so
// that the restore can itself be undone, and the two are swapped by one rename: the scripts see
// the old tree or the restored one and nothing between. An archive that can't be read whole
// raises FatalError and leaves the tree and the backups as they were. Returns the new backup.
std::optional<std::filesystem::path> RestoreSettings(const std::filesystem::path& settings,
                                                     const std::filesystem::path& archive,
                                                     std::string_view version);

}  // namespace qb::store
