#include "pages/security/security.h"

namespace qb::pages {

void RegisterSecurityPages(shell::PageRegistry& registry) {
    registry.Register({
        AntiAdvertiseSettingsPage(),
        AntiAdvertiseAddressesPage(),
        ClientCheckerPage(),
        PairMatrixPageOf(FloodMatrix()),
        CommandSpyPage(),
        KickSettingsPage(),
        PairMatrixPageOf(KickPermissionsMatrix()),
        PrivateHubPage(),
        ProfileRuleSettingsPage(),
        ProfileRuleRulesPage(),
        PairMatrixPageOf(RegistrationMatrix()),
        SearchSpyPage(),
        BlockerPage(BadNickBlocker()),
        BlockerPage(CloneBlocker()),
        UserLogPage(),
        MainGuardPage(MainBlock()),
        MainGuardPage(MainLock()),
        MainGuardPage(MainCleaner()),
        RulesPage(),
        ReportPage(),
        AntiVirusPage(),
        PtokaXSettingsPage(),
    });
}

// The security area's files, in the order a rebuild writes them in each folder.
void RegisterSecurityBuilders(store::BuilderRegistry& builders) {
    builders.Add({
        AntiAdvertiseSettingsSchema(),
        AntiAdvertiseBlockedActionsSchema(),
        AntiAdvertiseAllowedAddressesSchema(),
        AntiAdvertiseBlockedAddressesSchema(),
        ClientCheckerSettingsSchema(),
        ClientVersionsSchema(),
        PairMatrixBuild(FloodMatrix()),
        CommandSpySettingsSchema(),
        CommandSpyUsersSchema(),
        KickSettingsSchema(),
        PairMatrixBuild(KickPermissionsMatrix()),
        {"Security\\Kick", BuildKickAscii},
        KickerLogSchema(),
        KickLogSchema(),
        PrivateHubSettingsSchema(),
        {"Security\\ProfileRules", BuildProfileRules},
        ProfileRuleSettingsSchema(),
        ProfileRulesExemptUsersSchema(),
        ProfileRulesRedirectCounterSchema(),
        PairMatrixBuild(RegistrationMatrix()),
        RegistrationSettingsSchema(),
        SearchSpySettingsSchema(),
        SearchSpyFilesSchema(),
        BlockerSettingsSchema(CloneBlocker()),
        BlockerListSchema(CloneBlocker()),
        BlockerSettingsSchema(BadNickBlocker()),
        BlockerListSchema(BadNickBlocker()),
        UserLogSettingsSchema(),
        UserLogSchema(),
        UserLogImmuneListSchema(),
        MainGuardSettingsSchema(MainBlock()),
        MainGuardSettingsSchema(MainLock()),
        MainGuardSettingsSchema(MainCleaner()),
        store::TextWhenMissing(kMainCleanerText, "Cleaned"),
        {"Security\\Rules\\Ascii", BuildRuleTexts},
        ReportSettingsSchema(),
        AntiVirusSettingsSchema(),
        PtokaXSettingsSchema(),
    });
}

}  // namespace qb::pages
