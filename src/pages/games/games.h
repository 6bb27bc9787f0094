#pragma once
// The games: the scripts play them in the hub's chat, and the manager keeps their settings and
// their word and question files.

#include <vector>

#include "families/quiz/question_files.h"
#include "families/quiz/quiz_game.h"
#include "pages/games/chance_game.h"
#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

void RegisterGamePages(shell::PageRegistry& registry);
void RegisterGameBuilders(store::BuilderRegistry& builders);

// The six quiz games, members of the quiz engine (quiz_games.cpp).
const QuizGame& TriviaGame();
const QuizGame& AnagramsGame();
const QuizGame& CodeBreakerGame();
const QuizGame& GuessTheNumberGame();
const QuizGame& HangmanGame();
const QuizGame& NumbersGame();

// The three chance games, members of the chance page (chance_games.cpp).
const ChanceGame& ThreeCardMontyGame();
const ChanceGame& RussianRouletteGame();
const ChanceGame& SlotMachineGame();

// Games\Globals\ScoreClearers.tbl, the users who may clear the games' scores, and its page
// (score_clearers.cpp).
const store::FileSchema& ScoreClearersSchema();
const shell::PageDecl& ScoreClearersPage();

// The trivia question files, a member of the question file page (trivia_questions.cpp).
const QuestionFiles& TriviaQuestions();
// Games\Trivia\TriviaQuestionFiles.tbl: the default question file and the others.
const store::FileSchema& TriviaQuestionFilesSchema();

}  // namespace qb::pages
