#include "pages/archive/archive.h"

#include <utility>

namespace qb::pages {

const std::vector<ArchiveKind>& ArchiveKinds() {
    static const std::vector<ArchiveKind> kinds = {
        {"Bookshelf", "Items"}, {"DVDRack", "Items"}, {"Jukebox", "Items"},
        {"Songbook", "Items"},  {"Arcade", "Items"},  {"Hyperlink", "Links"},
    };
    return kinds;
}

std::string ArchiveDefault(std::string_view key) {
    static const std::pair<std::string_view, std::string_view> defaults[] = {
        {"bEnableNewItems", "1"},        {"iNumberOfNewItems", "5"},           {"bEnabled", "1"},
        {"sChangeTime", "Sunday 17:59"}, {"sAnnounceTime", "Sunday*18:00*PM"},
    };
    for (const auto& [name, value] : defaults) {
        if (name == key) return std::string(value);
    }
    return {};
}

void RegisterArchivePages(shell::PageRegistry& registry) {
    for (size_t kind = 0; kind < ArchiveKinds().size(); ++kind) {
        registry.Register({WeekPageOf(ArchiveKinds()[kind]), NewItemsPage(kind),
                           CommandMatrixPageOf(ArchivePermissions()[kind])});
    }
    registry.Register({CommandMatrixPageOf(ArchivePermissions().back())});
}

void RegisterArchiveBuilders(store::BuilderRegistry& builders) {
    // Only Hyperlink has ever had builders. The other kinds' week and new items files are made
    // with the same text, so that each kind's week page opens over a rebuilt tree (it ends the
    // program over a missing file); their permission files stay missing and read as No.
    for (size_t kind = 0; kind < ArchiveKinds().size(); ++kind) {
        builders.Add({WeekBuild(ArchiveKinds()[kind]), NewItemsSchema(kind)});
    }
    builders.Add(HyperlinkPermissionBuilds());
}

}  // namespace qb::pages
