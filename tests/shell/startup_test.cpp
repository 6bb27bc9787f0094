// Start-up over whole trees: what the end-to-end cases can't easily see.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <sstream>

#include "pages/general/news.h"
#include "pages/pages.h"
#include "shell/about.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "store/backups.h"
#include "store/fatal_error.h"
#include "support/temp_hub.h"

namespace qb::shell {
namespace {

namespace fs = std::filesystem;
using test::Crlf;

class StartUp : public ::testing::Test {
  protected:
    StartUp() {
        pages::RegisterAllPages(registry);
        pages::RegisterAllBuilders(builders);
        hub.Write("cfg/Profiles.xml",
                  Crlf({"<Profiles>", "\t<Name>Master</Name>", "\t<Name>Op&amp;s</Name>",
                        "\t<Name>R\xE9g</Name>", "</Profiles>"}));
        hub.Write("scripts/Vandrell's Scripts/News/News.tbl",
                  Crlf({"tNews = {", "\t[1] = \"d|h|s|1\",", "}"}));
    }

    // A start as the main window makes it, answering the one prompt with OK.
    StartResult Start(store::ProgramVersion version = store::kBuildVersion) {
        Container container(files, host, registry, version);
        host.QueueAnswer(Answer::OK);
        const StartResult result = RunStartChecks(container, builders);
        if (result == StartResult::Ready) pages::LoadNews(files, container.News(), nullptr);
        return result;
    }

    int Prompts() const {
        const std::string text = transcript.str();
        return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    }

    // Every file and folder of the hub but the backups, which each rebuild adds to.
    std::map<std::string, std::string> Snapshot() const {
        std::map<std::string, std::string> tree;
        for (const auto& entry : fs::recursive_directory_iterator(hub.Root())) {
            const std::string path = fs::relative(entry.path(), hub.Root()).string();
            if (path.find("Settings-backups") != std::string::npos) continue;
            tree[path] = entry.is_regular_file() ? hub.Read(path) : "(folder)";
        }
        return tree;
    }

