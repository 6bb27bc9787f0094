#pragma once
// The communication functions: their pages and the descriptions of their files.

#include "families/matrix/pair_matrix.h"
#include "pages/services.h"
#include "shell/page_registry.h"
#include "store/builders.h"

namespace qb::pages {

void RegisterCommunicationPages(shell::PageRegistry& registry, const PageServices& services);
void RegisterCommunicationBuilders(store::BuilderRegistry& builders);

// Talk, Mute and MassMessage, the pair matrices of the communication functions (talk.cpp,
// mute.cpp, mass_message.cpp).
const PairMatrix& TalkMatrix();
const PairMatrix& MuteMatrix();
const PairMatrix& MassMessageMatrix();

// The portal: one bot nick on two hubs, relaying public chat (portal.cpp). Offered only with a
// hub link.
shell::PageEntry PortalPage(const hublink::SessionsFactory& hubLink);
inline constexpr const char* kPortalFile = "Communication\\Portal\\PortalSettings.tbl";

// The rotating main and private messages, one page over what differs (rotating_message.cpp).
std::vector<shell::PageEntry> RotatingMessagePages();
std::vector<store::BuildStep> RotatingMessageBuilds();

// The message of the day (motd.cpp): its settings have a builder of their own, which also makes
// each row's text file.
shell::PageEntry MotdPage();
void BuildMotdSettings(store::BuildRun& run);

// Chat rooms (chat_rooms.cpp).
const store::FileSchema& ChatRoomSettingsSchema();
const store::FileSchema& ChatRoomsSchema();
const shell::PageDecl& ChatRoomsPage();

// AutoCorrect (auto_correct.cpp).
const store::FileSchema& AutoCorrectSettingsSchema();
const store::FileSchema& AutoCorrectWordsSchema();
const store::FileSchema& AutoCorrectFiltersSchema();
const shell::PageDecl& AutoCorrectPage();

// Welcome info and the network's hubs (welcome_info.cpp).
const store::FileSchema& WelcomeInfoSettingsSchema();
const store::FileSchema& WelcomeInfoNetworkHubsSchema();
const shell::PageDecl& WelcomeInfoSettingsPage();
const shell::PageDecl& WelcomeInfoNetworkHubsPage();

// The topic and kick bar changers, one page over their words (changers.cpp).
std::vector<shell::PageEntry> ChangerPages();
std::vector<store::BuildStep> ChangerBuilds();

// Clock, whisper and hub e-mail (clock.cpp, whisper.cpp, hub_email.cpp). The hub e-mail has no
// builder: its SAVE makes its folder.
const store::FileSchema& ClockSettingsSchema();
const shell::PageDecl& ClockPage();
const store::FileSchema& WhisperSettingsSchema();
const shell::PageDecl& WhisperPage();
const store::FileSchema& HubEmailSettingsSchema();
const shell::PageDecl& HubEmailPage();

}  // namespace qb::pages
