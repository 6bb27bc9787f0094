// The news at start: what reaches the status bar, and what is written back to the shared folder.

#include <gtest/gtest.h>

#include <filesystem>

#include "pages/general/news.h"
#include "support/temp_hub.h"

namespace qb::pages {
namespace {

namespace fs = std::filesystem;
using test::Crlf;

constexpr const char* kNews = "scripts/Vandrell's Scripts/News/News.tbl";
constexpr const char* kSettings = "scripts/Vandrell's Scripts/News/NewsSettings.tbl";

class News : public ::testing::Test {
  protected:
    void SetUp() override { fs::create_directories(hub.Scripts() / "Vandrell's Scripts" / "News"); }
    void Load() { LoadNews(files, lvwNews, &stsContainer); }
    test::TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    shell::ListControl lvwNews{"lvwNews"};
    shell::StatusBar stsContainer{"stsContainer", 4};
};

TEST_F(News, WithoutNewsFilesTheStartWritesAnEmptyTableAndLastIdZero) {
    Load();
    EXPECT_EQ(lvwNews.Count(), 0);
    EXPECT_EQ(hub.Read(kNews), Crlf({"tNews = {", "}"}));
    EXPECT_EQ(hub.Read(kSettings), Crlf({"tNewsSettings = { ", "\tiLastID = 0,", "}"}));
    EXPECT_EQ(stsContainer.Panel(3).text, "");
    EXPECT_EQ(stsContainer.Panel(4).text, "");
}

TEST_F(News, TheLastRowReachesTheStatusBarAndEveryRowIsWrittenBack) {
    const std::string news = Crlf({"tNews = {", "\t[7] = \"2024-01-02|First|The first story|1\",",
                                   "\t[9] = \"2024-03-04|Second|The second story|3\",", "}"});
    hub.Write(kNews, news);
    hub.Write(kSettings, Crlf({"tNewsSettings = {", "\tiLastID = 9,", "}"}));
    Load();
    ASSERT_EQ(lvwNews.Count(), 2);
    EXPECT_EQ(lvwNews.Row(2).text, "2024-03-04");
    EXPECT_EQ(lvwNews.Row(2).cells,
              (std::vector<std::string>{"Second", "The second story", "3", "9"}));
    EXPECT_EQ(stsContainer.Panel(3).text, "Second");
    EXPECT_EQ(stsContainer.Panel(3).tip, "Click to read news");
    EXPECT_EQ(stsContainer.Panel(4).text, "The second story");
    EXPECT_EQ(hub.Read(kNews), news);
    EXPECT_EQ(hub.Read(kSettings), Crlf({"tNewsSettings = { ", "\tiLastID = 9,", "}"}));
}

TEST_F(News, AStoryHoldingABarShiftsItsFieldsAndLosesTheLastOne) {
    hub.Write(kNews, Crlf({"tNews = {", "\t[1] = \"d|h|one|two|2\",", "}"}));
    Load();
    EXPECT_EQ(lvwNews.Cell(1, 4), "two");  // the symbol column
    EXPECT_EQ(hub.Read(kNews), Crlf({"tNews = {", "\t[1] = \"d|h|one|two\",", "}"}));
}

TEST_F(News, AMalformedRowEndsTheNewsThereAndIsWrittenBackAsFarAsItWasRead) {
    hub.Write(kNews, Crlf({"tNews = {", "\t[1] = \"d1|h1|s1|1\",", "\t[2] = \"d2|h2\",",
                           "\t[3] = \"d3|h3|s3|3\",", "}"}));
    shell::ListControl page{"lvwNews"};
    AddNewsColumns(page);
    EXPECT_FALSE(LoadNewsRows(files, page));
    EXPECT_EQ(page.Count(), 2);

    Load();
    EXPECT_EQ(stsContainer.Panel(3).text, "h2");
    EXPECT_EQ(stsContainer.Panel(4).text, "");
    EXPECT_EQ(hub.Read(kNews),
              Crlf({"tNews = {", "\t[1] = \"d1|h1|s1|1\",", "\t[2] = \"d2|h2||\",", "}"}));
}

TEST_F(News, ALastIdThatIsNoNumberLeavesBothFilesAsTheyWere) {
    const std::string news = Crlf({"tNews = {", "\t[1] = \"d|h|s|1\",", "}"});
    const std::string settings = Crlf({"tNewsSettings = {", "\tiLastID = seven,", "}"});
    hub.Write(kNews, news);
    hub.Write(kSettings, settings);
    Load();
    EXPECT_EQ(hub.Read(kNews), news);
    EXPECT_EQ(hub.Read(kSettings), settings);
}

TEST_F(News, AFileThatCantBeWrittenCostsTheNewsButNotTheProgram) {
    const std::string news = "tNews = {\n\t[1] = \"d|h|s|1\",\n}\n";  // a rewrite would add CRs
    hub.Write(kNews, news);
    fs::create_directories(hub.Root() / kSettings);  // written first, and it can't be
    EXPECT_NO_THROW(Load());
    EXPECT_EQ(lvwNews.Count(), 1);
    EXPECT_EQ(stsContainer.Panel(3).text, "");
    EXPECT_EQ(hub.Read(kNews), news);
}

}  // namespace
}  // namespace qb::pages
