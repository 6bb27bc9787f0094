// The games area through a rebuild: what a fresh tree holds, what a rebuild keeps of a file the
// page or a hand wrote, and the files it never touches once they exist.

#include <gtest/gtest.h>

#include <sys/inotify.h>
#include <unistd.h>

#include <set>
#include <vector>

#include "support/area_rebuild.h"
#include "support/page_harness.h"

namespace qb::pages {
namespace {

using test::Crlf;

// A settings file as the builder writes those of Anagrams, CodeBreaker, GuessTheNumber and
// Hangman: the game's own keys, then the six flags and the archive count, here at their defaults.
std::string Built(std::initializer_list<std::string_view> head) {
    std::string text;
    for (std::string_view line : head)
        text += std::string(line) + "\r\n";
    return text + Crlf({"\tbManualStart = 0,", "\tbOpOnlyStart = 0,", "\tbOpOnlyStop = 0,",
                        "\tbPlayInMain = 1,", "\tbAutoClearScores = 1,", "\tbArchiveScores = 1,",
                        "\tiArchiveScores = 5,", "}"});
}

class GamesRebuild : public test::AreaRebuild {
  protected:
    GamesRebuild() : AreaRebuild(store::Area::Games, "Games/") {}
};

TEST_F(GamesRebuild, AFreshTreeHoldsEveryDefaultInTheBuildersOrder) {
    Rebuild(2);
    EXPECT_EQ(Read("Trivia/TriviaSettings.tbl"), Crlf({"tTriviaSettings = {",
                                                       "\tsHintChar = \"\x95\",",
                                                       "\tbManualStart = 0,",
                                                       "\tbOpOnlyStart = 0,",
                                                       "\tbOpOnlyStop = 0,",
                                                       "\tiFormat = 0,",
                                                       "\tiHintTime = 30,",
                                                       "\tiMaxHints = 5,",
                                                       "\tiQuestions = 15,",
                                                       "\tiQuestionsPause = 10,",
                                                       "\tiTimeOut = 5,",
                                                       "\tiBonusTime = 45,",
                                                       "\tiPoints = 1,",
                                                       "\tiScores = 25,",
                                                       "\tiTopScores = 10,",
                                                       "\tiAutoStartDelay = 93,",
                                                       "\tiScoring = 1,",
                                                       "\tbPlayInMain = 1,",
                                                       "\tbAutoClearScores = 1,",
                                                       "\tbArchiveScores = 1,",
                                                       "\tiArchiveScores = 5,",
                                                       "\tbShowOnlyOneHint = 1,",
                                                       "}"}));
    // The lookup knows sHintChar, not sHiddenChar; the allowed characters stay whole.
    EXPECT_EQ(Read("CodeBreaker/CodeBreakerSettings.tbl"),
              Built({"tCodeBreakerSettings = {", "\tsHiddenChar = \"\",",
                     "\tsAllowedCharacters = \"0123456789\",", "\tiTimeOut = 3,",
                     "\tiQuestions = 20,", "\tiQuestionLength = 3,", "\tiQuestionsTime = 90,",
                     "\tiQuestionsPause = 10,", "\tiTopScores = 10,", "\tiScores = 25,",
                     "\tiPoints = 1,", "\tiAutoStartDelay = 73,"}));
    EXPECT_EQ(Read("Hangman/HangmanSettings.tbl"),
              Built({"tHangmanSettings = {", "\tbUseAscii = 1,", "\tsHiddenChar = \"\x95\",",
                     "\tsAllowedCharacters = \"\",", "\tiLostLifeTime = 30,", "\tiTimeOut = 3,",
                     "\tiQuestions = 10,", "\tiQuestionsPause = 10,", "\tiTopScores = 10,",
                     "\tiScores = 25,", "\tiPoints = 6,", "\tiAutoStartDelay = 67,"}));
    EXPECT_EQ(Read("GuessTheNumber/GuessTheNumberSettings.tbl"),
              Built({"tGuessTheNumberSettings = {", "\tiTimeOut = 3,", "\tiHintTime = 20,",
                     "\tiHints = 5,", "\tiMaxHints = 20,", "\tiQuestions = 12,",
                     "\tiQuestionMin = 1,", "\tiQuestionMax = 500,", "\tiQuestionsPause = 10,",
                     "\tiTopScores = 10,", "\tiScores = 25,", "\tiAutoStartDelay = 111,"}));
    EXPECT_EQ(Read("Anagrams/AnagramSettings.tbl"),
              Built({"tAnagramSettings = {", "\tiTimeOut = 3,", "\tsHintChar = \"\x95\",",
                     "\tiHintTime = 20,", "\tiBonusTime = 10,", "\tiQuestions = 20,",
                     "\tiQuestionsPause = 10,", "\tiTopScores = 10,", "\tiScores = 25,",
                     "\tiPoints = 1,", "\tiAutoStartDelay = 73,"}));
    EXPECT_EQ(Read("Numbers/NumbersSettings.tbl"), Crlf({"tNumbersSettings = {",
                                                         "\tiTimeOut = 3,",
                                                         "\tiBonusTime = 10,",
                                                         "\tiQuestions = 20,",
                                                         "\tiQuestionsPause = 10,",
                                                         "\tiQuestionTime = 20,",
                                                         "\tiTopScores = 10,",
                                                         "\tiScores = 25,",
                                                         "\tiPoints = 1,",
                                                         "\tiAutoStartDelay = 73,",
                                                         "\tbManualStart = 0,",
                                                         "\tbOpOnlyStart = 0,",
                                                         "\tbOpOnlyStop = 0,",
                                                         "\tbPreventCalc = 1,",
                                                         "\tbReportCalc = 1,",
                                                         "\tbCalculateOnFly = 1,",
                                                         "\ttCalculation = {",
                                                         "\t\tsAddition = \"0,10000,0,10000\",",
                                                         "\t\tsSubtraction = \"0,10000,0,10000\",",
                                                         "\t\tsMultiplication = \"0,20,0,100\",",
                                                         "\t\tsDivision = \"1,10,1,50\",",
                                                         "\t},",
                                                         "\tbPlayInMain = 1,",
                                                         "\tbAutoClearScores = 1,",
                                                         "\tbArchiveScores = 1,",
                                                         "\tiArchiveScores = 5,",
                                                         "}"}));
    // The list of question files names its default in brackets, with no tab.
    EXPECT_EQ(Read("Trivia/TriviaQuestionFiles.tbl"),
              Crlf({"tTriviaQuestionFiles = {", "[\"sDefaultQuestionFile\"] = \"TriviaQuestions\",",
                    "}"}));
    EXPECT_EQ(Read("Anagrams/AnagramWords.lst"), "quillbook\r\n");
    EXPECT_EQ(Read("Hangman/HangmanWords.lst"), "quillbook\r\n");
    EXPECT_EQ(Read("Numbers/NumbersQuestions.lst"), "Mathematics: What is 2 Plus 2 = ??*4\r\n");
}

TEST_F(GamesRebuild, EachGameGetsTheThreeFilesTheScriptsFillUnderItsPrefix) {
    Rebuild(2);
    const struct {
        const char* folder;
        const char* prefix;
    } games[] = {{"Trivia", "Trivia"},           {"Anagrams", "Anagram"},
                 {"CodeBreaker", "CodeBreaker"}, {"GuessTheNumber", "GuessTheNumber"},
                 {"Hangman", "Hangman"},         {"Numbers", "Numbers"}};
    for (const auto& game : games) {
        const std::string file = std::string(game.folder) + "/" + game.prefix;
        const std::string table = std::string("t") + game.prefix;
        EXPECT_EQ(Read(file + "Players.tbl"), Crlf({table + "Players = {", "}"})) << file;
        EXPECT_EQ(Read(file + "ScoresArchiveIndex.tbl"),
                  Crlf({table + "ScoresArchiveIndex = {", "}"}))
            << file;
        EXPECT_EQ(Read(file + "Scores.tbl"), Crlf({table + "Scores = {", "\tn=0", "}"})) << file;
    }
}

// The chance games' tables in the builder's own form: the cards spelt with "Of", the chambers
// bare, the payouts' "£" and "§" single bytes; a new comment file's one row stands without its
// tab and comma; the clearers, the slot players and the stages start empty.
TEST_F(GamesRebuild, AFreshTreeHoldsTheChanceGamesTheClearersAndTheStagesInTheBuildersForm) {
    Rebuild(2);
    const std::pair<const char*, std::string> built[] = {
        {"ThreeCardMonty/ThreeCardMontySettings.tbl",
         Crlf({"tThreeCardMontySettings = {", "\tbPlayInMain = 1,", "\tiWager = 1,",
               "\tiMarker = 25,", "\ttDeal = {", "\t\t\"Ace Of Spades\",",
               "\t\t\"Queen Of Hearts\",", "\t\t\"Ace Of Clubs\",", "\t},", "}"})},
        {"ThreeCardMonty/ThreeCardMontyWin.tbl",
         Crlf({"tThreeCardMontyWin = {", "\"The Gods smile upon you, this day\"", "}"})},
        {"ThreeCardMonty/ThreeCardMontyLose.tbl",
         Crlf({"tThreeCardMontyLose = {", "\"You lost. Play again, what else have you got going?\"",
               "}"})},
        {"RussianRoulette/RussianRouletteSettings.tbl",
         Crlf({"tRussianRouletteSettings = {", "\tbInMain = 1,", "\ttBang = {", "\t\tDie,",
               "\t\tLive,", "\t\tDie,", "\t\tDie,", "\t\tDie,", "\t\tDie,", "\t},", "}"})},
        {"RussianRoulette/RussianRouletteLive.tbl",
         Crlf({"tRussianRouletteLive = {", "\"You have survived... for now\"", "}"})},
        {"RussianRoulette/RussianRouletteDie.tbl",
         Crlf({"tRussianRouletteDie = {", "\"You're dead, now whose gonna clean up this mess?\"",
               "}"})},
        {"SlotMachine/SlotMachineSettings.tbl", Crlf({"tSlotMachineSettings = {",
                                                      "\tbInMain = 1,",
                                                      "\tiCredit = 50,",
                                                      "\tiCreditPlay = 2,",
                                                      "\tiCreditLoan = 1000,",
                                                      "\ttResults = {",
                                                      "\t\t[\"Bar\"] = 100,",
                                                      "\t\t[\"7\"] = 50,",
                                                      "\t\t[\"@\"] = 20,",
                                                      "\t\t[\"$\"] = 10,",
                                                      "\t\t[\"\xA3\"] = 5,",
                                                      "\t\t[\"\xA7\"] = 3,",
                                                      "\t\t[\"&\"] = 1,",
                                                      "\t},",
                                                      "\ttAux = {",
                                                      "\t\t100,",
                                                      "\t\t50,",
                                                      "\t\t20,",
                                                      "\t\t10,",
                                                      "\t\t5,",
                                                      "\t\t3,",
                                                      "\t\t1,",
                                                      "\t},",
                                                      "}"})},
        {"SlotMachine/SlotMachinePlayers.tbl", Crlf({"tSlotMachinePlayers = {", "}"})},
        {"Globals/ScoreClearers.tbl", Crlf({"tScoreClearers = {", "}"})},
    };
    for (const auto& [file, text] : built)
        EXPECT_EQ(Read(file), text) << file;
    for (int stage = 0; stage <= 13; ++stage)
        EXPECT_EQ(Read("Hangman/Ascii/" + std::to_string(stage) + ".asc"), "\r\n") << stage;
}

// Files the pages saved, the fixed tables edited by hand: a rebuild keeps each scalar and writes
// the tables back in its own form.
TEST_F(GamesRebuild, ARebuildKeepsTheChanceScalarsAndWritesTheTablesBackInItsForm) {
    Rebuild(2);
    const std::string monty = Read("ThreeCardMonty/ThreeCardMontySettings.tbl");
    const std::string slot = Read("SlotMachine/SlotMachineSettings.tbl");
    Write("ThreeCardMonty/ThreeCardMontySettings.tbl",
          Crlf({"tThreeCardMontySettings = {", "\tbPlayInMain = 0,", "\tiWager = 7,",
                "\tiMarker = 300,", "\ttDeal = {", "\t\t\"Ace of Spades\",", "\t},", "}"}));
    Write("RussianRoulette/RussianRouletteSettings.tbl",
          Crlf({"tRussianRouletteSettings = {", "\tbInMain = 0,", "\ttBang = {", "\t\t\"Live\",",
                "\t},", "}"}));
    Write(
        "SlotMachine/SlotMachineSettings.tbl",
        Crlf({"tSlotMachineSettings = {", "\tbInMain = 0,", "\tiCredit = 55,", "\tiCreditPlay = 9,",
              "\tiCreditLoan = 995,", "\ttResults = {", "\t\t[\"Bar\"] = 1,", "\t},", "}"}));
    Rebuild(2);
    const auto with = [](std::string text, const std::string& from, const std::string& to) {
        text.replace(text.find(from), from.size(), to);
        return text;
    };
    EXPECT_EQ(
        Read("ThreeCardMonty/ThreeCardMontySettings.tbl"),
        with(with(with(monty, "bPlayInMain = 1", "bPlayInMain = 0"), "iWager = 1", "iWager = 7"),
             "iMarker = 25", "iMarker = 300"));
    EXPECT_EQ(Read("RussianRoulette/RussianRouletteSettings.tbl"),
              Crlf({"tRussianRouletteSettings = {", "\tbInMain = 0,", "\ttBang = {", "\t\tDie,",
                    "\t\tLive,", "\t\tDie,", "\t\tDie,", "\t\tDie,", "\t\tDie,", "\t},", "}"}));
    EXPECT_EQ(
        Read("SlotMachine/SlotMachineSettings.tbl"),
        with(with(with(with(slot, "bInMain = 1", "bInMain = 0"), "iCredit = 50", "iCredit = 55"),
                  "iCreditPlay = 2", "iCreditPlay = 9"),
             "iCreditLoan = 1000", "iCreditLoan = 995"));
}

// A file the page saved, then edited by hand: a rebuild keeps every value it finds, in the
// builder's order, fills what is missing and drops what it doesn't know.
TEST_F(GamesRebuild, ARebuildKeepsValuesInItsOwnOrderFillsTheMissingAndDropsTheUnknown) {
    Write(
        "CodeBreaker/CodeBreakerSettings.tbl",
        Crlf({"tCodeBreakerSettings = {", "\tbManualStart = 1,", "\tbOpOnlyStart = 0,",
              "\tbOpOnlyStop = 1,", "\tbPlayInMain = 0,", "\tbAutoClearScores = 1,",
              "\tbArchiveScores = 0,", "\tiArchiveScores = 12,", "\tsAllowedCharacters = \"ABC\",",
              "\tsHiddenChar = \"ab\",", "\tiQuestionLength = 77,", "\tiQuestions = 4,",
              "\tiQuestionsPause = 9,", "\tiBogus = 3,", "\tiPoints = 2,", "\tiScores = 8,",
              "\tiTopScores = 7,", "\tiAutoStartDelay = 600,", "}"}));
    // The page's two blanks in iQuestions, and a row of the operand table missing.
    Write("Numbers/NumbersSettings.tbl",
          Crlf({"tNumbersSettings = {", "\tiQuestions  = 44,", "\ttCalculation = {",
                "\t\tsAddition = \"1,2,3,4\",", "\t\tsSubtraction = \"5,6,7,8\",",
                "\t\tsMultiplication = \"9,9,9,9\",", "\t},", "}"}));
    Rebuild(2);
    // Only a default is cut to its first character: "ab" stays whole.
    EXPECT_EQ(Read("CodeBreaker/CodeBreakerSettings.tbl"), Crlf({"tCodeBreakerSettings = {",
                                                                 "\tsHiddenChar = \"ab\",",
                                                                 "\tsAllowedCharacters = \"ABC\",",
                                                                 "\tiTimeOut = 3,",
                                                                 "\tiQuestions = 4,",
                                                                 "\tiQuestionLength = 77,",
                                                                 "\tiQuestionsTime = 90,",
                                                                 "\tiQuestionsPause = 9,",
                                                                 "\tiTopScores = 7,",
                                                                 "\tiScores = 8,",
                                                                 "\tiPoints = 2,",
                                                                 "\tiAutoStartDelay = 600,",
                                                                 "\tbManualStart = 1,",
                                                                 "\tbOpOnlyStart = 0,",
                                                                 "\tbOpOnlyStop = 1,",
                                                                 "\tbPlayInMain = 0,",
                                                                 "\tbAutoClearScores = 1,",
                                                                 "\tbArchiveScores = 0,",
                                                                 "\tiArchiveScores = 12,",
                                                                 "}"}));
    const std::string numbers = Read("Numbers/NumbersSettings.tbl");
    EXPECT_NE(numbers.find("\tiQuestions = 44,\r\n"), std::string::npos) << numbers;
    EXPECT_NE(numbers.find(
                  std::string("\ttCalculation = {\r\n") + "\t\tsAddition = \"1,2,3,4\",\r\n" +
                  "\t\tsSubtraction = \"5,6,7,8\",\r\n" + "\t\tsMultiplication = \"9,9,9,9\",\r\n" +
                  "\t\tsDivision = \"1,10,1,50\",\r\n\t},\r\n"),
              std::string::npos)
        << numbers;
}

TEST_F(GamesRebuild, FilesTheScriptsOrTheUserFillAreNeverTouchedAndTwoRebuildsAgree) {
    Rebuild(2);
    const char* kept[] = {"Anagrams/AnagramWords.lst",
                          "Hangman/HangmanWords.lst",
                          "Numbers/NumbersQuestions.lst",
                          "Trivia/QuestionFiles/TriviaQuestions.lst",
                          "Trivia/TriviaQuestionFiles.tbl",
                          "Trivia/TriviaScores.tbl",
                          "Hangman/HangmanPlayers.tbl",
                          "Numbers/NumbersScoresArchiveIndex.tbl",
                          "Hangman/Ascii/0.asc",
                          "Hangman/Ascii/13.asc",
                          "ThreeCardMonty/ThreeCardMontyWin.tbl",
                          "ThreeCardMonty/ThreeCardMontyLose.tbl",
                          "RussianRoulette/RussianRouletteLive.tbl",
                          "RussianRoulette/RussianRouletteDie.tbl",
                          "SlotMachine/SlotMachinePlayers.tbl",
                          "Globals/ScoreClearers.tbl"};
    for (const char* file : kept)
        Write(file, std::string("hand-made ") + file);
    Rebuild(2);
    for (const char* file : kept)
        EXPECT_EQ(Read(file), std::string("hand-made ") + file);
    const auto once = hub.SettingsTree("Games");
    Rebuild(2);
    EXPECT_EQ(hub.SettingsTree("Games"), once);
}

// The pages over what the builders wrote: a page's save and the builder's file differ in order
// only, and each reads back as the other.
class GamePages : public ::testing::Test, protected test::PageHarness {
  protected:
    GamePages() {
        hub.Write("cfg/Profiles.xml", test::ProfilesXml(2));
        container.LoadProfiles();
        store::BuilderRegistry builders;
        RegisterAllBuilders(builders);
        store::BuildRun run{.files = files,
                            .lastProfile = container.Profiles().LastNumber(),
                            .version = store::kBuildVersion};
        builders.BuildArea(store::Area::Games, run);
    }
};

// The files of a folder opened since the last look, as the kernel tells of them.
class OpenWatch {
  public:
    explicit OpenWatch(const std::filesystem::path& folder) : fd_(inotify_init1(IN_NONBLOCK)) {
        inotify_add_watch(fd_, folder.c_str(), IN_OPEN);
    }
    ~OpenWatch() { close(fd_); }
    OpenWatch(const OpenWatch&) = delete;
    OpenWatch& operator=(const OpenWatch&) = delete;

