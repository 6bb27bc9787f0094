// Scrolling the long lists in the real window, offscreen: a list of 20 000 quotations, a book of
// 10 000 spells, and the games' word and question lists of 100 000 rows each, scrolled from top
// to bottom a page at a time, each page painted before the next. The time of one page is what a
// user waits for as the list moves.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>
#include <QTreeView>
#include <algorithm>
#include <chrono>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "gui/application.h"
#include "gui/main_window.h"
#include "pages/pages.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "support/temp_hub.h"

namespace {

using namespace qb;

// Runs the start once without a window, so that the window finds nothing to rebuild.
void Build(const test::TempHub& hub) {
    store::TableFiles files(hub.ProgramFolder());
    std::ostringstream transcript;
    shell::ScriptedHost host(transcript);
    host.QueueAnswer(shell::Answer::OK);
    shell::PageRegistry registry;
    store::BuilderRegistry builders;
    pages::RegisterAllBuilders(builders);
    shell::Container container(files, host, registry, store::kBuildVersion);
    shell::RunStartChecks(container, builders);
}

// Opens the page in the window, and the list where its toolbar has an OPEN button, and scrolls
// the list through, a page at a time, painting each.
void Scroll(benchmark::State& state, const test::TempHub& hub, const std::string& key,
            const char* list, const char* openWith = nullptr) {
    gui::Application program(hub.Scripts(), store::kBuildVersion);
    if (program.Open() >= 0) {
        state.SkipWithError("the start didn't open the window");
        return;
    }
    shell::Page* page = program.Container().OpenFunctionPage(key);
    if (openWith != nullptr && page != nullptr) {
        static_cast<shell::Toolbar*>(page->Find(openWith))->UserClick("OPEN");
    }
    QApplication::processEvents();
    auto* view = program.Window()->findChild<QTreeView*>(list);
    if (view == nullptr) {
        state.SkipWithError("no list in the window");
        return;
    }
    QScrollBar* bar = view->verticalScrollBar();
    double slowest = 0;
    int pages = 0;
    for (auto _ : state) {
        for (int at = bar->minimum(); at <= bar->maximum(); at += bar->pageStep()) {
            const auto start = std::chrono::steady_clock::now();
            bar->setValue(at);
            view->viewport()->repaint();
            const std::chrono::duration<double, std::milli> took =
                std::chrono::steady_clock::now() - start;
            slowest = std::max(slowest, took.count());
            ++pages;
        }
        bar->setValue(bar->minimum());
    }
    state.counters["pages"] = pages;
    state.counters["slowest_page_ms"] = slowest;
    state.counters["ms_per_page"] = benchmark::Counter(
        static_cast<double>(pages),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void QuotationsScroll(benchmark::State& state) {
    test::TempHub hub;
    Build(hub);
    std::string list = "tQuotations = {\r\n";
    for (int n = 1; n <= 20000; ++n)
        list += "\t\"Quotation number " + std::to_string(n) + "|  -- Someone\",\r\n";
    hub.WriteSetting("UserActions/Quotations/Quotations.tbl", list + "}\r\n");
    Scroll(state, hub, "UserActions~Quotations", "lvwQuotations");
}
BENCHMARK(QuotationsScroll)->Unit(benchmark::kMillisecond)->Iterations(3);

void SpellBookScroll(benchmark::State& state) {
    test::TempHub hub;
    Build(hub);
    std::string book = "tSpellBook = {\r\n";
    for (int n = 1; n <= 10000; ++n) {
        book += "\t[\"Spell" + std::to_string(n) + "\"] = \"What spell " + std::to_string(n) +
                " does\",\r\n";
    }
    hub.WriteSetting("UserActions/Spells/SpellBook.tbl", book + "}\r\n");
    Scroll(state, hub, "UserActions~Spells~SpellBook", "lvwSpells");
}
BENCHMARK(SpellBookScroll)->Unit(benchmark::kMillisecond)->Iterations(3);

// A game's list of 100 000 lines, opened with its OPEN button.
void GameListScroll(benchmark::State& state, const char* key, const char* file,
                    std::string (*line)(int n)) {
    test::TempHub hub;
    Build(hub);
    std::string text;
    for (int n = 1; n <= 100000; ++n)
        text += line(n) + "\r\n";
    hub.WriteSetting(file, text);
    Scroll(state, hub, key, "lvwWords", "tlbListview");
}

void AnagramWordsScroll(benchmark::State& state) {
    GameListScroll(state, "Games~Anagrams", "Games/Anagrams/AnagramWords.lst",
                   [](int n) { return "anagramword" + std::to_string(n); });
}
BENCHMARK(AnagramWordsScroll)->Unit(benchmark::kMillisecond)->Iterations(3);

void NumbersQuestionsScroll(benchmark::State& state) {
    GameListScroll(state, "Games~Numbers", "Games/Numbers/NumbersQuestions.lst", [](int n) {
        return "Mathematics: What is " + std::to_string(n) + " Plus 2 = ??*" +
               std::to_string(n + 2);
    });
}
BENCHMARK(NumbersQuestionsScroll)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
