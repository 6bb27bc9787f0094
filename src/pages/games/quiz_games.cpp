// The six quiz games' settings pages, each a row of the quiz engine's data: its keys, captions,
// defaults and spin limits, its two key orders, and the oddities its page has always had.

#include "pages/games/games.h"

namespace qb::pages {
namespace {

// The bullet of Windows-1252, the hint character the scripts show for a letter not yet found.
const std::string kBullet = "\x95";

// The six flags every game has, in the order both writers put them together.
const std::vector<std::string> kFlags = {"bManualStart", "bOpOnlyStart",     "bOpOnlyStop",
                                         "bPlayInMain",  "bAutoClearScores", "bArchiveScores"};

std::vector<std::string> Keys(std::initializer_list<std::vector<std::string>> parts) {
    std::vector<std::string> keys;
    for (const auto& part : parts)
        keys.insert(keys.end(), part.begin(), part.end());
    return keys;
}

// Boxes 1 to 3 and 5 to 9 of Anagrams, CodeBreaker, Hangman and Numbers: one layout, with the
// game's own box 0 and box 4 (a box with no key is dead) and its own counts of questions, points
// and seconds to wait before it starts.
struct OwnBoxes {
    QuizNumber first;
    QuizNumber fourth;
    std::string questions;
    std::string points;
    std::string autoStartDelay;
};

std::vector<QuizNumber> CommonBoxes(OwnBoxes own) {
    return {std::move(own.first),
            {"iQuestions", "Questions", std::move(own.questions), {0, 999}},
            {"iQuestionsPause", "Pause Between Questions", "10", {0, 1000}},
            {"iTimeOut", "Timeout", "3", {0, 60}},
            std::move(own.fourth),
            {"iPoints", "Points", std::move(own.points), {0, 100}},
            {"iScores", "Top Scores", "25", {0, 100}},
            {"iTopScores", "End Of Game Scores", "10", {0, 200}},
            {"iAutoStartDelay", "Auto Start Delay", std::move(own.autoStartDelay), {1, 1440}},
            // So written on screen.
            {"iArchiveScores", "ScoresTo Archive", "5", {0, 1000}}};
}

QuizText HintBox(std::string key, std::string caption) {
    return {"txtTextBox(0)", std::move(key), std::move(caption), {.oneCharacter = true}};
}

// A word a line, made with one word in it. The list's prompt before a delete has always spoken
// of a question.
WordList Words(std::string file) {
    return {.file = std::move(file),
            .sample = "quillbook",
            .columns = {{"column1", "", 2400}},
            .editOpens = true,
            .words = {.addTitle = "Add Word",
                      .addLabels = {"Word"},
                      .editTitle = "Edit Word",
                      .editLabels = {"Word"},
                      .rowFloor = "There must be a minimum of one Word",
                      .rowConfirm = "Do you really want to delete this question?",
                      .rowConfirmTitle = "Delete Word?"}};
}

}  // namespace

const QuizGame& TriviaGame() {
    static const QuizGame game{
        .key = "Games~Trivia~Settings",
        .caption = "Games ~ Trivia ~ Settings",
        .folder = "Games\\Trivia",
        .settings = "TriviaSettings",
        .prefix = "Trivia",
        .size = {7600, 6600},
        .checks = "chkTrivia",
        .defaults = {{"iFormat", "0"}, {"iScoring", "1"}, {"sHintChar", kBullet}},
        .flags = {{"bShowOnlyOneHint", "Only Show One Hint", "1"}},
        // Trivia keeps spin limits of its own, and its archive count in the last box.
        .numbers = {{"iHintTime", "Hint Time", "30", {0, 60}},
                    {"iMaxHints", "Max Hints", "5", {0, 10}},
                    {"iQuestions", "Questions", "15", {0, 999}},
                    {"iQuestionsPause", "Pause Between Questions", "10", {0, 60}},
                    {"iTimeOut", "Timeout", "5", {0, 1000}},
                    {"iBonusTime", "Bonus Time", "45", {0, 100}},
                    {"iPoints", "Points", "1", {0, 100}},
                    {"iScores", "Top X Scores", "25", {0, 200}},
                    {"iTopScores", "End Of Game Scores", "10", {0, 100}},
                    {"iAutoStartDelay", "Auto Start Delay", "93", {1, 1440}},
                    {"iArchiveScores", "Scores to archive", "5", {0, 250}}},
        // One array of options for both groups: a scoring type stands at its value plus 3.
        .options = {{"iFormat",
                     "Question Format:",
                     {{"Standard", "0"}, {"Expanded", "1"}, {"Trivia Ex", "2"}}},
                    {"iScoring", "Scoring Type:", {{"Standard", "0"}, {"Hint Reduction", "1"}}}},
        .texts = {HintBox("sHintChar", "Hint Character")},
        .pageOrder =
            Keys({kFlags,
                  {"bShowOnlyOneHint", "iArchiveScores", "iFormat", "iScoring", "sHintChar",
                   "iHintTime", "iMaxHints", "iQuestions", "iQuestionsPause", "iTimeOut",
                   "iBonusTime", "iPoints", "iScores", "iTopScores", "iAutoStartDelay"}}),
        .builderOrder = {"sHintChar",       "bManualStart",     "bOpOnlyStart",    "bOpOnlyStop",
                         "iFormat",         "iHintTime",        "iMaxHints",       "iQuestions",
                         "iQuestionsPause", "iTimeOut",         "iBonusTime",      "iPoints",
                         "iScores",         "iTopScores",       "iAutoStartDelay", "iScoring",
                         "bPlayInMain",     "bAutoClearScores", "bArchiveScores",  "iArchiveScores",
                         "bShowOnlyOneHint"},
        .oneCharacterDefaults = {"sHintChar"},
        .dataFiles = {{"QuestionFiles\\TriviaQuestions.lst",
                       "Misc: What colour is the sky on a clear day?*blue"}},
    };
    return game;
}

const QuizGame& AnagramsGame() {
    static const QuizGame game{
        .key = "Games~Anagrams",
        .caption = "Games ~ Anagrams",
        .folder = "Games\\Anagrams",
        .settings = "AnagramSettings",
        .prefix = "Anagram",
        .size = {6600, 6000},
        // The lookup answers iScoring too, which no file of the game has.
        .defaults = {{"sHintChar", kBullet}},
        .flags = {},
        .numbers = CommonBoxes({.first = {"iHintTime", "Hint Time", "20", {0, 60}},
                                .fourth = {"iBonusTime", "Bonus Time", "10", {0, 1000}},
                                .questions = "20",
                                .points = "1",
                                .autoStartDelay = "73"}),
        .texts = {HintBox("sHintChar", "Hint Character")},
        .pageOrder = Keys(
            {kFlags,
             {"iArchiveScores", "sHintChar", "iHintTime", "iQuestions", "iQuestionsPause",
              "iTimeOut", "iBonusTime", "iPoints", "iScores", "iTopScores", "iAutoStartDelay"}}),
        .builderOrder =
            Keys({{"iTimeOut", "sHintChar", "iHintTime", "iBonusTime", "iQuestions",
                   "iQuestionsPause", "iTopScores", "iScores", "iPoints", "iAutoStartDelay"},
                  kFlags,
                  {"iArchiveScores"}}),
        .oneCharacterDefaults = {"sHintChar"},
        .words = Words("AnagramWords.lst"),
    };
    return game;
}

const QuizGame& CodeBreakerGame() {
    static const QuizGame game{
        .key = "Games~CodeBreaker",
        .caption = "Games ~ CodeBreaker",
        .folder = "Games\\CodeBreaker",
        .settings = "CodeBreakerSettings",
        .prefix = "CodeBreaker",
        .size = {6600, 6000},
        // The lookup knows sHintChar and not sHiddenChar, which the file has: a first build
        // writes the hidden character empty, and RESTORE fills it with the bullet. It answers
        // iBonusTime and iScoring too, which no file of the game has.
        .defaults = {{"sHintChar", kBullet}, {"sAllowedCharacters", "0123456789"}},
        .flags = {},
        .numbers = CommonBoxes({.first = {"iQuestionLength", "Question Length", "3", {0, 60}},
                                .fourth = {"iQuestionsTime", "Question Time", "90", {0, 1000}},
                                .questions = "20",
                                .points = "1",
                                .autoStartDelay = "73"}),
        .texts = {{"txtTextBox(0)",
                   "sHiddenChar",
                   "Hidden Character",
                   {.oneCharacter = true},
                   "sHintChar"},
                  // Editing the allowed characters alone leaves the page clean.
                  {"txtAllowedCharacters",
                   "sAllowedCharacters",
                   "Allowed Characters",
                   {.unmarked = true}}},
        .pageOrder =
            Keys({kFlags,
                  {"iArchiveScores", "sAllowedCharacters", "sHiddenChar", "iQuestionLength",
                   "iQuestions", "iQuestionsPause", "iTimeOut", "iQuestionsTime", "iPoints",
                   "iScores", "iTopScores", "iAutoStartDelay"}}),
        .builderOrder = Keys({{"sHiddenChar", "sAllowedCharacters", "iTimeOut", "iQuestions",
                               "iQuestionLength", "iQuestionsTime", "iQuestionsPause", "iTopScores",
                               "iScores", "iPoints", "iAutoStartDelay"},
                              kFlags,
                              {"iArchiveScores"}}),
        // The allowed characters are no hint: their default stays whole.
        .oneCharacterDefaults = {"sHiddenChar"},
    };
    return game;
}

const QuizGame& GuessTheNumberGame() {
    static const QuizGame game{
        .key = "Games~GuessTheNumber",
        .caption = "Games ~ GuessTheNumber",
        .folder = "Games\\GuessTheNumber",
        .settings = "GuessTheNumberSettings",
        .prefix = "GuessTheNumber",
        .size = {6600, 6400},
        .defaults = {},
        .flags = {},
        // Boxes 3 and 4 have always been captioned against their keys, and the hints' two
        // defaults lie above their spin's maximum: they show and save as they stand until the
        // spin is used.
        .numbers = {{"iQuestions", "Questions", "12", {0, 999}},
                    {"iQuestionsPause", "Pause Between Questions", "10", {0, 60}},
                    {"iTimeOut", "Timeout", "3", {0, 1000}},
                    {"iHints", "Hint Delay", "5", {0, 60}},
                    {"iHintTime", "Hints", "20", {0, 10}},
                    {"iMaxHints", "Max User Hints", "20", {0, 10}},
                    {"iQuestionMin", "Min Question Value", "1", {0, 100}},
                    {"iQuestionMax", "Max Question Value", "500", {100, 5000}},
                    {"iScores", "Scores", "25", {0, 100}},
                    {"iArchiveScores", "ScoresTo Archive", "5", {0, 1000}},
                    {"iTopScores", "End Of Game Scores", "10", {0, 100}},
                    {"iAutoStartDelay", "Auto Start Delay", "111", {1, 1440}}},
        .pageOrder = Keys({kFlags,
                           {"iArchiveScores", "iQuestions", "iQuestionsPause", "iTimeOut", "iHints",
                            "iHintTime", "iMaxHints", "iQuestionMin", "iQuestionMax", "iScores",
                            "iTopScores", "iAutoStartDelay"}}),
        .builderOrder =
            Keys({{"iTimeOut", "iHintTime", "iHints", "iMaxHints", "iQuestions", "iQuestionMin",
                   "iQuestionMax", "iQuestionsPause", "iTopScores", "iScores", "iAutoStartDelay"},
                  kFlags,
                  {"iArchiveScores"}}),
    };
    return game;
}

const QuizGame& HangmanGame() {
    static const QuizGame game{
        .key = "Games~Hangman",
        .caption = "Games ~ Hangman",
        .folder = "Games\\Hangman",
        .settings = "HangmanSettings",
        .prefix = "Hangman",
        .size = {6600, 6000},
        // The lookup has no sAllowedCharacters, so a first build writes it empty; it answers
        // iBonusTime, bFormat and bScoring, which no file of the game has.
        .defaults = {{"sHiddenChar", kBullet},
                     {"iBonusTime", "10"},
                     {"bFormat", "0"},
                     {"bScoring", "0"}},
        .flags = {{"bUseAscii", "Enable Ascii", "1"}},
        // Box 4 keeps its caption and spin, but no key: a dead control.
        .numbers = CommonBoxes({.first = {"iLostLifeTime", "Lost Life Time", "30", {0, 60}},
                                .fourth = {"", "Bonus Time", "", {0, 1000}},
                                .questions = "10",
                                .points = "6",
                                .autoStartDelay = "67"}),
        .texts = {HintBox("sHiddenChar", "Hint Character")},
        .pageOrder = Keys({kFlags,
                           {"bUseAscii", "iArchiveScores", "sHiddenChar", "sAllowedCharacters",
                            "iLostLifeTime", "iQuestions", "iQuestionsPause", "iTimeOut", "iPoints",
                            "iScores", "iTopScores", "iAutoStartDelay"}}),
        .builderOrder = Keys({{"bUseAscii", "sHiddenChar", "sAllowedCharacters", "iLostLifeTime",
                               "iTimeOut", "iQuestions", "iQuestionsPause", "iTopScores", "iScores",
                               "iPoints", "iAutoStartDelay"},
                              kFlags,
                              {"iArchiveScores"}}),
        // The letters a word may hold are fixed: no field shows them.
        .pageFixed = {{"sAllowedCharacters", "ABCDEFGHIJKLMNOPQRSTUVWXYZ-"}},
        .oneCharacterDefaults = {"sHiddenChar", "sAllowedCharacters"},
        .requiredText = "txtTextBox(0)",
        .requiredPrompt = {"A Hint Character is required", "Hidden Character required",
                           shell::Icon::Exclamation},
        .words = Words("HangmanWords.lst"),
        .stages = QuizStages{.folder = "Ascii", .last = 13, .largeChange = 5},
    };
    return game;
}

const QuizGame& NumbersGame() {
    static const QuizGame game{
        .key = "Games~Numbers",
        .caption = "Games ~ Numbers",
        .folder = "Games\\Numbers",
        .settings = "NumbersSettings",
        .prefix = "Numbers",
        .size = {9800, 6000},
        // The lookup answers iScoring too, which no file of the game has.
        .defaults = {},
        // Boxes 7 and 8 are bound crosswise: "Prevent Calculator" keeps bReportCalc, "Report
        // Calculator" bPreventCalc.
        .flags = {{"bCalculateOnFly", "Calculate Questions On Fly", "1"},
                  {"bReportCalc", "Prevent Calculator", "1"},
                  {"bPreventCalc", "Report Calculator", "1"}},
        .numbers = CommonBoxes({.first = {"iQuestionTime", "Question Time", "20", {0, 60}},
                                .fourth = {"iBonusTime", "Bonus Time", "10", {0, 1000}},
                                .questions = "20",
                                .points = "1",
                                .autoStartDelay = "73"}),
        .calculation = {{"+", "sAddition", "0,10000,0,10000"},
                        {"-", "sSubtraction", "0,10000,0,10000"},
                        {"*", "sMultiplication", "0,20,0,100"},
                        {"/", "sDivision", "1,10,1,50"}},
        .pageOrder =
            Keys({kFlags,
                  {"bCalculateOnFly", "bReportCalc", "bPreventCalc", "iArchiveScores",
                   "tCalculation", "iQuestionTime", "iQuestions", "iQuestionsPause", "iTimeOut",
                   "iBonusTime", "iPoints", "iScores", "iTopScores", "iAutoStartDelay"}}),
        .builderOrder = {"iTimeOut",        "iBonusTime",    "iQuestions",
                         "iQuestionsPause", "iQuestionTime", "iTopScores",
                         "iScores",         "iPoints",       "iAutoStartDelay",
                         "bManualStart",    "bOpOnlyStart",  "bOpOnlyStop",
                         "bPreventCalc",    "bReportCalc",   "bCalculateOnFly",
                         "tCalculation",    "bPlayInMain",   "bAutoClearScores",
                         "bArchiveScores",  "iArchiveScores"},
        // The page writes the count of questions with two blanks, the builder with one.
        .pageLines = {{"iQuestions", {.name = "iQuestions "}}},
        // A question and its answer a line, saved without the last one's answer. Its prompt
        // before a delete is the word pages'.
        .words = WordList{.file = "NumbersQuestions.lst",
                          .sample = "Mathematics: What is 2 Plus 2 = ??*4",
                          .columns = {{"column1", "Questions", 2800}, {"column2", "Answers", 1050}},
                          .answers = true,
                          .words = {.addTitle = "Add Question",
                                    .addLabels = {"Category", "Question", "Answer"},
                                    .editTitle = "Edit Question",
                                    .editLabels = {"Category", "Question", "Answer"},
                                    .rowFloor = "There must be a minimum of one Question",
                                    .rowConfirm = "Do you really want to delete this question?",
                                    .rowConfirmTitle = "Delete Word?"}},
    };
    return game;
}

}  // namespace qb::pages
