// The user log: the details of users as they join and leave. Its cleaner, its save timer, the
// size of the top hubbers' list, and who may view it, who is logged and whom the cleaner spares.
// Logging Unregistered can grow the log large enough to lag the hub.

#include "pages/security/security.h"

namespace qb::pages {

// The cleaner's time is hours and minutes run together, from 1 to 2355 on a step of 5. The
// builder has always written the keys in an order of its own.
const store::FileSchema& UserLogSettingsSchema() {
    using store::FieldKind;
    using store::Range;
    static const store::FileSchema schema{
        .file = "Security\\UserLog\\UserLogSettings.tbl",
        .table = "tUserLogSettings",
        .fields = {{FieldKind::Flag, "bEnableCleaner", "1"},
                   {FieldKind::Flag, "bEnableSaveTimer", "1"},
                   {FieldKind::Flag, "bEnableFileLog", "1"},
                   store::UpDownNumber("iCleanOlderThan", "28", Range{1, 365}),
                   store::UpDownNumber("iCleanerTime", "2355", Range{1, 2355, 5}),
                   store::UpDownNumber("iSaveTimerInterval", "60", Range{1, 86400}),
                   store::UpDownNumber("iTopHubbers", "25", Range{1, 150}),
                   {FieldKind::ProfileChecks, "tEnabledProfiles", "0"},
                   {FieldKind::ProfileChecks, "tEnabledLogProfiles", "0"},
                   {FieldKind::ProfileChecks, "tEnabledCleanImmuneProfiles", "0"}},
        .builderForm = {.order = {"bEnableCleaner", "iCleanOlderThan", "iCleanerTime",
                                  "iTopHubbers", "bEnableSaveTimer", "iSaveTimerInterval",
                                  "bEnableFileLog", "tEnabledProfiles", "tEnabledLogProfiles",
                                  "tEnabledCleanImmuneProfiles"}},
    };
    return schema;
}

// The script's log and the users it never logs, made empty when missing; no page edits them.
const store::FileSchema& UserLogSchema() {
    static const store::FileSchema schema{
        "Security\\UserLog\\UserLog.tbl", "tUserLog", {}, store::FileKind::Data};
    return schema;
}
const store::FileSchema& UserLogImmuneListSchema() {
    static const store::FileSchema schema{"Security\\UserLog\\UserLogImmuneList.tbl",
                                          "tUserLogImmuneList",
                                          {},
                                          store::FileKind::Data};
    return schema;
}

const shell::PageDecl& UserLogPage() {
    using namespace shell::decl;
    using shell::Item;
    using shell::Row;
    constexpr int kWidth = 2600;
    static const shell::PageDecl page{
        .key = "Security~UserLog",
        .caption = "Security ~ UserLog",
        .size = {10800, 6075},
        .files = {&UserLogSettingsSchema()},
        .controls = {Check("chkCheckBox(0)", "bEnableCleaner", "Enable Cleaner"),
                     Check("chkCheckBox(1)", "bEnableSaveTimer", "Enable Save On Timer"),
                     Check("chkCheckBox(2)", "bEnableFileLog", "Enable Log To File"),
                     Label("lblLabel(0)", "Clean Older Than"),
                     Spin("txtUpDown(0)", "updUpDown(0)", "iCleanOlderThan"),
                     Label("lblLabel(1)", "Days"), Label("lblLabel(2)", "Cleaner Active Time"),
                     Spin("txtUpDown(1)", "updUpDown(1)", "iCleanerTime"),
                     Label("lblLabel(3)", "Save Timer Interval"),
                     Spin("txtUpDown(2)", "updUpDown(2)", "iSaveTimerInterval"),
                     Label("lblLabel(4)", "Number Of Top Hubbers to Show"),
                     Spin("txtUpDown(3)", "updUpDown(3)", "iTopHubbers"),
                     Label("lblLabel(5)", "Enabled View Log Profiles"),
                     ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                   kWidth),
                     Label("lblLabel(6)", "Enabled Log Profiles"),
                     ProfileChecks("lvwEnabledLogProfiles", "tEnabledLogProfiles",
                                   "Enabled Profiles", kWidth),
                     Label("lblLabel(7)", "Cleaner Immune Profiles"),
                     ProfileChecks("lvwEnabledCleanImmuneProfiles", "tEnabledCleanImmuneProfiles",
                                   "Enabled Profiles", kWidth)},
        .layout = Row(
            {shell::Column({Item("chkCheckBox(0)"), Item("chkCheckBox(1)"), Item("chkCheckBox(2)"),
                            Row({Item("lblLabel(0)"), Item("txtUpDown(0)"), Item("updUpDown(0)"),
                                 Item("lblLabel(1)")}),
                            Row({Item("lblLabel(2)"), Item("txtUpDown(1)"), Item("updUpDown(1)")}),
                            Row({Item("lblLabel(3)"), Item("txtUpDown(2)"), Item("updUpDown(2)")}),
                            Row({Item("lblLabel(4)"), Item("txtUpDown(3)"), Item("updUpDown(3)")}),
                            shell::Stretch()}),
             shell::Column({Item("lblLabel(5)"), Item("lvwEnabledProfiles")}),
             shell::Column({Item("lblLabel(6)"), Item("lvwEnabledLogProfiles")}),
             shell::Column({Item("lblLabel(7)"), Item("lvwEnabledCleanImmuneProfiles")})}),
    };
    return page;
}

}  // namespace qb::pages
