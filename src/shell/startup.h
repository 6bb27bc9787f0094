#pragma once
// The part of the main window's load that runs before the window shows: the hub's profiles, the
// shared folders, the version and profile checks, the rebuild they may ask for, and the copy of
// the hub's profile file. A settings tree that doesn't match the program's version or the hub's
// profiles is never opened: the user rebuilds it or the program ends.

#include <vector>

#include "shell/container.h"
#include "store/builders.h"
#include "store/schema.h"
#include "store/settings_tree.h"

namespace qb::shell {

// The areas in the order a rebuild builds them.
const std::vector<store::Area>& RebuildOrder();

// General\Globals\Version.tbl: the version of the last rebuild, sVersion.
const store::FileSchema& VersionSchema();

// Where the manager keeps its copy of the hub's profile file, below the settings folder.
inline constexpr const char* kProfileCopySetting = "General\\PtokaX\\Profiles.xml";

// Brings the whole tree up to date: makes the settings folder (never the script pack's folder
// itself), builds every area in order and writes Version.tbl last. Nothing here is transactional:
// stopped half way, the tree keeps its old Version.tbl, so the next start asks again and the
// merge repeats harmlessly.
void RebuildSettings(store::BuildRun& run, const store::BuilderRegistry& builders);

enum class SettingsChange { Version, Profiles };
enum class CheckResult { NotRebuilt, Rebuilt, Cancelled };

// Asks before rebuilding: for a version change only when Version.tbl holds another version (a
// missing file counts as one, so a fresh folder is built this way too), for a profile change
// always. Cancelled means the program must end without opening anything.
CheckResult CheckSettingsVersion(SettingsChange change, Container& container,
                                 const store::BuilderRegistry& builders);

enum class StartResult { Ready, Cancelled };

// The load up to the news: profiles, shared folders, the checks, the rebuild and the profile
// copy. Only a profile count above the copy's asks: fewer profiles, or as many with other names,
// rebuild nothing, and the copy is refreshed only by a rebuild.
StartResult RunStartChecks(Container& container, const store::BuilderRegistry& builders);

}  // namespace qb::shell
