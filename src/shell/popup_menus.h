#pragma once
// The pop-up menus of the pages' lists. They belong to the main window, and each entry calls a
// public method of the active page by name; a page pops one up from its list and the window shows
// only the entries whose method the page has.

#include <string>
#include <string_view>
#include <vector>

namespace qb::shell {

struct PopupEntry {
    std::string name;     // mnuFirstAdd
    std::string caption;  // "&Add"
    std::string method;   // gMenuFirstAddClick; empty for an entry that calls nothing
};

struct PopupMenu {
    std::string name;  // mnuFirst
    std::vector<PopupEntry> entries;
};

const std::vector<PopupMenu>& PopupMenus();
const PopupMenu* FindPopupMenu(std::string_view name);
const PopupEntry* FindPopupEntry(std::string_view name);
// The first entry that calls `method`, or null when no entry does.
const PopupEntry* PopupEntryCalling(std::string_view method);

}  // namespace qb::shell
