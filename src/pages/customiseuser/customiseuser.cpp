#include "pages/customiseuser/customiseuser.h"

namespace qb::pages {

void RegisterCustomiseUserPages(shell::PageRegistry& registry) {
    std::vector<shell::PageEntry> pages = {
        CustomRightClickPage(),
        DescriptionTagsPage(),
        HideSharePage(),
    };
    for (const shell::PageDecl& page : IntroOutroPages())
        pages.emplace_back(page);
    pages.push_back(AsciiIntroPage());
    registry.Register(pages);
}

// The customise user area's files, in the order a rebuild writes them in each folder: in
// IntroOutro each page's settings, then the lists made when missing.
void RegisterCustomiseUserBuilders(store::BuilderRegistry& builders) {
    builders.Add({
        CustomRightClickSchema(),
        {"CustomiseUser\\DescriptionTags", BuildDescriptionTagSettings},
        DescriptionTagsSchema(),
        HideShareSettingsSchema(),
        HideShareUsersSchema(),
        IntroOutroSettingsSchema(),
        CustomIntroOutroSettingsSchema(),
        AsciiIntroSettingsSchema(),
        IntroSchema(),
        OutroSchema(),
        CustomIntroSchema(),
        CustomOutroSchema(),
        AsciiIntroSchema(),
        AsciiIntroIndexSchema(),
    });
}

}  // namespace qb::pages
