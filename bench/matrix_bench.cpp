// The permission matrices at hub sizes of 4 to 250 profiles: a pair page (P * P rows, each read
// by key from a file of as many lines) and the command page opened, one cell flipped and saved;
// and the pair builder reading its file through the read scope's index, against the plain scan.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "pages/archive/archive.h"
#include "pages/communication/communication.h"
#include "support/page_harness.h"

namespace {

using namespace qb;

// A hub whose matrix files the builder has written.
struct MatrixHub : test::PageHarness {
    explicit MatrixHub(int rows) {
        hub.Write("cfg/Profiles.xml", test::ProfilesXml(rows - 1));
        for (const char* folder : {"Communication/Talk", "TheVellum/Arcade"})
            std::filesystem::create_directories(hub.Settings() / folder);
        store::BuildRun run{files, rows - 2, store::kBuildVersion};
        pages::BuildPairMatrix(pages::TalkMatrix(), run);
        container.LoadProfiles();
    }
    // Opens the page, flips its first cell, saves and closes.
    void OpenFlipSave(const std::string& key) {
        shell::Page* page = container.Open(key);
        Click(*page, "tlbListview", "EDIT");
        Click(*page, "tlbFormToolbar", "SAVE");
        container.Close(*page);
    }
};

// Opens, flips and saves a page `state.range(0)` profiles wide, reading through the index or
// key by key through the plain scanner.
void OpenAndSave(benchmark::State& state, const std::string& page, bool indexing) {
    const int rows = static_cast<int>(state.range(0));
    MatrixHub hub(rows);
    hub.files.SetIndexing(indexing);
    for (auto _ : state)
        hub.OpenFlipSave(page);
    state.counters["profiles"] = rows;
}

void Sizes(benchmark::internal::Benchmark* b) {
    b->Arg(4)->Arg(20)->Arg(100)->Arg(250)->Unit(benchmark::kMillisecond);
}
// The scanner reads up to 5000 lines for each of the P * P cells: one run of each size is enough.
void ScannedSizes(benchmark::internal::Benchmark* b) {
    Sizes(b);
    b->Iterations(1);
}

void TalkOpenAndSave(benchmark::State& state, bool indexing) {
    OpenAndSave(state, "Communication~Talk", indexing);
}
void ArcadeOpenAndSave(benchmark::State& state, bool indexing) {
    OpenAndSave(state, "Arcade~Permissions", indexing);
}
BENCHMARK_CAPTURE(TalkOpenAndSave, Indexed, true)->Apply(Sizes);
BENCHMARK_CAPTURE(TalkOpenAndSave, Scanned, false)->Apply(ScannedSizes);
BENCHMARK_CAPTURE(ArcadeOpenAndSave, Indexed, true)->Apply(Sizes);
BENCHMARK_CAPTURE(ArcadeOpenAndSave, Scanned, false)->Apply(Sizes);

void TalkBuild(benchmark::State& state, bool indexing) {
    const int rows = static_cast<int>(state.range(0));
    MatrixHub hub(rows);
    hub.files.SetIndexing(indexing);
    for (auto _ : state) {
        store::BuildRun run{hub.files, rows - 2, store::kBuildVersion};
        pages::BuildPairMatrix(pages::TalkMatrix(), run);
    }
    state.counters["profiles"] = rows;
}
BENCHMARK_CAPTURE(TalkBuild, Indexed, true)->Apply(Sizes);
BENCHMARK_CAPTURE(TalkBuild, Scanned, false)->Apply(ScannedSizes);

}  // namespace
