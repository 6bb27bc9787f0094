// The dry run against the rebuild it stands for: the diffs it lists, applied to the tree as it
// was, must give byte for byte what the real rebuild then writes, and the dry run itself must
// leave every file, folder and time stamp as it found them.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "pages/pages.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "store/change_report.h"
#include "store/cp1252.h"
#include "support/temp_hub.h"

namespace qb::shell {
namespace {

namespace fs = std::filesystem;
using test::Crlf;

// Every file and folder below a root, with its bytes and its time stamp.
struct Entry {
    std::string bytes;
    fs::file_time_type stamp;
    bool operator==(const Entry&) const = default;
};

std::map<std::string, Entry> Snapshot(const fs::path& root) {
    std::map<std::string, Entry> tree;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const std::string path = fs::relative(entry.path(), root).string();
        std::string bytes = "(folder)";
        if (entry.is_regular_file()) {
            std::ifstream in(entry.path(), std::ios::binary);
            bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        }
        tree[path] = {bytes, entry.last_write_time()};
    }
    return tree;
}

// Plays a report's diffs on the files as they are, as a reader of the report would, and gives
// each file's new bytes by its path below the settings folder. A context or removed line that
// isn't the file's fails the test: the diff must describe the file it names.
std::map<std::string, std::string> ApplyReport(const std::string& report,
                                               const fs::path& settings) {
    std::map<std::string, std::string> result;
    std::istringstream in(report);
    std::string line;
    std::vector<std::string> before, after;
    size_t at = 0;  // the next line of `before` not yet taken
    char lastSign = ' ';
    std::string name;
    auto finish = [&] {
        if (name.empty()) return;
        after.insert(after.end(), before.begin() + static_cast<long>(at), before.end());
        std::string bytes;
        for (const std::string& l : after)
            bytes += l;
        result[name] = bytes;
        name.clear();
    };
    while (std::getline(in, line)) {
        if (line.starts_with("--- ")) {
            finish();
            std::string from = line.substr(4);
            std::getline(in, line);
            EXPECT_TRUE(line.starts_with("+++ ")) << line;
            name = store::Utf8ToCp1252(line.substr(4));
            std::replace(name.begin(), name.end(), '\\', '/');
            before.clear();
            after.clear();
            at = 0;
            if (from != "/dev/null") {
                std::ifstream file(settings / store::Cp1252ToUtf8(name), std::ios::binary);
                before =
                    store::LinesWithEnds(std::string(std::istreambuf_iterator<char>(file), {}));
            }
        } else if (line.starts_with("@@ -")) {
            const size_t start = std::stoul(line.substr(4));
            const size_t first = start == 0 ? 0 : start - 1;
            // An empty old side is numbered by the line before it.
            const bool emptyOld = line.find(",0 +") != std::string::npos;
            const size_t upTo = emptyOld ? start : first;
            EXPECT_GE(upTo, at) << line;
            after.insert(after.end(), before.begin() + static_cast<long>(at),
                         before.begin() + static_cast<long>(upTo));
            at = upTo;
        } else if (line.starts_with("\\ ")) {
            // A note gives the end of the line above it. A kept or removed line was taken from
            // the file with its own end; an added line is written with CRLF unless noted.
            if (lastSign == '+') {
                std::string& added = after.back();
                added.resize(added.size() - 2);
                if (line == "\\ line ends in LF") added += "\n";
                if (line == "\\ line ends in CR") added += "\r";
            }
        } else if (!name.empty() && !line.empty() &&
                   (line[0] == ' ' || line[0] == '-' || line[0] == '+')) {
            lastSign = line[0];
            const std::string text = store::Utf8ToCp1252(line.substr(1));
            if (lastSign == '+') {
                after.push_back(text + "\r\n");
                continue;
            }
            EXPECT_LT(at, before.size()) << name << ": " << line;
            if (at >= before.size()) return result;
            const std::string& old = before[at++];
            EXPECT_EQ(old.substr(0, old.find_last_not_of("\r\n") + 1), text)
                << name << ": " << line;
            if (lastSign == ' ') after.push_back(old);
        }
    }
    finish();
    return result;
}

class DryRun : public ::testing::Test {
  protected:
    DryRun() {
        pages::RegisterAllPages(registry);
        pages::RegisterAllBuilders(builders);
        hub.Write("cfg/Profiles.xml", test::ProfilesXml(3));
    }

    StartResult Start() {
        Container container(files, host, registry, store::kBuildVersion);
        host.QueueAnswer(Answer::OK);
        return RunStartChecks(container, builders);
    }

    std::string Preview(std::optional<SettingsChange>& change) {
        Container container(files, host, registry, store::kBuildVersion);
        store::ChangeRecord record;
        change = RecordStart(container, builders, record);
        return DescribeRecord(container, record);
    }

