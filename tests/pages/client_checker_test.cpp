// The client checker's files through a rebuild, and the action code table every security page
// shares.

#include <gtest/gtest.h>

#include <set>

#include "pages/pages.h"
#include "pages/security/action_codes.h"
#include "support/temp_hub.h"

namespace qb::pages {
namespace {

using test::Crlf;

TEST(ActionCodes, EachNameHasItsOwnLetterBothWays) {
    std::set<std::string_view> codes;
    for (const store::Choice& action : ActionChoices()) {
        EXPECT_TRUE(codes.insert(action.stored).second) << action.stored;
        EXPECT_EQ(ActionCodeOf(action.shown), action.stored);
        EXPECT_EQ(ActionName(action.stored), action.shown);
    }
    EXPECT_EQ(ActionName("T"), "TempBan");
    EXPECT_EQ(ActionCodeOf("Notify Ops"), "N");
    EXPECT_EQ(ActionName("X"), "");
    EXPECT_EQ(ActionCodeOf("Kick "), "");
}

class ClientCheckerRebuild : public ::testing::Test {
  protected:
    ClientCheckerRebuild() { RegisterAllBuilders(builders); }
    void Rebuild(int lastProfile) {
        store::BuildRun run{files, lastProfile, store::kBuildVersion};
        builders.BuildArea(store::Area::Security, run);
    }
    test::TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    store::BuilderRegistry builders;
};

TEST_F(ClientCheckerRebuild, KeepsTheActionTheTimeAndTheExemptionsButClearsEveryBlockedType) {
    // As the page writes it.
    hub.WriteSetting(
        "Security/ClientChecker/ClientCheckerSettings.tbl",
        Crlf({"tClientCheckerSettings = {", "\tiBanTime = 1000,", "\tsAction = \"K\",",
              "\ttEnabledProfiles = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t\t[1] = 1,", "\t},",
              "\ttBlock = {", "\t\tbSockets = 0,", "\t\tbPassive = 1,", "\t\tbActive = 1,",
              "\t\tbUndeclared = 0,", "\t},", "}"}));
    const std::string clients = Crlf({"tClientVersions = {", "\t[\"DC++\"] = \"1^0.868\",", "}"});
    hub.WriteSetting("Security/ClientChecker/ClientVersions.tbl", clients);
    Rebuild(0);  // the hub lost profile 1
    EXPECT_EQ(hub.ReadSetting("Security/ClientChecker/ClientCheckerSettings.tbl"),
              Crlf({"tClientCheckerSettings = {", "\tsAction = \"K\",", "\tiBanTime = 1000,",
                    "\ttBlock = {", "\t\tbSockets = 0,", "\t\tbPassive = 0,", "\t\tbActive = 0,",
                    "\t\tbUndeclared = 0,", "\t},", "\ttEnabledProfiles = {", "\t\t[-1] = 1,",
                    "\t\t[0] = 0,", "\t},", "}"}));
    EXPECT_EQ(hub.ReadSetting("Security/ClientChecker/ClientVersions.tbl"), clients);
}

TEST_F(ClientCheckerRebuild, AFreshTreeGetsTheDefaultsAndAnEmptyClientList) {
    Rebuild(1);
    EXPECT_EQ(hub.ReadSetting("Security/ClientChecker/ClientCheckerSettings.tbl"),
              Crlf({"tClientCheckerSettings = {", "\tsAction = \"T\",", "\tiBanTime = 60,",
                    "\ttBlock = {", "\t\tbSockets = 0,", "\t\tbPassive = 0,", "\t\tbActive = 0,",
                    "\t\tbUndeclared = 0,", "\t},", "\ttEnabledProfiles = {", "\t\t[-1] = 0,",
                    "\t\t[0] = 0,", "\t\t[1] = 0,", "\t},", "}"}));
    EXPECT_EQ(hub.ReadSetting("Security/ClientChecker/ClientVersions.tbl"),
              Crlf({"tClientVersions = {", "}"}));
}

}  // namespace
}  // namespace qb::pages
