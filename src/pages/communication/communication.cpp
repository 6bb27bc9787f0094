#include "pages/communication/communication.h"

namespace qb::pages {

void RegisterCommunicationPages(shell::PageRegistry& registry, const PageServices& services) {
    std::vector<shell::PageEntry> pages = {
        PairMatrixPageOf(MassMessageMatrix()),
        PairMatrixPageOf(MuteMatrix()),
        PairMatrixPageOf(TalkMatrix()),
        MotdPage(),
        ChatRoomsPage(),
        AutoCorrectPage(),
        WelcomeInfoSettingsPage(),
        WelcomeInfoNetworkHubsPage(),
        ClockPage(),
        WhisperPage(),
        HubEmailPage(),
    };
    for (auto* group : {&RotatingMessagePages, &ChangerPages}) {
        for (shell::PageEntry& page : group())
            pages.push_back(std::move(page));
    }
    registry.Register(pages);
    if (services.hubLink) registry.Register(PortalPage(services.hubLink));
}

// The communication area's files, in the order a rebuild writes them in each folder.
void RegisterCommunicationBuilders(store::BuilderRegistry& builders) {
    builders.Add({
        PairMatrixBuild(MassMessageMatrix()),
        PairMatrixBuild(MuteMatrix()),
        PairMatrixBuild(TalkMatrix()),
        // The texts lie one folder down, made right after the settings' own.
        {"Communication\\MOTD\\MOTDs", BuildMotdSettings},
        ChatRoomSettingsSchema(),
        ChatRoomsSchema(),
        AutoCorrectSettingsSchema(),
        AutoCorrectWordsSchema(),
        AutoCorrectFiltersSchema(),
        WelcomeInfoSettingsSchema(),
        WelcomeInfoNetworkHubsSchema(),
        ClockSettingsSchema(),
        WhisperSettingsSchema(),
    });
    builders.Add(RotatingMessageBuilds());
    builders.Add(ChangerBuilds());
}

}  // namespace qb::pages
