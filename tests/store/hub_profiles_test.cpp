// Reading the hub's profiles from its own file: "<Name>" lines only, no XML parser.

#include "store/hub_profiles.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "support/temp_hub.h"

namespace qb::store {
namespace {

std::string Fixture(const char* name) {
    std::ifstream in(std::string(QB_FIXTURES) + "/" + name, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

class Profiles : public ::testing::Test {
  protected:
    HubProfiles Load() { return LoadHubProfiles(files, "cfg\\Profiles.xml"); }
    test::TempHub hub;
    TableFiles files{hub.ProgramFolder()};
};

TEST_F(Profiles, TheHubsOwnFileInEitherLineEnding) {
    for (const char* fixture : {"Profiles.xml", "Profiles-crlf.xml"}) {
        const std::string bytes = Fixture(fixture);
        ASSERT_FALSE(bytes.empty()) << fixture;
        hub.Write("cfg/Profiles.xml", bytes);
        const HubProfiles profiles = Load();
        EXPECT_EQ(profiles.names, (std::vector<std::string>{"Master", "Operator", "VIP", "Reg"}));
        // The text is the file line by line, each line closed by CRLF.
        EXPECT_EQ(profiles.text, Fixture("Profiles-crlf.xml"));
    }
}

TEST_F(Profiles, NamesAreTakenAsTheyStand) {
    hub.Write("cfg/Profiles.xml",
              "<Profiles>\n\t<Name>Ops &amp; Co</Name>\n  <Name>Twin</Name>\n<Name>Twin</Name>\n"
              "<Profile><Name>Nested after content</Name></Profile>\n<Name></Name>\n"
              "<Name>No closing tag\n<Name>X</Name>\n");
    EXPECT_EQ(Load().names, (std::vector<std::string>{"Ops &amp; Co", "Twin", "Twin", "X"}));
}

TEST_F(Profiles, AMissingFileGivesNothingAndNoMessage) {
    const HubProfiles profiles = Load();
    EXPECT_TRUE(profiles.names.empty());
    EXPECT_TRUE(profiles.text.empty());
}

TEST_F(Profiles, AProgramFolderInTheRootHasNoHubFolder) {
    TableFiles atRoot("Z:\\");
    EXPECT_TRUE(LoadHubProfiles(atRoot, "cfg\\Profiles.xml").names.empty());
}

TEST_F(Profiles, TheListNumbersProfilesFromMinusOne) {
    ProfileList list;
    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Text(1), "Unregistered");
    EXPECT_EQ(list.LastNumber(), -1);
    for (const char* name : {"Master", "Operator", "VIP", "Reg"})
        list.Append(name);
    EXPECT_EQ(list.Count(), 5);
    EXPECT_EQ(list.LastNumber(), 3);  // file keys 0 to 3 at rows 2 to 5
    EXPECT_EQ(list.Text(2), "Master");
}

TEST(ProfileName, NeedsACharacterAndAClosingAngleBracket) {
    EXPECT_EQ(ProfileNameOf("<Name>A</Name>"), "A");
    EXPECT_EQ(ProfileNameOf("    <Name>Master</Name>"), "Master");
    EXPECT_EQ(ProfileNameOf("<Name></Name>"), "");
    EXPECT_EQ(ProfileNameOf("<Name>Open"), "");
    EXPECT_EQ(ProfileNameOf("<name>lower</name>"), "");
}

}  // namespace
}  // namespace qb::store
