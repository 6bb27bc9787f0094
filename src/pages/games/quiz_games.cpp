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
// game's own box 0 and box 4 (a box with no key is dead).
std::vector<QuizNumber> CommonBoxes(QuizNumber first, QuizNumber fourth) {
    return {std::move(first),
            {"iQuestions", "Questions", {0, 999}},
            {"iQuestionsPause", "Pause Between Questions", {0, 1000}},
            {"iTimeOut", "Timeout", {0, 60}},
            std::move(fourth),
            {"iPoints", "Points", {0, 100}},
            {"iScores", "Top Scores", {0, 100}},
            {"iTopScores", "End Of Game Scores", {0, 200}},
            {"iAutoStartDelay", "Auto Start Delay", {1, 1440}},
            // So written on screen.
            {"iArchiveScores", "ScoresTo Archive", {0, 1000}}};
}

QuizText HintBox(std::string key, std::string caption) {
    return {"txtTextBox(0)", std::move(key), std::move(caption), {.oneCharacter = true}};
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
        .defaults = {{"bShowOnlyOneHint", "1"},
                     {"iHintTime", "30"},
                     {"iMaxHints", "5"},
                     {"iQuestions", "15"},
                     {"iQuestionsPause", "10"},
                     {"iTimeOut", "5"},
                     {"iBonusTime", "45"},
                     {"iPoints", "1"},
                     {"iScores", "25"},
                     {"iTopScores", "10"},
                     {"iAutoStartDelay", "93"},
                     {"iArchiveScores", "5"},
                     {"iFormat", "0"},
                     {"iScoring", "1"},
                     {"sHintChar", kBullet}},
        .flags = {{"bShowOnlyOneHint", "Only Show One Hint"}},
        // Trivia keeps spin limits of its own, and its archive count in the last box.
        .numbers = {{"iHintTime", "Hint Time", {0, 60}},
                    {"iMaxHints", "Max Hints", {0, 10}},
                    {"iQuestions", "Questions", {0, 999}},
                    {"iQuestionsPause", "Pause Between Questions", {0, 60}},
                    {"iTimeOut", "Timeout", {0, 1000}},
                    {"iBonusTime", "Bonus Time", {0, 100}},
                    {"iPoints", "Points", {0, 100}},
                    {"iScores", "Top X Scores", {0, 200}},
                    {"iTopScores", "End Of Game Scores", {0, 100}},
                    {"iAutoStartDelay", "Auto Start Delay", {1, 1440}},
                    {"iArchiveScores", "Scores to archive", {0, 250}}},
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
        .defaults = {{"iHintTime", "20"},
                     {"iQuestions", "20"},
                     {"iQuestionsPause", "10"},
                     {"iTimeOut", "3"},
                     {"iBonusTime", "10"},
                     {"iPoints", "1"},
                     {"iScores", "25"},
                     {"iTopScores", "10"},
                     {"iAutoStartDelay", "73"},
                     {"iArchiveScores", "5"},
                     {"sHintChar", kBullet}},
        .flags = {},
        .numbers = CommonBoxes({"iHintTime", "Hint Time", {0, 60}},
                               {"iBonusTime", "Bonus Time", {0, 1000}}),
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
        .dataFiles = {{"AnagramWords.lst", "quillbook"}},
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
        // writes the hidden character empty, and RESTORE fills it with the bullet.
        .defaults = {{"iQuestionLength", "3"},
                     {"iQuestions", "20"},
                     {"iQuestionsPause", "10"},
                     {"iTimeOut", "3"},
                     {"iQuestionsTime", "90"},
                     {"iPoints", "1"},
                     {"iScores", "25"},
                     {"iTopScores", "10"},
                     {"iAutoStartDelay", "73"},
                     {"iArchiveScores", "5"},
                     {"sHintChar", kBullet},
                     {"sAllowedCharacters", "0123456789"}},
        .flags = {},
        .numbers = CommonBoxes({"iQuestionLength", "Question Length", {0, 60}},
                               {"iQuestionsTime", "Question Time", {0, 1000}}),
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
        // The hints' two defaults lie above their spin's maximum: they show and save as they
        // stand until the spin is used.
        .defaults = {{"iQuestions", "12"},
                     {"iQuestionsPause", "10"},
                     {"iTimeOut", "3"},
                     {"iHints", "5"},
                     {"iHintTime", "20"},
                     {"iMaxHints", "20"},
                     {"iQuestionMin", "1"},
                     {"iQuestionMax", "500"},
                     {"iScores", "25"},
                     {"iArchiveScores", "5"},
                     {"iTopScores", "10"},
                     {"iAutoStartDelay", "111"}},
        .flags = {},
        // Boxes 3 and 4 have always been captioned against their keys.
        .numbers = {{"iQuestions", "Questions", {0, 999}},
                    {"iQuestionsPause", "Pause Between Questions", {0, 60}},
                    {"iTimeOut", "Timeout", {0, 1000}},
                    {"iHints", "Hint Delay", {0, 60}},
                    {"iHintTime", "Hints", {0, 10}},
                    {"iMaxHints", "Max User Hints", {0, 10}},
                    {"iQuestionMin", "Min Question Value", {0, 100}},
                    {"iQuestionMax", "Max Question Value", {100, 5000}},
                    {"iScores", "Scores", {0, 100}},
                    {"iArchiveScores", "ScoresTo Archive", {0, 1000}},
                    {"iTopScores", "End Of Game Scores", {0, 100}},
                    {"iAutoStartDelay", "Auto Start Delay", {1, 1440}}},
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
        // bFormat, bScoring and iBonusTime, which no file of the game has.
        .defaults = {{"bUseAscii", "1"},
                     {"iLostLifeTime", "30"},
                     {"iQuestions", "10"},
                     {"iQuestionsPause", "10"},
                     {"iTimeOut", "3"},
                     {"iBonusTime", "10"},
                     {"iPoints", "6"},
                     {"iScores", "25"},
                     {"iTopScores", "10"},
                     {"iAutoStartDelay", "67"},
                     {"iArchiveScores", "5"},
                     {"sHiddenChar", kBullet},
                     {"bFormat", "0"},
                     {"bScoring", "0"}},
        .flags = {{"bUseAscii", "Enable Ascii"}},
        // Box 4 keeps its caption and spin, but no key: a dead control.
        .numbers = CommonBoxes({"iLostLifeTime", "Lost Life Time", {0, 60}},
                               {"", "Bonus Time", {0, 1000}}),
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
        .dataFiles = {{"HangmanWords.lst", "quillbook"}},
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
        .defaults = {{"bCalculateOnFly", "1"},
                     {"bReportCalc", "1"},
                     {"bPreventCalc", "1"},
                     {"iQuestionTime", "20"},
                     {"iQuestions", "20"},
                     {"iQuestionsPause", "10"},
                     {"iTimeOut", "3"},
                     {"iBonusTime", "10"},
                     {"iPoints", "1"},
                     {"iScores", "25"},
                     {"iTopScores", "10"},
                     {"iAutoStartDelay", "73"},
                     {"iArchiveScores", "5"}},
        // Boxes 7 and 8 are bound crosswise: "Prevent Calculator" keeps bReportCalc, "Report
        // Calculator" bPreventCalc.
        .flags = {{"bCalculateOnFly", "Calculate Questions On Fly"},
                  {"bReportCalc", "Prevent Calculator"},
                  {"bPreventCalc", "Report Calculator"}},
        .numbers = CommonBoxes({"iQuestionTime", "Question Time", {0, 60}},
                               {"iBonusTime", "Bonus Time", {0, 1000}}),
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
        .dataFiles = {{"NumbersQuestions.lst", "Mathematics: What is 2 Plus 2 = ??*4"}},
    };
    return game;
}

}  // namespace qb::pages
