#pragma once
// The catalogue of functions: the navigation tree `tvwFunctions` and the group buttons of
// `tlbMDITop` with their drop-down menus. A function key is the node's path joined by "~"
// ("Games~Trivia~Questions"); it is also the page's identity in the open window list.

#include <string>
#include <string_view>
#include <vector>

#include "store/edition.h"
#include "store/table_files.h"

namespace qb::shell {

struct CatalogueNode {
    std::string key;
    std::string text;
    bool bold = false;  // the root and the group nodes
    std::vector<CatalogueNode> children;
};

struct GroupMenuEntry {
    std::string key;   // the function key the entry opens
    std::string text;  // what the entry shows
};

// A group button of tlbMDITop: key and image key equal the group key.
struct GroupButton {
    std::string key;
    std::vector<GroupMenuEntry> menu;
};

struct Catalogue {
    CatalogueNode root;
    std::vector<GroupButton> groups;

    // The node of a key, or null.
    const CatalogueNode* Find(std::string_view key) const;
    const GroupButton* Group(std::string_view key) const;
};

// The tree and the group menus as the edition has them. The portal node is there only when a
// hand-made `bPortal = 1` stands in General\Globals\Switches.tbl: no writer puts it there, so the
// portal stays hidden until its owner asks for it.
Catalogue BuildCatalogue(store::TableFiles& files, std::string_view edition,
                         store::ProgramVersion version);

// The keys that have a page, in the order OpenFunctionPage tries them. Group and intermediate
// nodes are not among them, nor the archive RightClicks keys other than Hyperlink's; the e-mail
// page of the hub is, though no node offers it.
const std::vector<std::string>& FunctionKeys();
bool IsFunctionKey(std::string_view key);

// Whether `key` is something OpenFunctionPage may be asked for: a function key or any node of the
// full catalogue, whatever the edition shows.
bool IsCatalogueKey(std::string_view key);

// "Security~CommandSpy" gives "Security ~ CommandSpy".
std::string CaptionOfKey(std::string_view key);

}  // namespace qb::shell
