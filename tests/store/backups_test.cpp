// Backups of the settings tree: what goes into one comes back whole, in one step, and nothing a
// damaged or hostile archive holds reaches the tree.

#include "store/backups.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "store/fatal_error.h"
#include "support/temp_hub.h"

namespace qb::store {
namespace {

namespace fs = std::filesystem;

class Backups : public ::testing::Test {
  protected:
    Backups() {
        hub.WriteSetting("General/Globals/Version.tbl",
                         "tVersion = {\r\n\tsVersion = \"5.2.9\",\r\n}\r\n");
        hub.WriteSetting("Security/Rules/Ascii/R\xC3\xA8gles.asc", "\xBB\xAB no spam \r\n");
        hub.WriteSetting("General/Bots/Bots.tbl", std::string("binary\0bytes\n", 13));
        fs::create_directories(hub.Settings() / "UserActions" / "Jokes" / "JokeFiles");
    }

    // Every entry below the settings folder: a folder, or a file with its bytes.
    std::map<std::string, std::string> Tree() const {
        std::map<std::string, std::string> tree;
        for (const auto& entry : fs::recursive_directory_iterator(hub.Settings())) {
            const std::string path = entry.path().lexically_relative(hub.Settings()).string();
            tree[path] = entry.is_directory() ? "(folder)" : hub.ReadSetting(path);
        }
        return tree;
    }

    test::TempHub hub;
};

TEST_F(Backups, ARestoreBringsBackTheTreeExactlyAndKeepsTheOneItReplaced) {
    const auto original = Tree();
    const auto backup = BackUpSettings(hub.Settings(), "5.2.9");
    ASSERT_TRUE(backup);
    EXPECT_TRUE(backup->filename().string().ends_with("-5.2.9.tar.gz")) << *backup;
    EXPECT_EQ(backup->parent_path(), hub.Settings().parent_path() / "Settings-backups");

    // What a rebuild and the user might do: a value changed, a file made, one removed.
    hub.WriteSetting("General/Globals/Version.tbl",
                     "tVersion = {\r\n\tsVersion = \"5.3.0\",\r\n}\r\n");
    hub.WriteSetting("General/Globals/New.tbl", "new\r\n");
    fs::remove(hub.Settings() / "General" / "Bots" / "Bots.tbl");
    const auto edited = Tree();

    const auto kept = RestoreSettings(hub.Settings(), *backup, "5.3.0");
    EXPECT_EQ(Tree(), original);
    ASSERT_TRUE(kept);
    EXPECT_TRUE(kept->filename().string().ends_with("-5.3.0.tar.gz")) << *kept;
    // Nothing of the swap is left beside the tree.
    for (const auto& entry : fs::directory_iterator(hub.Settings().parent_path())) {
        const std::string name = entry.path().filename().string();
        EXPECT_TRUE(name == "Settings" || name == "Settings-backups") << name;
    }
    // And the restore itself can be undone.
    RestoreSettings(hub.Settings(), *kept, "5.2.9");
    EXPECT_EQ(Tree(), edited);
}

TEST_F(Backups, TheNewestFiveAreKeptAndTheOneBeingRestoredIsNeverPushedOut) {
    std::vector<fs::path> made;
    for (int i = 0; i < 7; ++i) {
        made.push_back(*BackUpSettings(hub.Settings(), "5.2." + std::to_string(i)));
    }
    const auto backups = ListBackups(hub.Settings());
    ASSERT_EQ(backups.size(), 5u);
    for (size_t i = 0; i < backups.size(); ++i) {
        EXPECT_EQ(backups[i].path, made[made.size() - 1 - i]) << "newest first";
    }
    EXPECT_EQ(FindBackup(hub.Settings(), "1"), made.back());
    EXPECT_EQ(FindBackup(hub.Settings(), backups[4].name), made[2]);
    EXPECT_FALSE(FindBackup(hub.Settings(), "6"));
    EXPECT_FALSE(FindBackup(hub.Settings(), "no-such-backup.tar.gz"));

    // Restoring the oldest writes a sixth backup, and the count of five spares the one being
    // restored; the next backup counts it again.
    RestoreSettings(hub.Settings(), made[2], "5.3.0");
    const auto after = ListBackups(hub.Settings());
    ASSERT_EQ(after.size(), 6u);
    EXPECT_EQ(after.back().path, made[2]);
    BackUpSettings(hub.Settings(), "5.3.0");
    EXPECT_EQ(ListBackups(hub.Settings()).size(), 5u);
    EXPECT_FALSE(fs::exists(made[2]));
    EXPECT_FALSE(fs::exists(made[3]));
}

TEST_F(Backups, ADamagedOrHostileArchiveLeavesTheTreeAndTheBackupsAsTheyWere) {
    const fs::path backup = *BackUpSettings(hub.Settings(), "5.2.9");
    const auto tree = Tree();
    const fs::path folder = backup.parent_path();

    // Cut in half, as a full disk in another program might have left it.
    const fs::path cut = folder / "2000-01-01-000000-cut.tar.gz";
    fs::copy_file(backup, cut);
    fs::resize_file(cut, fs::file_size(backup) / 2);
    // An entry that climbs out of the tree.
    const fs::path outside = hub.Root() / "outside.txt";
    std::ofstream(hub.Root() / "evil") << "evil";
    const fs::path hostile = hub.Root() / "hostile.tar.gz";
    ASSERT_EQ(std::system(("tar -czf '" + hostile.string() + "' -C '" + hub.Root().string() +
                           "' --transform 's,^evil,Settings/../outside.txt,' evil")
                              .c_str()),
              0);

    for (const fs::path& bad : {cut, hostile}) {
        const size_t count = ListBackups(hub.Settings()).size();
        EXPECT_THROW(RestoreSettings(hub.Settings(), bad, "5.2.9"), FatalError) << bad;
        EXPECT_EQ(Tree(), tree) << bad;
        EXPECT_EQ(ListBackups(hub.Settings()).size(), count) << bad;
        EXPECT_FALSE(fs::exists(outside));
    }
}

TEST_F(Backups, NoTreeMeansNoBackup) {
    fs::remove_all(hub.Settings());
    EXPECT_FALSE(BackUpSettings(hub.Settings(), ""));
    EXPECT_TRUE(ListBackups(hub.Settings()).empty());
}

}  // namespace
}  // namespace qb::store
