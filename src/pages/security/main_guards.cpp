// The guards of main chat: the main block, lock and cleaner, one page over a row of what differs.
// Each keeps the profiles it acts for (and the block and lock those it spares); the block keeps
// how long a block lasts, and the cleaner the text it shows, which the text editor keeps.

#include "pages/security/security.h"
#include "shell/page_frame.h"

namespace qb::pages {

struct MainGuard {
    const char* name;  // "MainBlock": the key's last part, the folder, the file's stem
    bool exempts;      // spares the profiles of tExemptProfiles
    bool blockTime;    // keeps iBlockTime
    const char* text;  // the text file its EDIT opens, or null

    store::FileSchema settings{};
    shell::PageDecl page{};
};

namespace {

constexpr int kListWidth = 2400;

// The block builder has always written the time last, after the lists.
store::FileSchema SettingsOf(const MainGuard& guard) {
    using store::FieldKind;
    const std::string name = guard.name;
    store::FileSchema file{.file = "Security\\" + name + "\\" + name + "Settings.tbl",
                           .table = "t" + name + "Settings",
                           .fields = {}};
    if (guard.blockTime) {
        file.fields.push_back(store::UpDownNumber("iBlockTime", "10", store::Range{1, 1440, 5}));
    }
    file.fields.push_back({FieldKind::ProfileChecks, "tEnabledProfiles", "0"});
    if (guard.exempts) file.fields.push_back({FieldKind::ProfileChecks, "tExemptProfiles", "0"});
    if (guard.blockTime) {
        file.builderForm.order = {"tEnabledProfiles", "tExemptProfiles", "iBlockTime"};
    }
    return file;
}

shell::PageDecl PageOf(const MainGuard& guard) {
    using namespace shell::decl;
    using shell::Item;
    shell::PageDecl page{.key = "Security~" + std::string(guard.name),
                         .caption = "Security ~ " + std::string(guard.name),
                         .size = {guard.exempts ? 5400 : 3400, 6075},
                         .files = {&guard.settings},
                         .layout = shell::Column({})};
    shell::Layout& body = *page.layout;
    if (guard.blockTime) {
        page.controls.push_back(Label("lblLabel(2)", "Temporary Block Time"));
        page.controls.push_back(Spin("txtUpDown", "updUpDown", "iBlockTime"));
        body.items.push_back(
            shell::Row({Item("lblLabel(2)"), Item("txtUpDown"), Item("updUpDown")}));
    }
    if (guard.text != nullptr) {
        page.controls.push_back(
            Edits(guard.text, Toolbar("tlbListview", {shell::SetupEditToolbar})));
        body.items.push_back(Item("tlbListview"));
    }
    std::vector<shell::CheckListDecl> checks = {
        {"tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles"}};
    if (guard.exempts)
        checks.push_back({"tExemptProfiles", "lvwExemptProfiles", "Exempt Profiles"});
    shell::Layout lists = shell::Row({});
    shell::AddCheckLists(page, lists, checks, 0, kListWidth);
    body.items.push_back(lists);
    return page;
}

const MainGuard& Made(MainGuard& guard) {
    guard.settings = SettingsOf(guard);
    guard.page = PageOf(guard);
    return guard;
}

}  // namespace

const MainGuard& MainBlock() {
    static MainGuard guard{
        .name = "MainBlock", .exempts = true, .blockTime = true, .text = nullptr};
    static const MainGuard& made = Made(guard);
    return made;
}

const MainGuard& MainLock() {
    static MainGuard guard{
        .name = "MainLock", .exempts = true, .blockTime = false, .text = nullptr};
    static const MainGuard& made = Made(guard);
    return made;
}

// What the cleaner shows is its own text file: the builder makes it, and the page's SAVE and
// RESTORE never touch it.
const MainGuard& MainCleaner() {
    static MainGuard guard{
        .name = "MainCleaner", .exempts = false, .blockTime = false, .text = kMainCleanerText};
    static const MainGuard& made = Made(guard);
    return made;
}

const shell::PageDecl& MainGuardPage(const MainGuard& guard) {
    return guard.page;
}
const store::FileSchema& MainGuardSettingsSchema(const MainGuard& guard) {
    return guard.settings;
}

}  // namespace qb::pages