    // The dry run writes nothing, and its diffs are what the rebuild then writes.
    void ExpectPreviewIsTheRebuild(SettingsChange expected) {
        const auto before = Snapshot(hub.Root());
        std::optional<SettingsChange> change;
        const std::string report = Preview(change);
        EXPECT_EQ(change, expected);
        EXPECT_EQ(Snapshot(hub.Root()), before) << "the dry run touched the tree";

        const auto promised = ApplyReport(report, hub.Settings());
        ASSERT_FALSE(promised.empty());
        ASSERT_EQ(Start(), StartResult::Ready);
        const auto rebuilt = hub.SettingsTree();
        for (const auto& [path, bytes] : promised) {
            const auto found = rebuilt.find(path);
            ASSERT_NE(found, rebuilt.end()) << path << " was promised and not written";
            EXPECT_EQ(found->second, bytes) << path;
        }
        // Every file the rebuild made or changed was in the report.
        for (const auto& [path, bytes] : rebuilt) {
            const auto old = before.find(fs::relative(hub.Settings() / path, hub.Root()).string());
            if (old == before.end() || old->second.bytes != bytes) {
                EXPECT_TRUE(promised.contains(path)) << path << " changed without a diff";
            }
        }
    }

    test::TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    std::ostringstream transcript;
    ScriptedHost host{transcript};
    PageRegistry registry;
    store::BuilderRegistry builders;
};

TEST_F(DryRun, OnAFreshTreeListsEveryFileAsNewAndMakesNoFolder) {
    ExpectPreviewIsTheRebuild(SettingsChange::Version);
}

TEST_F(DryRun, AfterANewProfileShowsTheRowsTheRebuildAdds) {
    ASSERT_EQ(Start(), StartResult::Ready);
    hub.Write("cfg/Profiles.xml", test::ProfilesXml(4));
    ExpectPreviewIsTheRebuild(SettingsChange::Profiles);
}

TEST_F(DryRun, AfterANewVersionShowsHandEditsMergedAndLineEndsMended) {
    ASSERT_EQ(Start(), StartResult::Ready);
    hub.WriteSetting("General/Globals/Version.tbl",
                     "tVersion = {\r\n\tsVersion = \"5.2.9\",\r\n}\r\n");
    // A file saved on Linux with bare line feeds and no end on its last line, a key the program
    // no longer knows, and a value in Windows-1252 that must come through the diff unchanged.
    hub.WriteSetting("General/Globals/GeneralSettings.tbl",
                     "tGeneralSettings = {\n\tsBorder = \"\xBB\xAB\",\n\tsGone = 1,\n}");
    ExpectPreviewIsTheRebuild(SettingsChange::Version);
}

TEST_F(DryRun, WithNothingDueShowsNoDiffAndWritesNothing) {
    ASSERT_EQ(Start(), StartResult::Ready);
    const auto before = Snapshot(hub.Root());
    std::optional<SettingsChange> change;
    const std::string report = Preview(change);
    EXPECT_FALSE(change.has_value());
    EXPECT_EQ(report.find("--- "), std::string::npos) << report;
    EXPECT_EQ(Snapshot(hub.Root()), before);
}

TEST(UnifiedDiff, ShowsTextInUtf8AndNotesEveryLineEndThatIsNotCrlf) {
    const std::string diff =
        store::UnifiedDiff("a\r\nb\nc\r\xE9", "a\r\nb\r\nc\r\n\xE9\r\n", "old", "new");
    EXPECT_EQ(diff,
              "--- old\n+++ new\n@@ -1,4 +1,4 @@\n a\n-b\n\\ line ends in LF\n-c\n\\ line ends in "
              "CR\n-\xC3\xA9\n\\ No newline at end of file\n+b\n+c\n+\xC3\xA9\n");
    EXPECT_EQ(store::UnifiedDiff("same\r\n", "same\r\n", "a", "b"), "");
}

TEST(UnifiedDiff, KeepsThreeLinesOfContextAndSplitsDistantChanges) {
    std::string before, after;
    for (int i = 1; i <= 20; ++i) {
        before += std::to_string(i) + "\r\n";
        after += (i == 2 || i == 18 ? "x" : std::to_string(i)) + "\r\n";
    }
    const std::string diff = store::UnifiedDiff(before, after, "a", "b");
    EXPECT_NE(diff.find("@@ -1,5 +1,5 @@\n 1\n-2\n+x\n 3\n 4\n 5\n"), std::string::npos) << diff;
    EXPECT_NE(diff.find("@@ -15,6 +15,6 @@\n 15\n 16\n 17\n-18\n+x\n 19\n 20\n"), std::string::npos)
        << diff;
}

}  // namespace
}  // namespace qb::shell
