#include <iostream>

#include "cli/commands.h"
#include "shell/startup.h"
#include "store/backups.h"
#include "store/paths.h"

namespace qb::cli {

int RestoreCommand(Session& session, const Arguments& arguments) {
    const auto settings = store::ToNativePath(session.files.SettingsFolder());
    if (!settings) return 2;
    if (arguments.empty()) {
        const auto backups = store::ListBackups(*settings);
        if (backups.empty()) {
            std::cout << "No backups in " << store::BackupFolder(*settings).string() << "\n";
            return 0;
        }
        std::cout << "Backups in " << store::BackupFolder(*settings).string()
                  << ", newest first:\n";
        int number = 0;
        for (const auto& backup : backups) {
            std::cout << "  " << ++number << "  " << backup.name << "  "
                      << (backup.size + 1023) / 1024 << " KiB\n";
        }
        return 0;
    }
    const auto archive = store::FindBackup(*settings, arguments[0]);
    if (!archive) {
        std::cerr << "quillbook-cli: restore: no backup " << arguments[0]
                  << "; `quillbook-cli restore` lists them\n";
        return 2;
    }
    const std::string version =
        session.files.ReadTableValue(shell::VersionSchema().file, "sVersion", "");
    const auto kept = store::RestoreSettings(*settings, *archive, version);
    std::cout << "Restored the settings from " << archive->filename().string() << "\n";
    if (kept) {
        std::cout << "The settings as they stood are kept as " << kept->filename().string() << "\n";
    }
    return 0;
}

}  // namespace qb::cli
