// The hub's rules, one text per profile, which users call up in main chat or by private message.
// The page only lists the profiles: each text is edited and saved in the text editor.

#include "pages/security/security.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

constexpr const char* kRulesFolder = "Security\\Rules\\Ascii";

}  // namespace

// A profile's text is its number's file, "-1.asc" for Unregistered. A rebuild makes the missing
// ones empty and leaves the files of profiles the hub no longer has.
void BuildRuleTexts(store::BuildRun& run) {
    for (int profile = -1; profile <= run.lastProfile; ++profile) {
        store::WriteTextWhenMissing(
            run, std::string(kRulesFolder) + "\\" + std::to_string(profile) + ".asc", "");
    }
}

const shell::PageDecl& RulesPage() {
    using namespace shell::decl;
    static const shell::PageDecl page{
        .key = "Security~Rules",
        .caption = "Security ~ Rules",
        .size = {3400, 6075},
        .controls = {Toolbar("tlbListview", {shell::SetupEditToolbar}),
                     ProfileRows("lvwRules", "Profiles", shell::FillWidth(3400))},
        .editors = {{.list = "lvwRules",
                     .toolbar = "tlbListview",
                     .popup = "mnuOnlyEdit",
                     .methods = "gMenu",
                     .editsFile = std::string(kRulesFolder) + "\\{profile}.asc"}},
        .noRestore = true,
        .toolbarOff = true,
    };
    return page;
}

}  // namespace qb::pages
