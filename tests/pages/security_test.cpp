// The security pages' files through a rebuild, what their dialogs ask, and the inputs their
// readers take as they stand.

#include <gtest/gtest.h>

#include "pages/pages.h"
#include "store/fatal_error.h"
#include "support/area_rebuild.h"
#include "support/page_harness.h"

namespace qb::pages {
namespace {

using test::Crlf;

class SecurityRebuild : public test::AreaRebuild {
  protected:
    SecurityRebuild() : AreaRebuild(store::Area::Security, "Security/") {}
};

// A profile group of a pair file, or a pair file of `groups` with the same rows in each.
std::vector<std::string> Group(const std::string& by, const std::vector<std::string>& rows) {
    std::vector<std::string> lines{"\t[" + by + "] = {"};
    for (const std::string& row : rows)
        lines.push_back("\t\t" + row + ",");
    lines.push_back("\t},");
    return lines;
}
std::string Lines(std::vector<std::string> lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}
std::string PairFile(const std::string& table,
                     const std::vector<std::vector<std::string>>& groups) {
    std::vector<std::string> lines{table + " = {"};
    for (const auto& group : groups)
        lines.insert(lines.end(), group.begin(), group.end());
    lines.push_back("}");
    return Lines(lines);
}

// A table of the six rule texts as the rules page writes it, one of them set.
std::vector<std::string> Texts(const std::string& table, const std::string& key,
                               const std::string& text) {
    std::vector<std::string> lines{"\t" + table + " = {"};
    for (const char* rule :
         {"MinShare", "MaxShare", "MinSlots", "MaxSlots", "MaxHubs", "HubSlotRatio"}) {
        lines.push_back("\t\ts" + std::string(rule) + " = \"" + (rule == key ? text : "") + "\",");
    }
    lines.push_back("\t},");
    return lines;
}
// The rules file: both tables of texts, then the profiles' groups.
std::string RulesFile(const std::vector<std::vector<std::string>>& groups) {
    std::vector<std::string> lines{"tProfileRules = {"};
    for (const auto& table :
         {Texts("tMessages", "MinShare", "Share more"), Texts("tRedirects", "MaxHubs", "hub:411")})
        lines.insert(lines.end(), table.begin(), table.end());
    for (const auto& group : groups)
        lines.insert(lines.end(), group.begin(), group.end());
    lines.push_back("}");
    return Lines(lines);
}

// What a new tree holds where the builders don't simply write their defaults.
TEST_F(SecurityRebuild, AFreshTreeHasNoCheckDelayCrossedAddressTablesAndRegProfilesThree) {
    Rebuild(2);
    // bEnableRedirectLog takes another key's default, the delay none at all.
    EXPECT_EQ(Read("ProfileRules/ProfileRuleSettings.tbl"),
              Crlf({"tProfileRuleSettings = {", "\tbEnableRedirectLog = 1,", "\tiCheckDelay = ,",
                    "\ttEnabledGetProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},",
                    "\ttEnabledSetProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 0,", "\t},", "}"}));
    EXPECT_EQ(Read("AntiAdvertise/AntiAdvertiseAllowedAddresses.tbl"),
              Crlf({"tAntiAdvertiseBlockedAddresses = {", "}"}));
    EXPECT_EQ(Read("AntiAdvertise/AntiAdvertiseBlockedAddresses.tbl"),
              Crlf({"tAntiAdvertiseAllowedAddresses = {", "}"}));
    EXPECT_EQ(Read("Registration/RegistrationSettings.tbl"),
              Crlf({"tRegistrationSettings = {", "\tbAllowRegme = 1,", "\tbKeepLog = 1,",
                    "\tsPrefix = \"\",", "\tiRegProfiles = 3,", "}"}));
    EXPECT_EQ(Read("Kick/KickAscii.asc"), "!victim!: !reason!\r\n");
    for (const auto& [file, table] : std::vector<std::pair<std::string, std::string>>{
             {"Kick/Logs/KickLog.tbl", "tKickLog"},
             {"Kick/Logs/KickerLog.tbl", "tKickerLog"},
             {"ProfileRules/ProfileRulesExemptUsers.tbl", "tProfileRulesExemptUsers"}}) {
        EXPECT_EQ(Read(file), Crlf({table + " = {", "}"})) << file;
    }
    // The page's time ban file is no builder's.
    EXPECT_FALSE(std::filesystem::exists(hub.Settings() / "Security/Kick/KickCanTimeBan.tbl"));
    EXPECT_TRUE(std::filesystem::exists(hub.Settings() / "Security/Kick/KickCanTempBan.tbl"));
}

// Each file as its page saved it, then a profile added at the hub: every value stays with its
// profile number and the new one takes its default, but for what each rebuild resets.
TEST_F(SecurityRebuild, AProfileAddedKeepsValuesByNumberAndResetsWhatEachRebuildResets) {
    Write("ProfileRules/ProfileRules.tbl",
          RulesFile({Group("-1", {"iMinShare = 1024", "iMaxShare = 0", "iMinSlots = 2",
                                  "iMaxSlots = 9", "iMaxHubs = 4", "sHubSlotRatio = \"1/2\""}),
                     Group("0", {"iMinShare = 5", "iMaxShare = 6", "iMinSlots = 0", "iMaxSlots = 0",
                                 "iMaxHubs = 0", "sHubSlotRatio = \"\""})}));
    Write("ProfileRules/ProfileRuleSettings.tbl",
          Crlf({"tProfileRuleSettings = {", "\tbEnableRedirectLog = 0,", "\tiCheckDelay = 30,",
                "\ttEnabledGetProfiles = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t},",
                "\ttEnabledSetProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},", "}"}));
    Write("ProfileRules/ProfileRulesRedirectCounter.tbl",
          Crlf({"tProfileRulesRedirectCounter = {", "\tiMinShare = 7,", "\tiHubSlotRatio = 2,",
                "}"}));
    const std::string exempt = Crlf({"tProfileRulesExemptUsers = {", "\t\"bob\",", "}"});
    Write("ProfileRules/ProfileRulesExemptUsers.tbl", exempt);
    Write("Kick/KickSettings.tbl",
          Crlf({"tKickSettings = {", "\tbAnnounceNextArrival = 0,", "\tbCleanerActive = 1,",
                "\tbAsciiToMain = 1,", "\tiWarnsMakeKick = 3,", "\tiKicksMakeBan = 5,",
                "\tiTimeBansMakeBan = 5,", "\tiKickBanTime = 10,", "\tiCleanOlderThan = 30,",
                "\tiCleanerTime = 1195,", "\tiTopKickers = \"\",", "}"}));
    Write("Kick/KickCanBan.tbl", PairFile("tKickCanBan", {Group("-1", {"[-1] = 0", "[0] = 1"}),
                                                          Group("0", {"[-1] = 1", "[0] = 0"})}));
    const std::string timeBan =
        PairFile("tKickCanTimeBan", {Group("-1", {"[-1] = 1"}), Group("0", {"[-1] = 1"})});
    Write("Kick/KickCanTimeBan.tbl", timeBan);
    Write("Kick/KickAscii.asc", "!victim! is gone\r\n");
    Write("PrivateHub/PrivateHubSettings.tbl",
          Crlf({"tPrivateHubSettings = {", "\tsRedirectAddress = \"dchub://elsewhere\",",
                "\ttRestrictPMs = {", "\t\tiPreventPMTime = 30,", "\t\tbRegBeforePM = 0,", "\t},",
                "\ttDisabled = {", "\t\ttDownloads = {", "\t\t\t[-1] = 1,", "\t\t\t[0] = 0,",
                "\t\t},", "\t\ttProfiles = {", "\t\t\t[-1] = 1,", "\t\t\t[0] = 1,", "\t\t},",
                "\t},", "}"}));
    // As the page saves it: no unregistered users, and the page's own key for the profile.
    Write("Registration/RegistrationAdd.tbl",
          PairFile("tRegistrationAdd", {Group("0", {"[0] = 1"})}));
    Write("Registration/RegistrationSettings.tbl",
          Crlf({"tRegistrationSettings = {", "\tbAllowRegme = 0,", "\tbKeepLog = 1,",
                "\tsPrefix = \"[REG]\",", "\tiRegProfile = 0,", "}"}));
    Write("AntiAdvertise/AntiAdvertiseBlockedActions.tbl",
          Crlf({"tAntiAdvertiseBlockedActions = {", "\tbMain = 0,", "\tbTrivia = 0,", "}"}));
    const std::string blocked = Crlf({"tAntiAdvertiseBlockedAddresses = {", "\t\"ads\",", "}"});
    Write("AntiAdvertise/AntiAdvertiseBlockedAddresses.tbl", blocked);

    Rebuild(3);
    // An emptied ratio takes "0/0" again.
    EXPECT_EQ(
        Read("ProfileRules/ProfileRules.tbl"),
        RulesFile({Group("-1", {"iMinShare = 1024", "iMaxShare = 0", "iMinSlots = 2",
                                "iMaxSlots = 9", "iMaxHubs = 4", "sHubSlotRatio = \"1/2\""}),
                   Group("0", {"iMinShare = 5", "iMaxShare = 6", "iMinSlots = 0", "iMaxSlots = 0",
                               "iMaxHubs = 0", "sHubSlotRatio = \"0/0\""}),
                   Group("1", {"iMinShare = 0", "iMaxShare = 0", "iMinSlots = 0", "iMaxSlots = 0",
                               "iMaxHubs = 0", "sHubSlotRatio = \"0/0\""})}));
    EXPECT_EQ(Read("ProfileRules/ProfileRuleSettings.tbl"),
              Crlf({"tProfileRuleSettings = {", "\tbEnableRedirectLog = 0,", "\tiCheckDelay = 30,",
                    "\ttEnabledGetProfiles = {", "\t\t[-1] = 1,", "\t\t[0] = 0,", "\t\t[1] = 0,",
                    "\t},", "\ttEnabledSetProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,",
                    "\t\t[1] = 0,", "\t},", "}"}));
    // The scripts' counts go back to 0 at every rebuild; their list of users stays.
    EXPECT_EQ(Read("ProfileRules/ProfileRulesRedirectCounter.tbl"),
              Crlf({"tProfileRulesRedirectCounter = {", "\tiMinShare = 0,", "\tiMaxShare = 0,",
                    "\tiMinSlots = 0,", "\tiMaxSlots = 0,", "\tiMaxHubs = 0,",
                    "\tiHubSlotRatio = 0,", "}"}));
    EXPECT_EQ(Read("ProfileRules/ProfileRulesExemptUsers.tbl"), exempt);
    // The builder's order; an emptied number takes its default.
    EXPECT_EQ(
        Read("Kick/KickSettings.tbl"),
        Crlf({"tKickSettings = {", "\tiWarnsMakeKick = 3,", "\tiKicksMakeBan = 5,",
              "\tiTimeBansMakeBan = 5,", "\tiKickBanTime = 10,", "\tbAnnounceNextArrival = 0,",
              "\tbCleanerActive = 1,", "\tiCleanOlderThan = 30,", "\tiCleanerTime = 1195,",
              "\tiTopKickers = 10,", "\tbAsciiToMain = 1,", "}"}));
    EXPECT_EQ(Read("Kick/KickCanBan.tbl"),
              PairFile("tKickCanBan", {Group("-1", {"[-1] = 0", "[0] = 1", "[1] = 0"}),
                                       Group("0", {"[-1] = 1", "[0] = 0", "[1] = 0"}),
                                       Group("1", {"[-1] = 0", "[0] = 0", "[1] = 0"})}));
    // The page's TimeBan file keeps its old shape; the text is the user's.
    EXPECT_EQ(Read("Kick/KickCanTimeBan.tbl"), timeBan);
    EXPECT_EQ(Read("Kick/KickAscii.asc"), "!victim! is gone\r\n");
    // The checks stay by number, in the builder's order; the address, the delay and the box
    // take their defaults.
    EXPECT_EQ(
        Read("PrivateHub/PrivateHubSettings.tbl"), Lines([] {
            std::vector<std::string> lines{"tPrivateHubSettings = {", "\tsRedirectAddress = \"\",",
                                           "\ttRestrictPMs = {",      "\t\tiPreventPMTime = 5,",
                                           "\t\tbRegBeforePM = 1,",   "\t},",
                                           "\ttDisabled = {"};
            for (const char* list : {"tProfiles", "tMain", "tPMs", "tDownloads", "tSearches"}) {
                const bool unregistered =
                    list == std::string("tProfiles") || list == std::string("tDownloads");
                const bool first = list == std::string("tProfiles");
                lines.insert(lines.end(),
                             {"\t\t" + std::string(list) + " = {",
                              std::string("\t\t\t[-1] = ") + (unregistered ? "1," : "0,"),
                              std::string("\t\t\t[0] = ") + (first ? "1," : "0,"), "\t\t\t[1] = 0,",
                              "\t\t},"});
            }
            lines.insert(lines.end(), {"\t},", "}"});
            return lines;
        }()));
    // The unregistered users' rows come back as 0; the page's iRegProfile is lost.
    EXPECT_EQ(Read("Registration/RegistrationAdd.tbl"),
              PairFile("tRegistrationAdd", {Group("-1", {"[-1] = 0", "[0] = 0", "[1] = 0"}),
                                            Group("0", {"[-1] = 0", "[0] = 1", "[1] = 0"}),
                                            Group("1", {"[-1] = 0", "[0] = 0", "[1] = 0"})}));
    EXPECT_EQ(Read("Registration/RegistrationSettings.tbl"),
              Crlf({"tRegistrationSettings = {", "\tbAllowRegme = 0,", "\tbKeepLog = 1,",
                    "\tsPrefix = \"[REG]\",", "\tiRegProfiles = 3,", "}"}));
    EXPECT_EQ(Read("AntiAdvertise/AntiAdvertiseBlockedActions.tbl"),
              Crlf({"tAntiAdvertiseBlockedActions = {", "\tbMain = 0,", "\tbPM = 1,",
                    "\tbNick = 1,", "\tbDescription = 1,", "\tbAnagrams = 1,",
                    "\tbCodeBreaker = 1,", "\tbGuessTheNumber = 1,", "\tbHangman = 1,",
                    "\tbNumbers = 1,", "\tbTrivia = 0,", "}"}));
    EXPECT_EQ(Read("AntiAdvertise/AntiAdvertiseBlockedAddresses.tbl"), blocked);

    // A second rebuild changes nothing.
    const auto tree = hub.SettingsTree("Security");
    Rebuild(3);
    EXPECT_EQ(hub.SettingsTree("Security"), tree);
}

// A profile sub-table as the writers lay it out, a row per number from -1.
std::vector<std::string> Profiles(const std::string& table, const std::vector<int>& ticks) {
    std::vector<std::string> lines{"\t" + table + " = {"};
    for (size_t row = 0; row < ticks.size(); ++row) {
        lines.push_back("\t\t[" + std::to_string(static_cast<int>(row) - 1) +
                        "] = " + std::to_string(ticks[row]) + ",");
    }
    lines.push_back("\t},");
    return lines;
}
// A table file of these parts, in this order.
std::string Table(const std::string& table, const std::vector<std::vector<std::string>>& parts) {
    std::vector<std::string> lines{table + " = {"};
    for (const auto& part : parts)
        lines.insert(lines.end(), part.begin(), part.end());
    lines.push_back("}");
    return Lines(lines);
}

// The builders' own orders: the action ahead of its time, the block time last, the immune
// searches and the exempt clones ahead of the enabled ones, Disconnect for the anti-virus.
TEST_F(SecurityRebuild, TheLastPagesFilesAreBuiltInTheBuildersOwnOrder) {
    Rebuild(2);
    const std::vector<int> none{0, 0};
    const std::vector<std::string> ban{"\tsAction = \"T\",", "\tiTempBanTime = 60,"};
    const std::vector<std::pair<std::string, std::string>> built = {
        {"SearchSpy/SearchSpySettings.tbl",
         Table("tSearchSpySettings",
               {Profiles("tImmuneProfiles", none), Profiles("tAllowedProfiles", none)})},
        {"BadNickBlocker/BadNickBlockerSettings.tbl",
         Table("tBadNickBlockerSettings", {ban, Profiles("tExemptProfiles", none)})},
        {"CloneBlocker/CloneBlockerSettings.tbl",
         Table("tCloneBlockerSettings",
               {ban, Profiles("tExemptProfiles", none), Profiles("tEnabledProfiles", none)})},
        {"UserLog/UserLogSettings.tbl",
         Table("tUserLogSettings",
               {{"\tbEnableCleaner = 1,", "\tiCleanOlderThan = 28,", "\tiCleanerTime = 2355,",
                 "\tiTopHubbers = 25,", "\tbEnableSaveTimer = 1,", "\tiSaveTimerInterval = 60,",
                 "\tbEnableFileLog = 1,"},
                Profiles("tEnabledProfiles", none),
                Profiles("tEnabledLogProfiles", none),
                Profiles("tEnabledCleanImmuneProfiles", none)})},
        {"MainBlock/MainBlockSettings.tbl",
         Table("tMainBlockSettings", {Profiles("tEnabledProfiles", none),
                                      Profiles("tExemptProfiles", none),
                                      {"\tiBlockTime = 10,"}})},
        {"MainLock/MainLockSettings.tbl",
         Table("tMainLockSettings",
               {Profiles("tEnabledProfiles", none), Profiles("tExemptProfiles", none)})},
        {"MainCleaner/MainCleanerSettings.tbl",
         Table("tMainCleanerSettings", {Profiles("tEnabledProfiles", none)})},
        {"MainCleaner/MainCleaner.asc", "Cleaned\r\n"},
        {"Rules/Ascii/-1.asc", "\r\n"},
        {"Rules/Ascii/0.asc", "\r\n"},
        {"Report/ReportSettings.tbl",
         Table("tReportSettings", {Profiles("tEnabledProfiles", none)})},
        {"AntiVirus/AntiVirusSettings.tbl",
         Table("tAntiVirusSettings", {{"\tsAction = \"D\",", "\tiTempBanTime = 60,"}})},
        {"PtokaX/PtokaXSettings.tbl",
         Table("tPtokaXSettings",
               {Profiles("tEnabledGetProfiles", none), Profiles("tEnabledSetProfiles", none)})},
        {"SearchSpy/SearchSpyFiles.tbl", Table("tSearchSpyFiles", {})},
        {"BadNickBlocker/BadNickBlockerNickList.tbl", Table("tBadNickBlockerNickList", {})},
        {"CloneBlocker/CloneBlockerExemptUsers.tbl", Table("tCloneBlockerExemptUsers", {})},
        {"UserLog/UserLog.tbl", Table("tUserLog", {})},
        {"UserLog/UserLogImmuneList.tbl", Table("tUserLogImmuneList", {})},
    };
    for (const auto& [file, text] : built)
        EXPECT_EQ(Read(file), text) << file;
    EXPECT_TRUE(std::filesystem::is_directory(hub.Settings() / "Security/UserLog/Logs"));
}

// Files as the pages saved them, the lists and texts as the users and the scripts keep them,
// then a profile added at the hub: every tick stays with its number in the builder's order, an
// emptied value takes its default, a value no control offers stays, the lists and texts are
// left alone, and only the new profile gets a rules text.
TEST_F(SecurityRebuild, TheLastPagesKeepEachValueByNumberAndLeaveTheListsAndTexts) {
    struct File {
        std::string path;
        std::string before;
        std::string after;
    };
    const std::string spyFiles = Table("tSearchSpyFiles", {{"\t[\"a=b\"] = \"T\","}});
    const std::string nicks =
        Table("tBadNickBlockerNickList", {{"\t[1] = \"Alpha\",", "\t[4] = \"Bravo\","}});
    const std::string users = Table("tCloneBlockerExemptUsers", {{"\t[\"Car\"l\"] = 1,"}});
    const std::string log = Table("tUserLog", {{"\t[\"Bob\"] = \"2024-01-01\","}});
    const std::vector<File> written = {
        {"SearchSpy/SearchSpySettings.tbl",
         Table("tSearchSpySettings",
               {Profiles("tAllowedProfiles", {1, 0}), Profiles("tImmuneProfiles", {0, 1})}),
         Table("tSearchSpySettings",
               {Profiles("tImmuneProfiles", {0, 1, 0}), Profiles("tAllowedProfiles", {1, 0, 0})})},
        {"BadNickBlocker/BadNickBlockerSettings.tbl",
         Table("tBadNickBlockerSettings",
               {{"\tiTempBanTime = ,", "\tsAction = \"Q\","}, Profiles("tExemptProfiles", {0, 1})}),
         Table("tBadNickBlockerSettings", {{"\tsAction = \"Q\",", "\tiTempBanTime = 60,"},
                                           Profiles("tExemptProfiles", {0, 1, 0})})},
        {"CloneBlocker/CloneBlockerSettings.tbl",
         Table("tCloneBlockerSettings", {{"\tiTempBanTime = 1000,", "\tsAction = \"K\","},
                                         Profiles("tEnabledProfiles", {1, 0}),
                                         Profiles("tExemptProfiles", {0, 1})}),
         Table("tCloneBlockerSettings", {{"\tsAction = \"K\",", "\tiTempBanTime = 1000,"},
                                         Profiles("tExemptProfiles", {0, 1, 0}),
                                         Profiles("tEnabledProfiles", {1, 0, 0})})},
        {"UserLog/UserLogSettings.tbl",
         Table("tUserLogSettings",
               {{"\tbEnableCleaner = 0,", "\tbEnableSaveTimer = 1,", "\tbEnableFileLog = 0,",
                 "\tiCleanOlderThan = 7,", "\tiCleanerTime = 2400,",
                 "\tiSaveTimerInterval = 86400,", "\tiTopHubbers = ,"},
                Profiles("tEnabledProfiles", {1, 0}),
                Profiles("tEnabledLogProfiles", {0, 1}),
                Profiles("tEnabledCleanImmuneProfiles", {1, 1})}),
         Table("tUserLogSettings",
               {{"\tbEnableCleaner = 0,", "\tiCleanOlderThan = 7,", "\tiCleanerTime = 2400,",
                 "\tiTopHubbers = 25,", "\tbEnableSaveTimer = 1,", "\tiSaveTimerInterval = 86400,",
                 "\tbEnableFileLog = 0,"},
                Profiles("tEnabledProfiles", {1, 0, 0}),
                Profiles("tEnabledLogProfiles", {0, 1, 0}),
                Profiles("tEnabledCleanImmuneProfiles", {1, 1, 0})})},
        {"MainBlock/MainBlockSettings.tbl",
         Table("tMainBlockSettings", {{"\tiBlockTime = 1445,"},
                                      Profiles("tEnabledProfiles", {0, 1}),
                                      Profiles("tExemptProfiles", {1, 0})}),
         Table("tMainBlockSettings", {Profiles("tEnabledProfiles", {0, 1, 0}),
                                      Profiles("tExemptProfiles", {1, 0, 0}),
                                      {"\tiBlockTime = 1445,"}})},
        {"MainLock/MainLockSettings.tbl",
         Table("tMainLockSettings",
               {Profiles("tEnabledProfiles", {1, 1}), Profiles("tExemptProfiles", {0, 1})}),
         Table("tMainLockSettings",
               {Profiles("tEnabledProfiles", {1, 1, 0}), Profiles("tExemptProfiles", {0, 1, 0})})},
        {"MainCleaner/MainCleanerSettings.tbl",
         Table("tMainCleanerSettings", {Profiles("tEnabledProfiles", {0, 1})}),
         Table("tMainCleanerSettings", {Profiles("tEnabledProfiles", {0, 1, 0})})},
        {"Report/ReportSettings.tbl",
         Table("tReportSettings", {Profiles("tEnabledProfiles", {1, 0})}),
         Table("tReportSettings", {Profiles("tEnabledProfiles", {1, 0, 0})})},
        {"AntiVirus/AntiVirusSettings.tbl",
         Table("tAntiVirusSettings", {{"\tiTempBanTime = 5,", "\tsAction = \"\","}}),
         Table("tAntiVirusSettings", {{"\tsAction = \"D\",", "\tiTempBanTime = 5,"}})},
        {"PtokaX/PtokaXSettings.tbl",
         Table("tPtokaXSettings",
               {Profiles("tEnabledGetProfiles", {0, 1}), Profiles("tEnabledSetProfiles", {1, 0})}),
         Table("tPtokaXSettings", {Profiles("tEnabledGetProfiles", {0, 1, 0}),
                                   Profiles("tEnabledSetProfiles", {1, 0, 0})})},
        {"SearchSpy/SearchSpyFiles.tbl", spyFiles, spyFiles},
        {"BadNickBlocker/BadNickBlockerNickList.tbl", nicks, nicks},
        {"CloneBlocker/CloneBlockerExemptUsers.tbl", users, users},
        {"UserLog/UserLog.tbl", log, log},
        {"UserLog/UserLogImmuneList.tbl", "", ""},
        {"MainCleaner/MainCleaner.asc", "Main is clean\r\n", "Main is clean\r\n"},
        {"Rules/Ascii/-1.asc", "No spam\r\n", "No spam\r\n"},
        {"Rules/Ascii/0.asc", "", ""},
        // A profile the hub no longer has keeps its text.
        {"Rules/Ascii/7.asc", "Gone\r\n", "Gone\r\n"},
    };
    for (const File& file : written)
        Write(file.path, file.before);

    Rebuild(3);
    for (const File& file : written)
        EXPECT_EQ(Read(file.path), file.after) << file.path;
    EXPECT_EQ(Read("Rules/Ascii/1.asc"), "\r\n");
    EXPECT_FALSE(std::filesystem::exists(hub.Settings() / "Security/Rules/Ascii/2.asc"));

    const auto tree = hub.SettingsTree("Security");
    Rebuild(3);
    EXPECT_EQ(hub.SettingsTree("Security"), tree);
}

// ---- The pages ------------------------------------------------------------------------------

class SecurityPages : public ::testing::Test, protected test::PageHarness {
  protected:
    SecurityPages() { BuildFor(2, store::Area::Security); }
    shell::Page& Open(const std::string& key) { return *container.OpenFunctionPage(key); }
    template <class C>
    static C& Get(const shell::Page& page, const char* name) {
        return static_cast<C&>(*page.Find(name));
    }
    // Each dialog shown so far, one a line: caption, mode and code; each field's label, value and
    // bounds or items.
    std::string Dialogs() const {
        std::string shown;
        for (const shell::DialogRequest& request : host.requests) {
            shown += request.caption + " [" + request.mode + std::to_string(request.required) + "]";
            for (size_t field = 0; field < request.labels.size(); ++field)
                shown += " | " + request.labels[field] + "=" + request.values[field];
            for (const shell::UpDownBounds& bounds : request.bounds) {
                shown += " (" + std::to_string(bounds.min) + ".." + std::to_string(bounds.max) +
                         "/" + std::to_string(bounds.step) + ")";
            }
            for (const auto& items : request.comboItems) {
                shown += " {";
                for (const std::string& item : items)
                    shown += item + ";";
                shown += "}";
            }
            shown += "\n";
        }
        return shown;
    }
};

TEST_F(SecurityPages, EachRuleOpensItsOwnDialogOnTheRowsValue) {
    hub.WriteSetting("Security/ProfileRules/ProfileRules.tbl", Lines([] {
                         std::vector<std::string> lines{"tProfileRules = {",
                                                        "\ttMessages = {",
                                                        "\t\tsMinShare = \"Too small\",",
                                                        "\t},",
                                                        "\ttRedirects = {",
                                                        "\t\tsMinShare = \"hub:411\",",
                                                        "\t},"};
                         auto group = Group(
                             "-1", {"iMinShare = 2048", "iMaxShare = 5368709120", "iMinSlots = 2",
                                    "iMaxSlots = 9", "iMaxHubs = 4", "sHubSlotRatio = \"1/2\""});
                         lines.insert(lines.end(), group.begin(), group.end());
                         lines.push_back("}");
                         return lines;
                     }()));
    shell::Page& rules = Open("Security~ProfileRules~Rules");
    auto& permissions = Get<shell::ListControl>(rules, "lvwPermissions");
    for (int row = 1; row <= 6; ++row) {
        host.QueueDialog({"Cancel", {}});
        ASSERT_TRUE(permissions.UserDoubleClick(row));
    }
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Get<shell::ListControl>(rules, "lvwMessages").UserDoubleClick(1));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Get<shell::ListControl>(rules, "lvwRedirects").UserDoubleClick(1));
    EXPECT_EQ(Dialogs(),
              "Edit File [E0] | Min Share=2 | Units=KB (0..1000/1) (0..1000/1) {KB;MB;GB;TB;}\n"
              "Edit File [E0] | Max Share=5 | Units=GB (0..1000/1) (0..1000/1) {KB;MB;GB;TB;}\n"
              "Edit Min Slots [E0] | Min Slots=2 (0..10000/1)\n"
              "Edit Max Slots [E0] | Max Slots=9 (0..10000/1)\n"
              "Edit Max Hubs [E0] | Max Hubs=4 (0..10000/1)\n"
              "Edit Hub Slot Ratio [E0] | Hubs=1 | Slots=2 (0..1000/1) (0..1000/1)\n"
              "Edit MinShare Message [E0] | MinShare=Too small\n"
              "Edit MinShare Redirect Address [E0] | MinShare=hub:411\n");
    EXPECT_FALSE(rules.SaveRequired());

