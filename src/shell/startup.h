#pragma once
// The part of the main window's load that runs before the window shows: the hub's profiles, the
// shared folders, the version and profile checks, the rebuild they may ask for, and the copy of
// the hub's profile file. A settings tree that doesn't match the program's version or the hub's
// profiles is never opened: the user rebuilds it or the program ends.

#include <optional>
#include <vector>

#include "shell/container.h"
#include "store/builders.h"
#include "store/change_record.h"
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

// The change that asks for a rebuild at this start, if any: a version other than Version.tbl's (a
// missing file counts, so a fresh folder is built this way too), or else more profiles in the hub
// than in the copy. Fewer profiles, or as many with other names, rebuild nothing.
std::optional<SettingsChange> DueRebuild(Container& container);

// What OK at the rebuild question does: the rebuild, then the copy of the hub's profile file that
// the next start compares the hub's profiles with.
void ApplyRebuild(Container& container, const store::BuilderRegistry& builders);

// ApplyRebuild with every write going to `record` instead of the disk: the same code, so what is
// recorded is what the rebuild writes.
void RecordRebuild(Container& container, const store::BuilderRegistry& builders,
                   store::ChangeRecord& record);

enum class StartResult { Ready, Cancelled };

// The load up to the news: profiles, shared folders, the question and the rebuild where one is
// due, after a backup of the tree as it was (store/backups). Cancelled means the program must end
// without opening anything. The question offers the list of what the rebuild would write
// (Message::showChanges).
StartResult RunStartChecks(Container& container, const store::BuilderRegistry& builders);

// RunStartChecks as a dry run: the same steps, nothing asked, every write recorded. Returns the
// change that makes a rebuild due, if any.
std::optional<SettingsChange> RecordStart(Container& container,
                                          const store::BuilderRegistry& builders,
                                          store::ChangeRecord& record);

// The list and diffs of what a record holds, paths shown below the settings folder.
std::string DescribeRecord(Container& container, const store::ChangeRecord& record);

}  // namespace qb::shell
