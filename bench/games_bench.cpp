// The editors of the games' large files: the trivia question editor, the anagram word list and
// the Numbers game's question list, each over a large file: the page opened, the file loaded
// (after its warning, on the trivia page), one row found by its text and edited, the file saved.
// Opening a page reads no such file; the cost is the file's, and should grow with its rows and no
// faster.

#include <benchmark/benchmark.h>

#include <string>

#include "support/page_harness.h"

namespace {

using namespace qb;

// One list of a game's page over a file of `rows` lines: the list opened, a row found by its
// text and edited in its dialog, the file saved, and the page closed.
struct ListEdit {
    const char* key;
    const char* file;  // below the settings folder
    std::string (*line)(int n);
    const char* list;
    // The button that opens the list, and whether it warns first.
    const char* openToolbar;
    const char* openButton;
    bool warns;
    // The toolbar of the list's EDIT and SAVE, and whether its save marks the page, so that
    // closing it asks.
    const char* rowToolbar;
    bool saveMarks;
    shell::DialogAnswer edit;
    std::string saved;  // the edited row's line in the saved file
};

void EditGameList(benchmark::State& state, const ListEdit& edit) {
    const int rows = static_cast<int>(state.range(0));
    test::PageHarness harness;
    std::string text;
    for (int n = 1; n <= rows; ++n)
        text += edit.line(n) + "\r\n";
    harness.hub.WriteSetting(edit.file, text);
    harness.hub.WriteSetting("Games/Trivia/TriviaQuestionFiles.tbl",
                             "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = "
                             "\"TriviaQuestions\",\r\n}\r\n");
    harness.container.LoadProfiles();
    // The row in the middle, as the user types its start to find it.
    const std::string line = edit.line(rows / 2);
    const std::string wanted = line.substr(0, line.find('*'));
    for (auto _ : state) {
        shell::Page* page = harness.container.Open(edit.key);
        auto& list = static_cast<shell::ListControl&>(*page->Find(edit.list));
        if (edit.warns) harness.host.QueueAnswer(shell::Answer::OK);
        test::PageHarness::Click(*page, edit.openToolbar, edit.openButton);
        int found = 0;
        for (int row = 1; row <= list.Count() && found == 0; ++row) {
            if (list.Row(row).text == wanted) found = row;
        }
        if (found == 0) {
            state.SkipWithError("the row wasn't found");
            break;
        }
        list.UserSelect(found);
        harness.host.QueueDialog(edit.edit);
        test::PageHarness::Click(*page, edit.rowToolbar, "EDIT");
        test::PageHarness::Click(*page, edit.rowToolbar, "SAVE");
        if (edit.saveMarks) harness.host.QueueAnswer(shell::Answer::OK);
        harness.container.Close(*page);
        state.PauseTiming();
        if (harness.hub.ReadSetting(edit.file).find("\r\n" + edit.saved + "\r\n") ==
            std::string::npos) {
            state.SkipWithError("the file wasn't saved whole");
        }
        harness.hub.WriteSetting(edit.file, text);
        state.ResumeTiming();
    }
    state.counters["rows"] = rows;
    state.SetComplexityN(rows);
}

void TriviaQuestions(benchmark::State& state) {
    EditGameList(state, {"Games~Trivia~Questions",
                         "Games/Trivia/QuestionFiles/TriviaQuestions.lst",
                         [](int n) {
                             return "Category" + std::to_string(n % 40) +
                                    ": What is question number " + std::to_string(n) + "?*Answer" +
                                    std::to_string(n);
                         },
                         "lvwQuestions",
                         "tlbQuestionFiles",
                         "EDIT",
                         true,
                         "tlbQuestions",
                         true,
                         {"OK", {"Edited", "What is question number one?", "one"}},
                         "Edited:What is question number one?*one"});
}

void AnagramWords(benchmark::State& state) {
    EditGameList(state, {"Games~Anagrams",
                         "Games/Anagrams/AnagramWords.lst",
                         [](int n) { return "anagramword" + std::to_string(n); },
                         "lvwWords",
                         "tlbListview",
                         "OPEN",
                         false,
                         "tlbListview",
                         false,
                         {"OK", {"edited"}},
                         "edited"});
}

// The last question loses its answer at the save; the edited one is in the middle.
void NumbersQuestions(benchmark::State& state) {
    EditGameList(state, {"Games~Numbers",
                         "Games/Numbers/NumbersQuestions.lst",
                         [](int n) {
                             return "Mathematics: What is " + std::to_string(n) + " Plus 2 = ??*" +
                                    std::to_string(n + 2);
                         },
                         "lvwWords",
                         "tlbListview",
                         "OPEN",
                         false,
                         "tlbListview",
                         false,
                         {"OK", {"Edited", "What is 1 Plus 1 = ??", "2"}},
                         "Edited:What is 1 Plus 1 = ??*2"});
}

// Each list at 12 500 to 100 000 rows: the cost should grow with the rows and no faster.
void Rows(benchmark::internal::Benchmark* run) {
    for (int rows : {12500, 25000, 50000, 100000})
        run->Arg(rows);
    run->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}
BENCHMARK(TriviaQuestions)->Apply(Rows);
BENCHMARK(AnagramWords)->Apply(Rows);
BENCHMARK(NumbersQuestions)->Apply(Rows);

}  // namespace