    // A right click on a list shows that list's Edit entry alone.
    ASSERT_TRUE(Get<shell::ListControl>(rules, "lvwRedirects").UserRightClick(1));
    EXPECT_FALSE(rules.PopupEntryVisible("mnuOnlyEditEdit"));
    EXPECT_FALSE(rules.PopupEntryVisible("mnuOnlyEditTwoEdit"));
    EXPECT_TRUE(rules.PopupEntryVisible("mnuOnlyEditThreeEdit"));
}

TEST_F(SecurityPages, TheAddressListsAddWithCodeOneAndEditWithCodeZero) {
    shell::Page& addresses = Open("Security~AntiAdvertise~Addresses");
    host.QueueDialog({"OK", {"ads"}});
    ASSERT_TRUE(Get<shell::Toolbar>(addresses, "tlbBlockedAddresses").UserClick("NEW"));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Get<shell::Toolbar>(addresses, "tlbBlockedAddresses").UserClick("EDIT"));
    host.QueueDialog({"Cancel", {}});
    addresses.CallMenuMethod("gMenuSecondAddClick");
    EXPECT_EQ(Dialogs(),
              "Add Blocked Address [A1] | Blocked Address=\n"
              "Edit Blocked Address [E0] | Blocked Address=ads\n"
              "Add Allowed Address [A1] | Allowed Address=\n");
    // The caption isn't the key; the page goes by its key in the open window list.
    EXPECT_EQ(addresses.Caption(), "Security ~ AntiAdvertise");
    EXPECT_EQ(addresses.Tag(), "Security~AntiAdvertise~Addresses");

    const shell::Page& settings = Open("Security~AntiAdvertise~Settings");
    EXPECT_EQ(settings.Find("chkCheckBox(0)")->Tip(),
              "Allows IPs beginning with 0 (such as 0.3.6.0)");
}

