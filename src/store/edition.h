#pragma once
// One program serves several script packs. The edition names the pack this build serves; every area
// of the settings tree and of the navigation exists only in the editions that have it.

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qb::store {

inline constexpr std::string_view kEdition = "Quillbook";

struct ProgramVersion {
    int major;
    int minor;
    int revision;
};

// The version this build is. A run may behave as another (--program-version): the front ends
// parse the option, or take this, once, and hand that one value down to everything that asks.
inline constexpr ProgramVersion kBuildVersion{QB_VERSION_MAJOR, QB_VERSION_MINOR, QB_VERSION_PATCH};

// "5.3.0": stamped into Version.tbl and shown in the captions.
std::string VersionText(ProgramVersion version);

// Three numbers joined by ".", each of digits only ("6.0.0", "10.02.3"); anything else is no
// version.
std::optional<ProgramVersion> ParseVersion(std::string_view text);

// Whether the edition is one of `editions`. "Quillbook" is the full pack and has every area, so
// callers list only the other editions that have an area.
bool EditionHas(std::initializer_list<std::string_view> editions,
                std::string_view edition = kEdition);

// The archive family is written but switched off: it exists in its own editions, and in the full
// pack only from major version 6.
bool ArchiveBuilt(std::string_view edition, ProgramVersion version);

// The editions that have a folder or a function, as data: the folder table and the switch lists
// carry one per row.
struct EditionTest {
    std::vector<std::string_view> alsoIn;  // editions besides the full pack
    bool everyEdition = false;             // the general and language areas exist in all
    bool archive = false;                  // the archive family's own rule
};

bool Passes(const EditionTest& test, std::string_view edition, ProgramVersion version);

}  // namespace qb::store
