#include "pages/games/games.h"

namespace qb::pages {
namespace {

const std::vector<const QuizGame*>& QuizGames() {
    static const std::vector<const QuizGame*> games = {&TriviaGame(),      &AnagramsGame(),
                                                       &CodeBreakerGame(), &GuessTheNumberGame(),
                                                       &HangmanGame(),     &NumbersGame()};
    return games;
}

const std::vector<const ChanceGame*>& ChanceGames() {
    static const std::vector<const ChanceGame*> games = {
        &ThreeCardMontyGame(), &RussianRouletteGame(), &SlotMachineGame()};
    return games;
}

}  // namespace

void RegisterGamePages(shell::PageRegistry& registry) {
    std::vector<shell::PageEntry> pages;
    for (const QuizGame* game : QuizGames())
        pages.push_back(QuizPageOf(*game));
    pages.push_back(QuestionFilesPageOf(TriviaQuestions()));
    for (const ChanceGame* game : ChanceGames())
        pages.push_back(ChancePageOf(*game));
    pages.push_back(ScoreClearersPage());
    registry.Register(pages);
}

// The games' files, in the order a rebuild writes them in each folder.
void RegisterGameBuilders(store::BuilderRegistry& builders) {
    std::vector<store::BuildStep> steps;
    for (const QuizGame* game : QuizGames()) {
        for (store::BuildStep& step : QuizBuilds(*game))
            steps.push_back(std::move(step));
    }
    steps.emplace_back(TriviaQuestionFilesSchema());
    for (const ChanceGame* game : ChanceGames()) {
        for (store::BuildStep& step : ChanceBuilds(*game))
            steps.push_back(std::move(step));
    }
    steps.emplace_back(ScoreClearersSchema());
    builders.Add(steps);
}

}  // namespace qb::pages