// The search spy's dialog lists five actions and starts on Kick; the blockers' dialogs name
// their rows. A new bad nick stands beside itself, where the file's stand beside their numbers.
TEST_F(SecurityPages, TheSearchSpyAndTheBlockersAskInTheirOwnWords) {
    hub.WriteSetting("Security/SearchSpy/SearchSpyFiles.tbl",
                     Crlf({"tSearchSpyFiles = {", "\t[\"mp3\"] = \"T\",", "}"}));
    hub.WriteSetting("Security/CloneBlocker/CloneBlockerExemptUsers.tbl",
                     Crlf({"tCloneBlockerExemptUsers = {", "\t[\"Carl\"] = 1,", "}"}));
    shell::Page& spy = Open("Security~SearchSpy");
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Click(spy, "tlbFiles", "NEW"));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Get<shell::ListControl>(spy, "lvwFiles").UserDoubleClick(1));
    shell::Page& nicks = Open("Security~BadNickBlocker");
    host.QueueDialog({"OK", {"Bart"}});
    ASSERT_TRUE(Click(nicks, "tlbListview", "NEW"));
    host.QueueDialog({"Cancel", {}});
    ASSERT_TRUE(Click(nicks, "tlbListview", "EDIT"));
    shell::Page& clones = Open("Security~CloneBlocker");
    host.QueueDialog({"OK", {"Dora"}});
    clones.CallMenuMethod("gMenuFirstAddClick");
    host.QueueDialog({"Cancel", {}});
    clones.CallMenuMethod("gMenuFirstEditClick");
    const std::string actions = " {Disconnect;Warn;Notify Ops;Kick;Ban;}\n";
    EXPECT_EQ(Dialogs(), "Add File [A1] | File= | Action=Kick" + actions +
                             "Edit File [E0] | mp3 File=mp3 | Action=T" + actions +
                             "Add Bad Nick [A1] | Bad Nick=\n"
                             "Edit Bad Nick [E0] | Bad Nick=Bart\n"
                             "Add Exempt User [A1] | Exempt User=\n"
                             "Edit Exempt User [E0] | Exempt User=Carl\n");
    const auto& badNicks = Get<shell::ListControl>(nicks, "lvwBadNickList");
    EXPECT_EQ(badNicks.Row(1).text, "Bart");
    EXPECT_EQ(badNicks.Cell(1, 2), "Bart");
    const auto& exempt = Get<shell::ListControl>(clones, "lvwExemptUsers");
    ASSERT_EQ(exempt.Count(), 2);
    EXPECT_EQ(exempt.Row(2).text, "Dora");
    EXPECT_EQ(exempt.Cell(2, 2), "");
}

