// Anti-advertise addresses: the words that give an advertisement away, and those that may pass.
// The two lists are independent; what one means to the other is the scripts' matter.

#include "pages/security/security.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

// A list of addresses, one bare row each. The builder has always made each file new under the
// other's table, so that both lists read empty until the page's first save writes the right
// table into each.
store::FileSchema AddressSchema(const char* file, const char* table, const char* builderTable) {
    return {.file = file,
            .table = table,
            .fields = {{.kind = store::FieldKind::Rows, .key = table, .defaultValue = ""}},
            .kind = store::FileKind::Data,
            .builderForm = {.table = builderTable}};
}

shell::RowEditorDecl AddressEditor(const std::string& list, const std::string& menu,
                                   const std::string& kind) {
    const auto dialog = [&](const std::string& caption, int required) {
        return shell::RowDialogDecl{.kind = shell::DialogKind::OneFields,
                                    .caption = caption + " " + kind + " Address",
                                    .labels = {kind + " Address"},
                                    .required = required};
    };
    return {
        .list = "lvw" + list,
        .toolbar = "tlb" + list,
        .popup = "mnu" + menu,
        .methods = "gMenu" + menu,
        .add = dialog("Add", 1),
        .edit = dialog("Edit", 0),
        // The prompt has always spoken another page's words.
        .confirmDelete = shell::Prompt{"Do you really want to delete this File?", "Delete Intro?"},
        .floor = 1,
        .floorPrompt = {"There must be a minimum of one " + kind + " Address", "Cannot delete",
                        shell::Icon::Exclamation}};
}

}  // namespace

const store::FileSchema& AntiAdvertiseBlockedAddressesSchema() {
    static const store::FileSchema schema =
        AddressSchema("Security\\AntiAdvertise\\AntiAdvertiseBlockedAddresses.tbl",
                      "tAntiAdvertiseBlockedAddresses", "tAntiAdvertiseAllowedAddresses");
    return schema;
}

const store::FileSchema& AntiAdvertiseAllowedAddressesSchema() {
    static const store::FileSchema schema =
        AddressSchema("Security\\AntiAdvertise\\AntiAdvertiseAllowedAddresses.tbl",
                      "tAntiAdvertiseAllowedAddresses", "tAntiAdvertiseBlockedAddresses");
    return schema;
}

const shell::PageDecl& AntiAdvertiseAddressesPage() {
    using namespace shell::decl;
    using shell::Item;
    constexpr int kWidth = 3400;
    // Only RESTORE empties a list: a delete stops at its last address.
    const auto addresses = [](const char* list, const store::FileSchema& file) {
        return In(file,
                  With({.restoreRows = shell::Quirks::RestoreRows::Empty},
                       Rows(list, file.table, kWidth, {{"column1", "Address", kWidth - 350}})));
    };
    static const shell::PageDecl page{
        .key = "Security~AntiAdvertise~Addresses",
        .caption = "Security ~ AntiAdvertise",
        .size = {7400, 6075},
        .files = {&AntiAdvertiseBlockedAddressesSchema(), &AntiAdvertiseAllowedAddressesSchema()},
        .controls = {Label("lblLabel(0)", "Blocked Addresses"),
                     Toolbar("tlbBlockedAddresses", {shell::SetupListToolbar}),
                     addresses("lvwBlockedAddresses", AntiAdvertiseBlockedAddressesSchema()),
                     Label("lblLabel(1)", "Allowed Addresses"),
                     Toolbar("tlbAllowedAddresses", {shell::SetupListToolbar}),
                     addresses("lvwAllowedAddresses", AntiAdvertiseAllowedAddressesSchema())},
        .editors = {AddressEditor("BlockedAddresses", "First", "Blocked"),
                    AddressEditor("AllowedAddresses", "Second", "Allowed")},
        .layout = shell::Row({shell::Column({Item("lblLabel(0)"), Item("tlbBlockedAddresses"),
                                             Item("lvwBlockedAddresses")}),
                              shell::Column({Item("lblLabel(1)"), Item("tlbAllowedAddresses"),
                                             Item("lvwAllowedAddresses")})}),
        // The caption isn't the key: the open window list knows the page by its key.
        .tag = "Security~AntiAdvertise~Addresses",
    };
    return page;
}

}  // namespace qb::pages
