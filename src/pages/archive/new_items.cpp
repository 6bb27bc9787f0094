// New items: whether an archive tells its users of its newest items, and how many. One page
// serves every kind; Hyperlink calls its items links.

#include <array>

#include "pages/archive/archive.h"

namespace qb::pages {
namespace {

store::FileSchema SchemaOf(const ArchiveKind& kind) {
    const std::string base = "TheVellum\\" + kind.name + "\\" + kind.name;
    return {
        base + "NewItems.tbl",
        "t" + kind.name + "NewItems",
        {{store::FieldKind::Flag, "bEnableNewItems", ArchiveDefault("bEnableNewItems")},
         store::UpDownNumber("iNumberOfNewItems", ArchiveDefault("iNumberOfNewItems"), {1, 50})},
    };
}

shell::PageDecl DeclOf(const ArchiveKind& kind, const store::FileSchema& file) {
    using namespace shell::decl;
    using shell::Item;
    const std::string key = kind.name + "~NewLinks";
    return {
        .key = key,
        .caption = kind.name + " ~ New " + kind.items,
        .size = {4200, 2400},
        .files = {&file},
        .controls = {Check("chkCheckBox(0)", "bEnableNewItems", "Enable New " + kind.items),
                     Label("lblLabel(0)", "Max Number Of New " + kind.items),
                     Spin("txtUpDown(0)", "updUpDown(0)", "iNumberOfNewItems")},
        .layout = shell::Column(
            {Item("chkCheckBox(0)"),
             shell::Row({Item("lblLabel(0)"), Item("txtUpDown(0)"), Item("updUpDown(0)")}),
             shell::Stretch()}),
        // The five kinds' captions say New Items where their keys say NewLinks: the open
        // window list knows the page by its key.
        .tag = key,
    };
}

const std::array<store::FileSchema, kArchiveKinds>& Schemas() {
    static const auto schemas = PerArchiveKind<store::FileSchema>(
        [](const ArchiveKind& each, size_t) { return SchemaOf(each); });
    return schemas;
}

}  // namespace

const store::FileSchema& NewItemsSchema(size_t kind) {
    return Schemas().at(kind);
}

const shell::PageDecl& NewItemsPage(size_t kind) {
    static const auto pages = PerArchiveKind<shell::PageDecl>(
        [](const ArchiveKind& each, size_t index) { return DeclOf(each, Schemas()[index]); });
    return pages.at(kind);
}

}  // namespace qb::pages
