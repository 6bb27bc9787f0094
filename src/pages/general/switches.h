#pragma once
// The function switches: which functions of the scripts run at all (Switches.tbl) and which show
// right click entries (EnableRightClicks.tbl). Both files have the same keys, one flag per
// function, and every rebuild resets both to their defaults.

#include <string_view>
#include <vector>

#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

struct SwitchKey {
    std::string_view key;     // "bAnagrams"
    bool on;                  // the default
    std::string_view folder;  // the function's folder: a key exists where its folder does
};

// Every switch, in the files' order.
const std::vector<SwitchKey>& SwitchKeys();

// General\Globals\Switches.tbl, table tSwitches.
const store::FileSchema& SwitchesSchema();
// General\Globals\EnableRightClicks.tbl, table tEnableRightClicks.
const store::FileSchema& EnableRightClicksSchema();

// frmGeneralSwitches and frmGeneralRightClicks, one check list of each file's switches. Every
// rebuild rewrites both files from the defaults, so a function the user switched off comes back
// on: the files have always been reset so, and hub owners expect it.
shell::PageEntry SwitchesPage();
shell::PageEntry RightClicksPage();

}  // namespace qb::pages
