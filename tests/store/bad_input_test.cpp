// Files no writer makes: binary bytes, NUL bytes, huge line counts, huge profile files. Every
// reader gives what its rules say, without crashing.

#include <gtest/gtest.h>

#include <random>

#include "store/fatal_error.h"
#include "store/hub_profiles.h"
#include "store/table_files.h"
#include "support/temp_hub.h"

namespace qb::store {
namespace {

class BadInput : public ::testing::Test {
  protected:
    test::TempHub hub;
    TableFiles files{hub.ProgramFolder()};
};

std::string RandomBytes(size_t size, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(size, '\0');
    for (char& c : bytes)
        c = static_cast<char>(random() & 0xFF);
    return bytes;
}

TEST_F(BadInput, ABinaryFileReadsAsTheRulesSay) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        hub.WriteSetting("bin.tbl", RandomBytes(64 * 1024, seed));
        EXPECT_NO_THROW(files.ReadTableValue("bin.tbl", "x", "tA"));
        EXPECT_NO_THROW(files.LoadFileNameRows("bin.tbl", "tA"));
        EXPECT_NO_THROW(files.ReadTextFile("bin.tbl"));
        // Readers that hand a second failing line to their caller may do so here; nothing else.
        try {
            files.LoadTableRows("bin.tbl", "*", "", false, false);
            files.ReadTableFlag("bin.tbl", "tA", "x");
            files.ApplyTableValues("bin.tbl", "tA");
        } catch (const FatalError& error) {
            EXPECT_NE(error.Reason().find("line"), std::string::npos);
        }
    }
}

TEST_F(BadInput, NulBytesAreOrdinaryBytes) {
    using namespace std::string_literals;
    const std::string text = "tA = {\r\n\ts\0Key = \"a\0b\",\r\n\tsKey = \"c\",\r\n}\r\n"s;
    hub.WriteSetting("nul.tbl", text);
    EXPECT_EQ(files.ReadTableValue("nul.tbl", "s\0Key"s, "tA"), "a\0b"s);
    EXPECT_EQ(files.ReadTableValue("nul.tbl", "sKey", "tA"), "c");
    const auto rows = files.LoadTableRows("nul.tbl", "=", "tA", false, false);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].text, "s\0Key"s);
    EXPECT_EQ(files.ReadTextFile("nul.tbl"), text);
}

TEST_F(BadInput, AHundredThousandLines) {
    std::string text = "tA = {\r\n";
    for (int i = 0; i < 100000; ++i)
        text += "\t[\"k" + std::to_string(i) + "\"] = \"v\",\r\n";
    text += "\tsLast = \"end\",\r\n}\r\n";
    hub.WriteSetting("big.tbl", text);
    EXPECT_EQ(files.ReadTableValue("big.tbl", "k4998", "tA"), "v");
    EXPECT_EQ(files.ReadTableValue("big.tbl", "sLast", "tA"), "");  // past line 5000
    EXPECT_EQ(files.LoadTableRows("big.tbl", "=", "tA", false, false).size(), 100001u);  // no limit
    EXPECT_EQ(files.ReadTableFlag("big.tbl", "tA", "sLast"), "end");
    EXPECT_EQ(files.LoadFileNameRows("big.tbl", "tA").size(), 4999u);  // lines 2 to 5000
    EXPECT_EQ(files.ReadTextFile("big.tbl"), "");
    EXPECT_TRUE(files.SlotStuck());
}

TEST_F(BadInput, TenThousandProfiles) {
    std::string xml = "<?xml version=\"1.0\"?>\r\n<Profiles>\r\n";
    for (int i = 0; i < 10000; ++i) {
        xml += "    <Profile>\r\n        <Name>P" + std::to_string(i) +
               "</Name>\r\n    </Profile>\r\n";
    }
    xml += "</Profiles>\r\n";
    hub.Write("cfg/Profiles.xml", xml);
    const HubProfiles profiles = LoadHubProfiles(files, "cfg\\Profiles.xml");
    ASSERT_EQ(profiles.names.size(), 10000u);
    EXPECT_EQ(profiles.names.back(), "P9999");
    EXPECT_EQ(profiles.text, xml);
}

TEST_F(BadInput, AProfileFileWithoutClosingTagsHasNoProfiles) {
    hub.Write("cfg/Profiles.xml", "<Profiles>\n<Profile>\n<Name>Master\n<Name>Operator\n");
    const HubProfiles profiles = LoadHubProfiles(files, "cfg\\Profiles.xml");
    EXPECT_TRUE(profiles.names.empty());
    EXPECT_EQ(profiles.text, "<Profiles>\r\n<Profile>\r\n<Name>Master\r\n<Name>Operator\r\n");
}

TEST_F(BadInput, ABinaryProfileFile) {
    hub.Write("cfg/Profiles.xml", RandomBytes(256 * 1024, 7) + "\n<Name>Real</Name>\n");
    EXPECT_EQ(LoadHubProfiles(files, "cfg\\Profiles.xml").names.back(), "Real");
}

}  // namespace
}  // namespace qb::store
