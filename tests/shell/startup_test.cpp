// Start-up over whole trees: what the end-to-end cases can't easily see.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <sstream>

#include "pages/general/news.h"
#include "pages/pages.h"
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
    StartResult Start() {
        Container container(files, host, registry);
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

}  // namespace
}  // namespace qb::shell
