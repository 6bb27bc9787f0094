#pragma once
// The pair shape of the permission matrices: whether a user of one profile (By) may use a function
// on a user of another (On). Each command of a member has a file holding a group per By profile
// number and a row per On profile number, 1 or 0; the page shows a row per cell. One page and one
// builder serve every member; a member is a row of data.

#include <string>
#include <vector>

#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

// What the mass message adds to the shape: the profiles whose passive users no mass message
// reaches, three rows per By group for the kinds of user that aren't a profile, the passive
// message's text file, and a file of its own that the scripts fill.
struct PassiveVariant {
    std::string label;     // over the check list lvwEnabledProfiles
    std::string subTable;  // the check list's sub-table, first in the file
    // The word rows after each By group's profiles, in the page's order. The key of each is the
    // word itself, which the page writes quoted (["All"] = 1,).
    std::vector<std::string> pageWords;
    // The words the builder writes, bare (All = 1,) and in its own order; it keeps one that no
    // row of the page shows, so that the page's first save drops it.
    std::vector<std::string> builderWords;
    std::string amendTip;               // the AMEND button's tip
    std::string amendFile;              // the text file AMEND opens in the text editor
    const store::FileSchema* dataFile;  // made by the builder when missing
};

// A file of the pair form: relative to the settings folder, and its table ("tTalk").
struct PairFile {
    std::string file;
    std::string table;
};

// A command of a member: the text its first row shows, and its file.
struct PairCommand {
    std::string text;  // "Talk", "Add Registration"
    PairFile file;
};

// How a page shows its cells.
enum class PairView {
    // A row per cell straight from the files, in the commands' order: the list is the page's only
    // copy of the data, and a save consumes it and loads again.
    List,
    // The cells kept apart from the list, which shows them by command and By profile through the
    // two filter buttons; a save writes every command's file from the cells and keeps the view.
    ByCommandAndProfile,
};

struct PairMatrix {
    std::string key;                    // the function key, "Communication~Talk"
    std::vector<PairCommand> commands;  // in the list's order
    // The first On profile number the builder writes in each group: -1, or 0 where the builder
    // has always left out the unregistered users (whose cells then read "No" until a save).
    int builderFirstOn = -1;
    const PassiveVariant* passive = nullptr;
    PairView view = PairView::List;
    // The page's first profile number on both axes: 0 leaves the unregistered users out of the
    // page, whose save then drops the rows of -1 that the builder writes.
    int firstProfile = -1;
    // The words of a cell, and the head of their column.
    std::string yes = "Yes";
    std::string no = "No";
    std::string allowColumn = "Allow To";
    int commandWidth = 1100;  // twips
    // The files the builder writes, in its order, where they aren't the commands' own.
    std::vector<PairFile> builderFiles{};
    // The member's own page: its key, caption and size, its settings and their controls, with
    // tlbListview and the matrix's list `list` declared among them. Null: the matrix alone.
    const shell::PageDecl* page = nullptr;
    std::string list = "lvwPermissions";
};

// The member's page. The member must outlive the registries.
shell::PageEntry PairMatrixPageOf(const PairMatrix& matrix);
// The member's files in the builder's order, and the variant's data file after them, in the
// files' folder.
store::BuildStep PairMatrixBuild(const PairMatrix& matrix);

// Rewrites the member's files for today's profiles, in the builder's order: each cell keeps the
// value of its two profile numbers, and a number the old file lacks starts at 0.
void BuildPairMatrix(const PairMatrix& matrix, store::BuildRun& run);

// The columns of a list-shaped member's list: the row's own text, then its cells.
enum PairColumn {
    kCommandColumn = 1,
    kByProfileColumn,
    kOnProfileColumn,
    kAllowColumn,
    kByNumberColumn,  // iProfileBy, hidden
    kOnNumberColumn,  // iProfileOn, hidden: a profile number, or a word row's word
};

}  // namespace qb::pages
