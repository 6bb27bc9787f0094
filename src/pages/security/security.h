#pragma once
// The security functions: their pages and the descriptions of their files.

#include "families/matrix/pair_matrix.h"
#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry);
void RegisterSecurityBuilders(store::BuilderRegistry& builders);

// The client checker (client_checker.cpp).
shell::PageEntry ClientCheckerPage();
// Security\ClientChecker\ClientCheckerSettings.tbl: the action, its ban time, the blocked
// connection types and the exempt profiles.
const store::FileSchema& ClientCheckerSettingsSchema();
// Security\ClientChecker\ClientVersions.tbl: the clients and their least versions, a list the
// user fills, made empty when missing.
const store::FileSchema& ClientVersionsSchema();

// The flooder, a pair matrix (flooder.cpp).
const PairMatrix& FloodMatrix();

// Profile rules: the settings (profile_rule_settings.cpp) and the rules (profile_rules.cpp).
const shell::PageDecl& ProfileRuleSettingsPage();
shell::PageEntry ProfileRuleRulesPage();
// Security\ProfileRules\ProfileRuleSettings.tbl: the redirect log, the check delay and the
// profiles that may get and set rules.
const store::FileSchema& ProfileRuleSettingsSchema();
// Security\ProfileRules\ProfileRulesExemptUsers.tbl: the scripts' own list, made when missing.
const store::FileSchema& ProfileRulesExemptUsersSchema();
// Security\ProfileRules\ProfileRulesRedirectCounter.tbl: the scripts' counts, zeroed by every
// rebuild.
const store::FileSchema& ProfileRulesRedirectCounterSchema();
// Security\ProfileRules\ProfileRules.tbl: the messages, the redirects and each profile's limits.
void BuildProfileRules(store::BuildRun& run);

// Kicks: the settings (kick_settings.cpp) and the permissions, a pair matrix
// (kick_permissions.cpp).
const shell::PageDecl& KickSettingsPage();
// Security\Kick\KickSettings.tbl: the thresholds, the cleaner and the announcement's switch.
const store::FileSchema& KickSettingsSchema();
// Security\Kick\KickAscii.asc: the announcement's text, made when missing.
void BuildKickAscii(store::BuildRun& run);
// Security\Kick\Logs\KickerLog.tbl and KickLog.tbl: the scripts' logs, made when missing.
const store::FileSchema& KickerLogSchema();
const store::FileSchema& KickLogSchema();
const PairMatrix& KickPermissionsMatrix();

// Anti-advertise: the settings (anti_advertise_settings.cpp) and the addresses
// (anti_advertise_addresses.cpp).
const shell::PageDecl& AntiAdvertiseSettingsPage();
const store::FileSchema& AntiAdvertiseSettingsSchema();
const store::FileSchema& AntiAdvertiseBlockedActionsSchema();
const shell::PageDecl& AntiAdvertiseAddressesPage();
const store::FileSchema& AntiAdvertiseBlockedAddressesSchema();
const store::FileSchema& AntiAdvertiseAllowedAddressesSchema();

// The private hub (private_hub.cpp).
const shell::PageDecl& PrivateHubPage();
const store::FileSchema& PrivateHubSettingsSchema();

// Registration, a pair matrix with settings of its own (registration.cpp).
const PairMatrix& RegistrationMatrix();
const store::FileSchema& RegistrationSettingsSchema();

// The command spy (command_spy.cpp).
const shell::PageDecl& CommandSpyPage();
// Security\CommandSpy\CommandSpySettings.tbl: the profiles that watch command use.
const store::FileSchema& CommandSpySettingsSchema();
// Security\CommandSpy\CommandSpyUsers.tbl: the script's own list, made empty when missing.
const store::FileSchema& CommandSpyUsersSchema();

// The search spy (search_spy.cpp).
const shell::PageDecl& SearchSpyPage();
// Security\SearchSpy\SearchSpySettings.tbl: the profiles the search spy watches and spares.
const store::FileSchema& SearchSpySettingsSchema();
// Security\SearchSpy\SearchSpyFiles.tbl: the forbidden phrases and their actions, a list the user
// fills, made empty when missing.
const store::FileSchema& SearchSpyFilesSchema();

// The bad nick and clone blockers, one page over a row of what differs (blockers.cpp).
struct Blocker;
const Blocker& BadNickBlocker();
const Blocker& CloneBlocker();
const shell::PageDecl& BlockerPage(const Blocker& blocker);
// Security\<Blocker>\<Blocker>Settings.tbl: the action, its ban time and the profile lists.
const store::FileSchema& BlockerSettingsSchema(const Blocker& blocker);
// The names the user keeps: BadNickBlockerNickList.tbl, CloneBlockerExemptUsers.tbl, made empty
// when missing.
const store::FileSchema& BlockerListSchema(const Blocker& blocker);

// The user log (user_log.cpp).
const shell::PageDecl& UserLogPage();
// Security\UserLog\UserLogSettings.tbl: the cleaner, the save timer, the top hubbers and three
// profile lists.
const store::FileSchema& UserLogSettingsSchema();
// Security\UserLog\UserLog.tbl and UserLogImmuneList.tbl: the script's own, made when missing.
const store::FileSchema& UserLogSchema();
const store::FileSchema& UserLogImmuneListSchema();

// The main block, lock and cleaner, one page over a row of what differs (main_guards.cpp).
struct MainGuard;
const MainGuard& MainBlock();
const MainGuard& MainLock();
const MainGuard& MainCleaner();
const shell::PageDecl& MainGuardPage(const MainGuard& guard);
// Security\<Guard>\<Guard>Settings.tbl: the profiles, and the block's time.
const store::FileSchema& MainGuardSettingsSchema(const MainGuard& guard);
// The text the cleaner shows, "Cleaned" when the rebuild makes it.
inline constexpr const char* kMainCleanerText = "Security\\MainCleaner\\MainCleaner.asc";

// The rules (rules.cpp): a text per profile, edited in the text editor.
const shell::PageDecl& RulesPage();
// Security\Rules\Ascii\<number>.asc: each profile's text, made empty when missing.
void BuildRuleTexts(store::BuildRun& run);

// The report (report.cpp).
const shell::PageDecl& ReportPage();
const store::FileSchema& ReportSettingsSchema();

// The anti-virus (anti_virus.cpp).
const shell::PageDecl& AntiVirusPage();
// Security\AntiVirus\AntiVirusSettings.tbl: the action, Disconnect by default, and its ban time.
const store::FileSchema& AntiVirusSettingsSchema();

// The profiles that may get and set the hub's settings (ptokax_settings.cpp).
const shell::PageDecl& PtokaXSettingsPage();
const store::FileSchema& PtokaXSettingsSchema();

}  // namespace qb::pages
