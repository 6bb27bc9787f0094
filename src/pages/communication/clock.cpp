// The clock: how often the scripts show the time, and the names of summer and winter time.

#include "pages/communication/communication.h"

namespace qb::pages {

const store::FileSchema& ClockSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        "Communication\\Clock\\ClockSettings.tbl",
        "tClockSettings",
        {{.kind = FieldKind::Number,
          .key = "iDelay",
          .defaultValue = "60",
          .range = store::Range{1, 250}},
         {FieldKind::Flag, "bManualControl", "0"},
         {FieldKind::String, "sDaylightSaving", "BST"},
         {FieldKind::String, "sStandardTime", "GMT"},
         {FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const shell::PageDecl& ClockPage() {
    using namespace shell::decl;
    using shell::Item;
    static const shell::PageDecl page{
        .key = "Communication~Clock",
        .caption = "Communication ~ Clock",
        .size = {6400, 4800},
        .files = {&ClockSettingsSchema()},
        .controls = {Label("lblLabel(0)", "Display Delay"),
                     Spin("txtUpDown", "updUpDown", "iDelay"),
                     Check("chkCheckBox(0)", "bManualControl", "Enable Manual Control"),
                     Text("txtTextBox(0)", "sDaylightSaving", "Daylight Saving"),
                     Text("txtTextBox(1)", "sStandardTime", "Standard"),
                     ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                   3000)},
        .layout = shell::Row(
            {shell::Column({shell::Row({Item("lblLabel(0)"), Item("txtUpDown"), Item("updUpDown")}),
                            Item("chkCheckBox(0)"), Item("txtTextBox(0)"), Item("txtTextBox(1)"),
                            shell::Stretch()}),
             Item("lvwEnabledProfiles")}),
    };
    return page;
}

}  // namespace qb::pages
