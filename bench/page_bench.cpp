// Opening and saving a profile check list page, at hub sizes of 4 to 250 profiles.

#include <benchmark/benchmark.h>

#include "support/page_harness.h"

namespace {

using namespace qb;

void CommandSpyOpenAndSave(benchmark::State& state) {
    const int profiles = static_cast<int>(state.range(0));
    test::PageHarness harness;
    harness.hub.Write("cfg/Profiles.xml", test::ProfilesXml(profiles));
    harness.hub.WriteSetting("Security/CommandSpy/CommandSpySettings.tbl", "");
    shell::Container& container = harness.container;
    container.LoadProfiles();
    for (auto _ : state) {
        shell::Page* page = container.Open("Security~CommandSpy");
        auto* list = static_cast<shell::ListControl*>(page->Find("lvwEnabledProfiles"));
        list->UserCheck(1, !list->Row(1).checked);
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        container.Close(*page);
    }
    state.counters["profiles"] = profiles;
}
BENCHMARK(CommandSpyOpenAndSave)
    ->Arg(4)
    ->Arg(20)
    ->Arg(100)
    ->Arg(250)
    ->Unit(benchmark::kMillisecond);

}  // namespace