    test::TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    std::ostringstream transcript;
    ScriptedHost host{transcript};
    PageRegistry registry;
    store::BuilderRegistry builders;
};

TEST_F(StartUp, TwoRebuildsInARowLeaveEveryFileAsTheFirstWroteIt) {
    ASSERT_EQ(Start(), StartResult::Ready);
    const auto first = Snapshot();
    ASSERT_GT(first.size(), 100u);
    hub.WriteSetting("General/Globals/Version.tbl",
                     "tVersion = {\r\n\tsVersion = \"1.0\",\r\n}\r\n");
    ASSERT_EQ(Start(), StartResult::Ready);
    EXPECT_EQ(Snapshot(), first);
    EXPECT_EQ(Prompts(), 2);
    // The second rebuild kept the tree it replaced, under the version that tree had.
    const auto backups = store::ListBackups(hub.Settings());
    ASSERT_FALSE(backups.empty());
    EXPECT_TRUE(backups.front().name.ends_with("-1.0.tar.gz")) << backups.front().name;
}

TEST_F(StartUp, ARebuildStoppedHalfWayAsksAgainAtTheNextStart) {
    const fs::path settings = hub.Settings() / "General" / "Globals" / "GeneralSettings.tbl";
    hub.WriteSetting("General/Globals/GeneralSettings.tbl", "tGeneralSettings = {\r\n}\r\n");
    fs::permissions(settings, fs::perms::owner_read);
    EXPECT_THROW(Start(), store::FatalError);
    // The areas before the failure are built; the stamp, written last, isn't.
    EXPECT_TRUE(fs::exists(hub.Settings() / "General" / "Bots" / "BotSettings.tbl"));
    EXPECT_FALSE(fs::exists(hub.Settings() / "General" / "Globals" / "Version.tbl"));

    fs::permissions(settings, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(Start(), StartResult::Ready);
    EXPECT_EQ(hub.ReadSetting("General/Globals/Version.tbl"),
              Crlf({"tVersion = {", "\tsVersion = \"5.3.0\",", "}"}));
    EXPECT_EQ(Prompts(), 2);
}

// One hub started as 5.3.0, 6.0.0, 5.3.0 and 6.0.0: each switch is a version change that asks
// and merges; the archive's folders, nodes and bots come and go with the version, its files stay
// as they are at 5.3.0 and keep their values through the next rebuild as 6.0.0.
TEST_F(StartUp, SwitchingTheVersionEitherWayRebuildsAndTheArchiveFollowsTheMajor) {
    constexpr store::ProgramVersion kFive{5, 3, 0};
    constexpr store::ProgramVersion kSix{6, 0, 0};
    const std::string newItems = "TheVellum/Hyperlink/HyperlinkNewItems.tbl";
    const auto archive = [&] {
        return fs::exists(hub.Settings() / "TheVellum") ? hub.SettingsTree("TheVellum")
                                                        : std::map<std::string, std::string>{};
    };
    struct Seen {
        std::string prompt;
        bool archiveNodes;
        size_t botRows;
        std::string caption;
        std::string about;
        std::string stamp;
    };
    const auto start = [&](store::ProgramVersion version) {
        transcript.str("");
        Container container(files, host, registry, version);
        container.FillNavigation();
        host.QueueAnswer(Answer::OK);
        EXPECT_EQ(RunStartChecks(container, builders), StartResult::Ready);
        Seen seen{transcript.str(),
                  container.Navigation().Find("Hyperlink") != nullptr,
                  0,
                  container.WindowCaption(),
                  AboutBox(version).version,
                  files.ReadTableValue("General\\Globals\\Version.tbl", "sVersion", "")};
        Page* bots = container.Open("General~Bots");
        seen.botRows =
            static_cast<size_t>(static_cast<const ListControl*>(bots->Find("lvwBots"))->Count());
        return seen;
    };
    const std::string asked =
        "message: Vandrell's Quillbook: Version Change Detected: New version detected. Settings "
        "must be rebuilt; continue? -> OK\n";

    const Seen five = start(kFive);
    EXPECT_EQ(five.prompt, asked);
    EXPECT_FALSE(fs::exists(hub.Settings() / "TheVellum"));
    EXPECT_FALSE(five.archiveNodes);
    EXPECT_EQ(five.caption, "Vandrell's Quillbook 5.3.0");
    EXPECT_EQ(five.about, "Version 5.3.0");
    EXPECT_EQ(five.stamp, "5.3.0");

    const Seen six = start(kSix);
    EXPECT_EQ(six.prompt, asked);
    EXPECT_TRUE(six.archiveNodes);
    EXPECT_EQ(six.botRows, five.botRows + 6);
    EXPECT_EQ(six.caption, "Vandrell's Quillbook 6.0.0");
    EXPECT_EQ(six.about, "Version 6.0.0");
    EXPECT_EQ(six.stamp, "6.0.0");
    for (const char* kind : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"})
        EXPECT_TRUE(fs::is_directory(hub.Settings() / "TheVellum" / kind)) << kind;
    // A hand-set value of the archive, out of the spin's range.
    hub.WriteSetting(newItems,
                     "tHyperlinkNewItems = {\r\n\tbEnableNewItems = 0,\r\n"
                     "\tiNumberOfNewItems = 99,\r\n}\r\n");
    const auto archiveAtSix = archive();

    const Seen back = start(kFive);
    EXPECT_EQ(back.prompt, asked);
    EXPECT_FALSE(back.archiveNodes);
    EXPECT_EQ(back.botRows, five.botRows);
    EXPECT_EQ(back.stamp, "5.3.0");
    EXPECT_EQ(archive(), archiveAtSix);

    const Seen again = start(kSix);
    EXPECT_EQ(again.prompt, asked);
    EXPECT_EQ(again.botRows, six.botRows);
    EXPECT_NE(hub.ReadSetting(newItems).find("\tbEnableNewItems = 0,\r\n\tiNumberOfNewItems = 99,"),
              std::string::npos);

    // A second rebuild as 6.0.0 changes nothing.
    const auto tree = Snapshot();
    hub.WriteSetting("General/Globals/Version.tbl", "tVersion = {\r\n\tsVersion = \"x\",\r\n}\r\n");
    start(kSix);
    EXPECT_EQ(Snapshot(), tree);
}

}  // namespace
}  // namespace qb::shell