// A number the hub has no profile for shows as it stands and goes back as it was; a pair file
// that lacks rows shows those cells as False and writes them as 0.
TEST_F(SecurityPages, RegistrationKeepsAProfileNumberTheHubLostAndFillsMissingCells) {
    hub.WriteSetting("Security/Registration/RegistrationSettings.tbl",
                     Crlf({"tRegistrationSettings = {", "\tiRegProfile = 7,", "}"}));
    hub.WriteSetting("Security/Registration/RegistrationAdd.tbl",
                     PairFile("tRegistrationAdd", {Group("1", {"[0] = 1"})}));
    shell::Page& registration = Open("Security~Registration");
    EXPECT_EQ(Get<shell::ComboBox>(registration, "cboComboBox").Text(), "7");
    const auto& list = Get<shell::ListControl>(registration, "lvwRegistrations");
    ASSERT_EQ(list.Count(), 4 * 2 * 2);
    std::vector<std::string> add;
    for (int row = 1; row <= 4; ++row)
        add.push_back(list.Cell(row, 4));
    EXPECT_EQ(add, (std::vector<std::string>{"False", "False", "True", "False"}));

    ASSERT_TRUE(Get<shell::CheckBox>(registration, "chkCheckBox(1)").UserSetValue(0));
    ASSERT_TRUE(Get<shell::Toolbar>(registration, "tlbFormToolbar").UserClick("SAVE"));
    EXPECT_EQ(hub.ReadSetting("Security/Registration/RegistrationSettings.tbl"),
              Crlf({"tRegistrationSettings = {", "\tbAllowRegme = 0,", "\tbKeepLog = 0,",
                    "\tsPrefix = \"\",", "\tiRegProfile = 7,", "}"}));
    EXPECT_EQ(hub.ReadSetting("Security/Registration/RegistrationAdd.tbl"),
              PairFile("tRegistrationAdd",
                       {Group("0", {"[0] = 0", "[1] = 0"}), Group("1", {"[0] = 1", "[1] = 0"})}));
}

// The kick permissions find a cell by the names its row shows.
TEST(KickPermissions, TwoProfilesOfOneNameEndTheProgram) {
    test::PageHarness harness;
    harness.hub.Write("cfg/Profiles.xml",
                      Crlf({"<Profiles>", "<Name>Op</Name>", "<Name>Op</Name>", "</Profiles>"}));
    harness.container.LoadProfiles();
    try {
        harness.container.Open("Security~Kicks~Permissions");
        FAIL() << "the page opened";
    } catch (const store::FatalError& error) {
        EXPECT_NE(error.Reason().find("two profiles are named \"Op\""), std::string::npos);
    }
}

}  // namespace
}  // namespace qb::pages
