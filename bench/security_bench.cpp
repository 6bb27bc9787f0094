// The security pages that grow with the hub, at 4 to 250 profiles: the kick permissions (six
// commands of P * P cells, shown by command and By profile), registration (four commands of
// (P - 1) * (P - 1) rows, the list its only copy) and the profile rules (six rows a profile), each
// opened, one cell flipped or one rule edited, saved and closed, over a tree the rebuild wrote.

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

}  // namespace
