// The security pages that grow with the hub, at 4 to 250 profiles: the kick permissions (six
// commands of P * P cells, shown by command and By profile), registration (four commands of
// (P - 1) * (P - 1) rows, the list its only copy) and the profile rules (six rows a profile), each
// opened, one cell flipped or one rule edited, saved and closed, over a tree the rebuild wrote.
// Then every other security page opened and saved, and the lists the users fill at 10 000 rows.

#include <benchmark/benchmark.h>

#include "support/page_harness.h"

namespace {

using namespace qb;

// A hub of `rows` profile rows whose security area the rebuild has written.
struct SecurityHub : test::PageHarness {
    explicit SecurityHub(int rows) { BuildFor(rows - 1, store::Area::Security); }
    // Opens the page, flips its first cell or edits its first row, saves and closes.
    void OpenChangeSave(const std::string& key, const char* toolbar) {
        shell::Page* page = container.Open(key);
        Click(*page, toolbar, "EDIT");
        Click(*page, "tlbFormToolbar", "SAVE");
        container.Close(*page);
    }
};

void OpenAndSave(benchmark::State& state, const std::string& key, const char* toolbar,
                 bool indexing, bool edits) {
    const int rows = static_cast<int>(state.range(0));
    SecurityHub hub(rows);
    hub.files.SetIndexing(indexing);
    for (auto _ : state) {
        // The first rule's dialog: a share of 5 MB.
        if (edits) hub.host.QueueDialog({"OK", {"5", "MB"}});
        hub.OpenChangeSave(key, toolbar);
    }
    state.counters["profiles"] = rows;
}

void Sizes(benchmark::internal::Benchmark* b) {
    b->Arg(4)->Arg(20)->Arg(100)->Arg(250)->Unit(benchmark::kMillisecond);
}
// The scanner reads up to 5000 lines for each of the matrices' cells: one run of the small hubs.
void ScannedSizes(benchmark::internal::Benchmark* b) {
    b->Arg(4)->Arg(20)->Iterations(1)->Unit(benchmark::kMillisecond);
}

void KickPermissionsOpenAndSave(benchmark::State& state, bool indexing) {
    OpenAndSave(state, "Security~Kicks~Permissions", "tlbListview", indexing, false);
}
void RegistrationOpenAndSave(benchmark::State& state, bool indexing) {
    OpenAndSave(state, "Security~Registration", "tlbListview", indexing, false);
}
void ProfileRulesOpenAndSave(benchmark::State& state, bool indexing) {
    OpenAndSave(state, "Security~ProfileRules~Rules", "tlbPermissions", indexing, true);
}
BENCHMARK_CAPTURE(KickPermissionsOpenAndSave, Indexed, true)->Apply(Sizes);
BENCHMARK_CAPTURE(KickPermissionsOpenAndSave, Scanned, false)->Apply(ScannedSizes);
BENCHMARK_CAPTURE(RegistrationOpenAndSave, Indexed, true)->Apply(Sizes);
BENCHMARK_CAPTURE(RegistrationOpenAndSave, Scanned, false)->Apply(ScannedSizes);
BENCHMARK_CAPTURE(ProfileRulesOpenAndSave, Indexed, true)->Apply(Sizes);
BENCHMARK_CAPTURE(ProfileRulesOpenAndSave, Scanned, false)->Apply(Sizes);

// Opens a page, saves it as its SAVE button's click does, whether or not it holds a change, and
// closes it. The user log's own log holds 10 000 rows, which its page never reads.
void PageOpenAndSave(benchmark::State& state, const std::string& key) {
    const int rows = static_cast<int>(state.range(0));
    SecurityHub hub(rows);
    std::string log = "tUserLog = {\r\n";
    for (int row = 1; row <= 10000; ++row)
        log += "\t[\"User" + std::to_string(row) + "\"] = \"2024-01-01 12:00\",\r\n";
    hub.hub.WriteSetting("Security/UserLog/UserLog.tbl", log + "}\r\n");
    for (auto _ : state) {
        shell::Page* page = hub.container.Open(key);
        static_cast<shell::Toolbar*>(page->Find("tlbFormToolbar"))->onButtonClick("SAVE");
        hub.container.Close(*page);
    }
    state.counters["profiles"] = rows;
}
BENCHMARK_CAPTURE(PageOpenAndSave, SearchSpy, "Security~SearchSpy")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, BadNickBlocker, "Security~BadNickBlocker")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, CloneBlocker, "Security~CloneBlocker")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, UserLog, "Security~UserLog")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, MainBlock, "Security~MainBlock")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, MainLock, "Security~MainLock")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, MainCleaner, "Security~MainCleaner")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, Rules, "Security~Rules")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, Report, "Security~Report")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, AntiVirus, "Security~AntiVirus")->Apply(Sizes);
BENCHMARK_CAPTURE(PageOpenAndSave, PtokaXSettings, "Security~PtokaXSettings")->Apply(Sizes);

// A list the user fills, of 10 000 rows: the page opened, the first row deleted, the page saved
// and closed. The file is written whole again before each round, untimed.
void LongListDeleteOne(benchmark::State& state, const std::string& key, const char* toolbar,
                       const std::string& file, const std::string& header,
                       std::string (*row)(int)) {
    SecurityHub hub(static_cast<int>(state.range(0)));
    std::string text = header + " = {\r\n";
    for (int number = 1; number <= 10000; ++number)
        text += "\t" + row(number) + ",\r\n";
    text += "}\r\n";
    for (auto _ : state) {
        state.PauseTiming();
        hub.hub.WriteSetting(file, text);
        state.ResumeTiming();
        shell::Page* page = hub.container.Open(key);
        hub.host.QueueAnswer(shell::Answer::OK);
        test::PageHarness::Click(*page, toolbar, "DELETE");
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        hub.container.Close(*page);
    }
    state.counters["rows"] = 10000;
}
std::string BadNickRow(int number) {
    return "[" + std::to_string(number) + "] = \"Nick" + std::to_string(number) + "\"";
}
std::string PhraseRow(int number) {
    return "[\"phrase " + std::to_string(number) + "\"] = \"K\"";
}
void LongListSizes(benchmark::internal::Benchmark* b) {
    b->Arg(4)->Arg(250)->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(LongListDeleteOne, BadNicks, "Security~BadNickBlocker", "tlbListview",
                  "Security/BadNickBlocker/BadNickBlockerNickList.tbl", "tBadNickBlockerNickList",
                  BadNickRow)
    ->Apply(LongListSizes);
BENCHMARK_CAPTURE(LongListDeleteOne, SearchSpyPhrases, "Security~SearchSpy", "tlbFiles",
                  "Security/SearchSpy/SearchSpyFiles.tbl", "tSearchSpyFiles", PhraseRow)
    ->Apply(LongListSizes);

}  // namespace
