#pragma once
// The tree of folders the scripts read their settings from, in the order a rebuild makes them:
// parents before children, area by area. Each folder exists only in the editions that have its
// function, so the table also says which function files a build writes.

#include <string_view>
#include <vector>

#include "store/edition.h"

namespace qb::store {

enum class Area {
    CustomiseUser,
    Communication,
    Games,
    General,
    Language,
    SharedFolders,
    Security,
    UserActions,
    Archive,
};

struct SettingsFolder {
    Area area;
    std::string_view path;  // below the settings folder, or below the program folder
    EditionTest editions;
    bool inProgramFolder = false;  // the shared folders sit beside the script pack, not in it
};

// Every folder, in the order of creation.
const std::vector<SettingsFolder>& SettingsFolders();

// The edition test of a folder of the table; a path the table lacks is a programming error.
const EditionTest& FolderEditions(std::string_view path);

// The folder that several script packs share for their news, below the program folder.
inline constexpr std::string_view kSharedFolder = "Vandrell's Scripts";
inline constexpr std::string_view kNewsFolder = "Vandrell's Scripts\\News";

}  // namespace qb::store
