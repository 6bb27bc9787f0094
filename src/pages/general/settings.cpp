// The general settings: the look of the scripts' output and of their right click menus.

#include "pages/general/general.h"

namespace qb::pages {

const store::FileSchema& GeneralSettingsSchema() {
    using store::FieldKind;
    // The prefixes a command may start with, in the combo's order.
    static const std::vector<store::Choice> prefixes = {
        {"+", "+"},       {"-", "-"}, {"!", "!"}, {"#", "#"}, {"$", "$"},
        {"\xA3", "\xA3"}, {"?", "?"}, {"~", "~"}, {"=", "="},
    };
    static const store::FileSchema schema{
        .file = "General\\Globals\\GeneralSettings.tbl",
        .table = "tGeneralSettings",
        .fields =
            {
                {FieldKind::Flag, "bAllowAllPrefixes", "1"},
                {FieldKind::Flag, "bFlatRC", "0"},
                {FieldKind::Flag, "bUnregRCEnable", "1"},
                {FieldKind::String, "sBorder", "\xBB\xAB"},  // the two bytes of a border in 1252
                {FieldKind::String, "sRightClickName", ""},
                {.kind = FieldKind::String,
                 .key = "sPrefix",
                 .defaultValue = "+",
                 .choices = prefixes},
            },
        // The builder has always written its own order; the scripts read by key.
        .builderForm = {.order = {"bAllowAllPrefixes", "sPrefix", "sRightClickName", "sBorder",
                                  "bFlatRC", "bUnregRCEnable"}},
    };
    return schema;
}

// frmGeneralGeneral. A missing file leaves every box empty: the defaults come with RESTORE or a
// rebuild. A prefix the combo doesn't offer is passed over, and the combo keeps what it showed.
const shell::PageDecl& GeneralSettingsPage() {
    using namespace shell::decl;
    static const shell::PageDecl page{
        .key = "General~Settings",
        .caption = "General ~ Settings",
        .size = {3165, 3450},
        .files = {&GeneralSettingsSchema()},
        .controls = {Check("chkCheckBox(0)", "bAllowAllPrefixes", "Allow All Prefixes"),
                     Check("chkCheckBox(1)", "bFlatRC", "Flattened RC"),
                     Check("chkCheckBox(2)", "bUnregRCEnable", "Enable RC for Unreg"),
                     Text("txtTextBox(0)", "sBorder", "Border"),
                     Text("txtTextBox(1)", "sRightClickName", "Right Click Name"),
                     Combo("cboPrefixes", "sPrefix", "Prefixes")},
    };
    return page;
}

}  // namespace qb::pages
