// The trivia question editor over a large question file: the page opened, the file loaded after
// its warning, one question found by its text and edited, the file saved. Opening the page reads
// no question file; the cost is the file's, and should grow with its rows and no faster.

#include <benchmark/benchmark.h>

#include <string>

#include "support/page_harness.h"

namespace {

using namespace qb;

std::string QuestionFile(int questions) {
    std::string text;
    for (int n = 1; n <= questions; ++n) {
        text += "Category" + std::to_string(n % 40) + ": What is question number " +
                std::to_string(n) + "?*Answer" + std::to_string(n) + "\r\n";
    }
    return text;
}

void TriviaQuestions(benchmark::State& state) {
    const int questions = static_cast<int>(state.range(0));
    test::PageHarness harness;
    const std::string file = "Games/Trivia/QuestionFiles/TriviaQuestions.lst";
    const std::string text = QuestionFile(questions);
    harness.hub.WriteSetting(file, text);
    harness.hub.WriteSetting("Games/Trivia/TriviaQuestionFiles.tbl",
                             "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = "
                             "\"TriviaQuestions\",\r\n}\r\n");
    harness.container.LoadProfiles();
    // The question in the middle, as the user types its start to find it.
    const std::string wanted = "Category" + std::to_string(questions / 2 % 40) +
                               ": What is question number " + std::to_string(questions / 2) + "?";
    for (auto _ : state) {
        shell::Page* page = harness.container.Open("Games~Trivia~Questions");
        auto& rows = static_cast<shell::ListControl&>(*page->Find("lvwQuestions"));
        harness.host.QueueAnswer(shell::Answer::OK);
        test::PageHarness::Click(*page, "tlbQuestionFiles", "EDIT");
        int found = 0;
        for (int row = 1; row <= rows.Count() && found == 0; ++row) {
            if (rows.Row(row).text.starts_with(wanted)) found = row;
        }
        if (found == 0) {
            state.SkipWithError("the question wasn't found");
            break;
        }
        rows.UserSelect(found);
        harness.host.QueueDialog({"OK", {"Edited", "What is question number one?", "one"}});
        test::PageHarness::Click(*page, "tlbQuestions", "EDIT");
        test::PageHarness::Click(*page, "tlbQuestions", "SAVE");
        // The editor's save marks the page: closing it asks first.
        harness.host.QueueAnswer(shell::Answer::OK);
        harness.container.Close(*page);
        state.PauseTiming();
        if (harness.hub.ReadSetting(file).find("Edited:What is question number one?*one") ==
            std::string::npos) {
            state.SkipWithError("the file wasn't saved whole");
        }
        harness.hub.WriteSetting(file, text);
        state.ResumeTiming();
    }
    state.counters["questions"] = questions;
    state.SetComplexityN(questions);
}
BENCHMARK(TriviaQuestions)
    ->Arg(12500)
    ->Arg(25000)
    ->Arg(50000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

}  // namespace
