// Whole trees held to their bytes: what a start's rebuild writes on a hub of 20 profiles, as
// 5.3.0 and as 6.0.0 (the archive included), fresh and merged over an older tree whose values
// were changed by hand. Each tree is kept as a list of its paths with the SHA-256 of each file,
// in tests/fixtures/golden; the rebuild's speed work must leave every byte of it alone.
//
// A change that is meant to alter what a rebuild writes regenerates the lists with
//   QB_UPDATE_GOLDEN=1 build/test/tests/shell_tests --gtest_filter='GoldenTree*'
// and the diff of the lists then shows which files it touched.

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "pages/pages.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "support/temp_hub.h"

namespace qb::shell {
namespace {

namespace fs = std::filesystem;

constexpr store::ProgramVersion kFive{5, 3, 0};
constexpr store::ProgramVersion kSix{6, 0, 0};

class GoldenTree : public ::testing::Test {
  protected:
    GoldenTree() {
        pages::RegisterAllPages(registry);
        pages::RegisterAllBuilders(builders);
    }

    // A start as the window makes it, its rebuild question answered OK.
    void Start(int profiles, store::ProgramVersion version) {
        hub.Write("cfg/Profiles.xml", test::ProfilesXml(profiles));
        store::TableFiles files(hub.ProgramFolder());
        Container container(files, host, registry, version);
        host.QueueAnswer(Answer::OK);
        ASSERT_EQ(RunStartChecks(container, builders), StartResult::Ready);
    }

    // Every folder and file below the hub but the backups, by path: a file with its SHA-256, a
    // folder marked.
    std::map<std::string, std::string> Hashes() const {
        std::map<std::string, std::string> tree;
        for (auto it = fs::recursive_directory_iterator(hub.Root()); it != decltype(it){}; ++it) {
            const fs::directory_entry& entry = *it;
            // The backups a start keeps before it rebuilds are named by the clock; they are not
            // what the rebuild writes.
            if (entry.path().filename() == "Settings-backups") {
                it.disable_recursion_pending();
                continue;
            }
            const std::string path = fs::relative(entry.path(), hub.Root()).generic_string();
            if (entry.is_directory()) {
                tree[path + "/"] = "folder";
                continue;
            }
            const std::string bytes = hub.Read(path);
            tree[path] = QCryptographicHash::hash(
                             QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())),
                             QCryptographicHash::Sha256)
                             .toHex()
                             .toStdString();
        }
        return tree;
    }

    // Compares the hub with the list kept under `name`, or writes the list when asked to.
    void ExpectGolden(const std::string& name) const {
        const fs::path list = fs::path(QB_FIXTURES) / "golden" / (name + ".sha256");
        const std::map<std::string, std::string> actual = Hashes();
        if (std::getenv("QB_UPDATE_GOLDEN") != nullptr) {
            fs::create_directories(list.parent_path());
            std::ofstream out(list, std::ios::binary);
            for (const auto& [path, hash] : actual)
                out << hash << "  " << path << "\n";
            return;
        }
        std::ifstream in(list, std::ios::binary);
        ASSERT_TRUE(in) << list << " is missing";
        std::map<std::string, std::string> expected;
        std::string hash;
        std::string path;
        while (in >> hash && in.ignore(2) && std::getline(in, path))
            expected[path] = hash;
        ASSERT_GT(expected.size(), 300U) << list << " holds too few paths to be a whole tree";
        // Each difference by name, so that a failure says which files changed.
        for (const auto& [file, want] : expected) {
            const auto got = actual.find(file);
            EXPECT_TRUE(got != actual.end() && got->second == want)
                << file << (got == actual.end() ? " is missing" : " differs");
        }
        for (const auto& [file, got] : actual) {
            EXPECT_TRUE(expected.contains(file)) << file << " was not expected";
        }
    }

    // Hand edits all over a built tree: every switch and profile cell that was off is on, so
    // that a merge shows which old values it kept and which rows it added.
    int TurnEveryZeroToOne() const {
        int turned = 0;
        for (const auto& entry : fs::recursive_directory_iterator(hub.Settings())) {
            if (!entry.is_regular_file() || entry.path().extension() != ".tbl") continue;
            std::string bytes = hub.Read(fs::relative(entry.path(), hub.Root()));
            for (size_t at = bytes.find("= 0,"); at != std::string::npos;
                 at = bytes.find("= 0,", at + 4)) {
                bytes[at + 2] = '1';
                ++turned;
            }
            hub.Write(fs::relative(entry.path(), hub.Root()), bytes);
        }
        return turned;
    }

    test::TempHub hub;
    std::ostringstream transcript;
    ScriptedHost host{transcript};
    PageRegistry registry;
    store::BuilderRegistry builders;
};

TEST_F(GoldenTree, FreshTreeAsFiveAndAsSix) {
    Start(20, kFive);
    ExpectGolden("fresh-20-5.3.0");
    // The version change merges over the tree just made and brings in the archive: the same
    // bytes as a fresh tree of 6.0.0.
    Start(20, kSix);
    ExpectGolden("fresh-20-6.0.0");
}

TEST_F(GoldenTree, FreshTreeAsSix) {
    Start(20, kSix);
    ExpectGolden("fresh-20-6.0.0");
}

TEST_F(GoldenTree, MergeOverAnEditedSmallerTree) {
    Start(12, kFive);
    ASSERT_GT(TurnEveryZeroToOne(), 1000);
    // More profiles and another version: every row kept by its number, new rows by default.
    Start(20, kSix);
    ExpectGolden("edited-12-merged-20-6.0.0");
}

}  // namespace
}  // namespace qb::shell
