#pragma once
// The pair shape of the permission matrices: whether a user of one profile (By) may use a function
// on a user of another (On). The file holds a group per By profile number and a row per On profile
// number, 1 or 0; the page shows a row per cell, and its list is its only copy of the data. One
// page and one builder serve every member; a member is a row of data.

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

struct PairMatrix {
    std::string key;      // the function key, "Communication~Talk"
    std::string command;  // the text of the list's first row, "Talk"
    std::string file;     // relative to the settings folder
    std::string table;    // the file's table, "tTalk"
    // The first On profile number the builder writes in each group: -1, or 0 where the builder
    // has always left out the unregistered users (whose cells then read "No" until a save).
    int builderFirstOn = -1;
    const PassiveVariant* passive = nullptr;
};

// The member's page. The member must outlive the registries.
shell::PageEntry PairMatrixPageOf(const PairMatrix& matrix);
// The file's builder, and the variant's data file after it, in the file's folder.
store::BuildStep PairMatrixBuild(const PairMatrix& matrix);

// Rewrites the member's file for today's profiles: each cell keeps the value of its two profile
// numbers, and a number the old file lacks starts at 0.
void BuildPairMatrix(const PairMatrix& matrix, store::BuildRun& run);

// The columns of lvwPermissions: the row's own text, then its cells.
enum PairColumn {
    kCommandColumn = 1,
    kByProfileColumn,
    kOnProfileColumn,
    kAllowColumn,
    kByNumberColumn,  // iProfileBy, hidden
    kOnNumberColumn,  // iProfileOn, hidden: a profile number, or a word row's word
};

}  // namespace qb::pages
