// Opening and saving a profile check list page, at hub sizes of 4 to 250 profiles.

#include <benchmark/benchmark.h>

#include <sstream>

#include "pages/pages.h"
#include "shell/container.h"
#include "shell/scripted_host.h"
#include "support/temp_hub.h"

namespace {

using namespace qb;

void CommandSpyOpenAndSave(benchmark::State& state) {
    const int profiles = static_cast<int>(state.range(0));
    test::TempHub hub;
    hub.Write("cfg/Profiles.xml", test::ProfilesXml(profiles));
    hub.WriteSetting("Security/CommandSpy/CommandSpySettings.tbl", "");
    store::TableFiles files(hub.ProgramFolder());
    std::ostringstream transcript;
    shell::ScriptedHost host(transcript);
    shell::PageRegistry registry;
    pages::RegisterAllPages(registry);
    shell::Container container(files, host, registry);
    container.LoadProfiles();
    for (auto _ : state) {
        shell::Page* page = container.Open("Security~CommandSpy");
        auto* list = static_cast<shell::ListControl*>(page->Find("lvwEnabledProfiles"));
        list->UserCheck(1, !list->Row(1).checked);
        static_cast<shell::Toolbar*>(page->Find("tlbFormToolbar"))->UserClick("SAVE");
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