    std::vector<std::string> Opened() const {
        std::vector<std::string> names;
        alignas(inotify_event) char buffer[4096];
        for (ssize_t got; (got = read(fd_, buffer, sizeof buffer)) > 0;) {
            for (char* at = buffer; at < buffer + got;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                if (event->len > 0) names.emplace_back(event->name);
                at += sizeof(inotify_event) + event->len;
            }
        }
        return names;
    }

  private:
    int fd_;
};

// A question or word file may hold many thousands of lines: a page reads one only when the user
// asks for it, the trivia editor after a warning.
TEST_F(GamePages, APageReadsNoQuestionOrWordFileUntilTheUserAsks) {
    const struct {
        const char* key;
        const char* folder;
        const char* toolbar;
        const char* button;
        bool warns;
        const char* file;
    } lists[] = {
        {"Games~Trivia~Questions", "Games/Trivia/QuestionFiles", "tlbQuestionFiles", "EDIT", true,
         "TriviaQuestions.lst"},
        {"Games~Anagrams", "Games/Anagrams", "tlbListview", "OPEN", false, "AnagramWords.lst"},
        {"Games~Hangman", "Games/Hangman", "tlbListview", "OPEN", false, "HangmanWords.lst"},
        {"Games~Numbers", "Games/Numbers", "tlbListview", "OPEN", false, "NumbersQuestions.lst"},
    };
    for (const auto& list : lists) {
        SCOPED_TRACE(list.key);
        const OpenWatch watch(hub.Settings() / list.folder);
        const auto listsOpened = [&] {
            std::vector<std::string> opened;
            for (const std::string& name : watch.Opened()) {
                if (name.ends_with(".lst")) opened.push_back(name);
            }
            return opened;
        };
        shell::Page* page = container.Open(list.key);
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(listsOpened(), std::vector<std::string>{});
        if (list.warns) host.QueueAnswer(shell::Answer::OK);
        EXPECT_TRUE(Click(*page, list.toolbar, list.button));
        EXPECT_EQ(listsOpened(), std::vector<std::string>{list.file});
        EXPECT_TRUE(container.Close(*page));
    }
}

TEST_F(GamePages, APageSaveAndTheBuildersFileHoldTheSameValues) {
    for (const char* key : {"Games~Trivia~Settings", "Games~Anagrams", "Games~CodeBreaker",
                            "Games~GuessTheNumber", "Games~Hangman", "Games~Numbers"}) {
        SCOPED_TRACE(key);
        shell::Page* page = container.Open(key);
        ASSERT_NE(page, nullptr);
        const store::FileSchema& file = *page->Files().front();
        const auto values = [&] {
            std::map<std::string, std::string> read;
            for (const store::Field& field : file.fields) {
                if (field.kind == store::FieldKind::NamedValues) {
                    for (const store::ListEntry& row : field.defaultRows)
                        read[row.key] = files.ReadTableValue(file.file, row.key, field.key);
                } else {
                    read[field.key] = files.ReadTableValue(file.file, field.key, "");
                }
            }
            return read;
        };
        const auto built = values();
        static_cast<shell::Toolbar*>(page->Find("tlbFormToolbar"))->onButtonClick("SAVE");
        auto saved = values();
        // The one value the page always writes its own way.
        if (std::string(key) == "Games~Hangman") {
            EXPECT_EQ(saved["sAllowedCharacters"], "ABCDEFGHIJKLMNOPQRSTUVWXYZ-");
            saved["sAllowedCharacters"] = built.at("sAllowedCharacters");
        }
        EXPECT_EQ(saved, built);
        ASSERT_TRUE(container.Close(*page));
    }
}

// Each of the fourteen positions of Hangman's slider opens its own stage, counted down from the
// last; the slider can't be set past either end, and neither it nor EDIT marks the page.
TEST_F(GamePages, EachSliderPositionOpensItsStageCountedDownFromTheLast) {
    host.openTextEditor = [this](const std::string& file, const std::string& mode) {
        container.OpenTextEditor(file, mode);
    };
    shell::Page* page = container.Open("Games~Hangman");
    ASSERT_NE(page, nullptr);
    auto& slider = static_cast<shell::Slider&>(*page->Find("sldAscii"));
    EXPECT_FALSE(slider.UserSetValue(-1));
    EXPECT_FALSE(slider.UserSetValue(14));
    std::set<std::string> opened;
    for (int position = 13; position >= 0; --position) {
        ASSERT_TRUE(slider.UserSetValue(position));
        ASSERT_TRUE(Click(*page, "tlbAscii", "EDIT"));
        shell::Page* editor = container.Active();
        ASSERT_NE(editor, page);
        const std::string file = static_cast<shell::TextBox*>(editor->Find("txtPath"))->Text();
        EXPECT_EQ(file, "Games\\Hangman\\Ascii\\" + std::to_string(13 - position) + ".asc");
        opened.insert(file);
        ASSERT_TRUE(container.Close(*editor));
    }
    EXPECT_EQ(opened.size(), 14u);
    EXPECT_FALSE(page->SaveRequired());
}

}  // namespace
}  // namespace qb::pages
