#pragma once
// The archive family: six kinds of archive (Bookshelf, DVDRack, Jukebox, Songbook, Arcade,
// Hyperlink) of one design. Each kind has an item of the week, a list of new items and the
// permissions of its commands; Hyperlink also has right clicks. The family is built and shown
// only from major version 6 (store::ArchiveBuilt); before that its pages still open by key, over
// whatever TheVellum holds.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "families/matrix/command_matrix.h"
#include "shell/page_registry.h"
#include "store/builders.h"

namespace qb::pages {

// What differs between the kinds: the name in their files, tables and captions, and what the
// kind calls its items where a caption names them ("Links" on Hyperlink).
struct ArchiveKind {
    std::string name;   // "Bookshelf"
    std::string items;  // "Items"
};

// The six kinds, in the order of their folders.
const std::vector<ArchiveKind>& ArchiveKinds();
inline constexpr size_t kArchiveKinds = 6;

// One value a kind, `make(kind, index)` in the kinds' order: what each page of a kind is made of,
// made once by its caller and kept.
template <typename T, typename Make>
std::array<T, kArchiveKinds> PerArchiveKind(Make make) {
    std::array<T, kArchiveKinds> made;
    for (size_t index = 0; index < kArchiveKinds; ++index)
        made[index] = make(ArchiveKinds().at(index), index);
    return made;
}

// The defaults every kind shares (ArchiveDefault): bEnableNewItems, iNumberOfNewItems, bEnabled,
// sChangeTime, sAnnounceTime; empty for any other key.
std::string ArchiveDefault(std::string_view key);

void RegisterArchivePages(shell::PageRegistry& registry);
// In the order a rebuild writes them, kind by kind in the kinds' folders.
void RegisterArchiveBuilders(store::BuilderRegistry& builders);

// Item of the week (week.cpp): the page of a kind, and the builder of its file.
shell::PageEntry WeekPageOf(const ArchiveKind& kind);
store::BuildStep WeekBuild(const ArchiveKind& kind);
// "TheVellum\Bookshelf\BookshelfItemOfTheWeek.tbl" and "tBookshelfItemOfTheWeek".
std::string WeekFile(const ArchiveKind& kind);
std::string WeekTable(const ArchiveKind& kind);

// New items (new_items.cpp), by the kind's place in ArchiveKinds().
const store::FileSchema& NewItemsSchema(size_t kind);
const shell::PageDecl& NewItemsPage(size_t kind);

// Which profiles may use each command of an archive, and the right clicks of Hyperlink
// (permissions.cpp): the six kinds' members in their order, then Hyperlink~RightClicks.
const std::vector<CommandMatrix>& ArchivePermissions();
const CommandMatrix& ArcadePermissions();
// The Hyperlink kind's permission files and the tables of its data, which only it has a builder
// for, in the order a rebuild writes them.
std::vector<store::BuildStep> HyperlinkPermissionBuilds();

}  // namespace qb::pages
