// Kick settings: the thresholds that turn warns into kicks and kicks into bans, the ban's time,
// the cleaner of the kick log and the top kickers, and the announcement a kick shows, whose text
// is a file of its own.

#include "pages/security/security.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

constexpr const char* kAsciiFile = "Security\\Kick\\KickAscii.asc";

struct Threshold {
    const char* key;
    const char* defaultValue;
    store::Range range;
    const char* label;
};

// The up-downs, in the order the page shows them. The cleaner's time is hours and minutes run
// together, and its step walks through numbers that are no time of day: nothing holds it to one.
const std::vector<Threshold>& Thresholds() {
    static const std::vector<Threshold> thresholds = {
        {"iWarnsMakeKick", "5", {1, 50}, "Warns Make Kick"},
        {"iKicksMakeBan", "5", {1, 50}, "Kicks Make Ban"},
        {"iTimeBansMakeBan", "5", {1, 50}, "TempBans Make Ban"},
        {"iKickBanTime", "10", {1, 500}, "Kick Ban Time"},
        {"iCleanOlderThan", "30", {10, 180}, "Clean Older Than"},
        {"iCleanerTime", "2355", {0, 2359, 5}, "Cleaner Time"},
        {"iTopKickers", "10", {3, 100}, "Top Kickers"},
    };
    return thresholds;
}

struct Switch {
    const char* key;
    const char* defaultValue;
    const char* caption;
};

constexpr Switch kSwitches[] = {
    {"bAnnounceNextArrival", "1", "Announce Kicked Return"},
    {"bCleanerActive", "1", "Enable Kick Log Cleaner"},
    {"bAsciiToMain", "0", "Enable Ascii Kick"},
};

}  // namespace

// The page writes the flags first; the builder has always written its own order.
const store::FileSchema& KickSettingsSchema() {
    static const store::FileSchema schema = [] {
        store::FileSchema file{"Security\\Kick\\KickSettings.tbl", "tKickSettings", {}};
        for (const Switch& flag : kSwitches)
            file.fields.push_back({store::FieldKind::Flag, flag.key, flag.defaultValue});
        for (const Threshold& number : Thresholds()) {
            file.fields.push_back({.kind = store::FieldKind::Number,
                                   .key = number.key,
                                   .defaultValue = number.defaultValue,
                                   .range = number.range});
        }
        file.builderForm.order = {"iWarnsMakeKick",  "iKicksMakeBan",        "iTimeBansMakeBan",
                                  "iKickBanTime",    "bAnnounceNextArrival", "bCleanerActive",
                                  "iCleanOlderThan", "iCleanerTime",         "iTopKickers",
                                  "bAsciiToMain"};
        return file;
    }();
    return schema;
}

// The announcement's text, with the scripts' marks for the kicked user and the reason; made only
// when missing, and edited in the text editor.
void BuildKickAscii(store::BuildRun& run) {
    store::WriteTextWhenMissing(run, kAsciiFile, "!victim!: !reason!");
}

// The scripts' logs of kicks and kickers, made empty when missing.
const store::FileSchema& KickerLogSchema() {
    static const store::FileSchema schema{
        "Security\\Kick\\Logs\\KickerLog.tbl", "tKickerLog", {}, store::FileKind::Data};
    return schema;
}
const store::FileSchema& KickLogSchema() {
    static const store::FileSchema schema{
        "Security\\Kick\\Logs\\KickLog.tbl", "tKickLog", {}, store::FileKind::Data};
    return schema;
}

const shell::PageDecl& KickSettingsPage() {
    static const shell::PageDecl page = [] {
        using namespace shell::decl;
        using shell::Item;
        shell::PageDecl decl{.key = "Security~Kicks~Settings",
                             .caption = "Security ~ Kicks ~ Settings",
                             .size = {6400, 4800},
                             .files = {&KickSettingsSchema()}};
        shell::Layout numbers = shell::Column({});
        for (size_t i = 0; i < Thresholds().size(); ++i) {
            const std::string index = "(" + std::to_string(i) + ")";
            decl.controls.push_back(Label("lblLabel" + index, Thresholds()[i].label));
            decl.controls.push_back(
                Spin("txtUpDown" + index, "updUpDown" + index, Thresholds()[i].key));
            numbers.items.push_back(shell::Row({Item("lblLabel" + index), Item("txtUpDown" + index),
                                                Item("updUpDown" + index), shell::Stretch()}));
        }
        numbers.items.push_back(shell::Stretch());
        shell::Layout flags = shell::Column({});
        for (size_t i = 0; i < std::size(kSwitches); ++i) {
            const std::string name = "chkCheckBox(" + std::to_string(i) + ")";
            decl.controls.push_back(Check(name, kSwitches[i].key, kSwitches[i].caption));
            flags.items.push_back(Item(name));
        }
        // The announcement's text is edited and saved in the text editor, apart from this page.
        decl.controls.push_back(
            Edits(kAsciiFile, Toolbar("tlbCheckBox", {shell::SetupEditToolbar})));
        flags.items.back() =
            shell::Row({flags.items.back(), Item("tlbCheckBox"), shell::Stretch()});
        flags.items.push_back(shell::Stretch());
        decl.layout = shell::Row({numbers, flags});
        return decl;
    }();
    return page;
}

}  // namespace qb::pages
