// A full rebuild of the settings tree at hub sizes of 4 to 250 profiles: every area's folders and
// builders and Version.tbl, merging over the tree the previous rebuild left. The same rebuild is
// measured reading the old files through the index and key by key through the plain scanner,
// and a start that finds nothing to rebuild is measured beside them.

#include <benchmark/benchmark.h>

#include <sstream>

#include "pages/general/news.h"
#include "pages/pages.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "support/temp_hub.h"

namespace {

using namespace qb;

// A hub of `profiles` profiles whose tree one rebuild has made already.
struct BuiltHub {
    explicit BuiltHub(int profiles) : run{files, profiles - 1, store::kBuildVersion} {
        hub.Write("cfg/Profiles.xml", test::ProfilesXml(profiles));
        pages::RegisterAllBuilders(builders);
        shell::RebuildSettings(run, builders);
        files.WriteTextFile(shell::kProfileCopySetting, test::ProfilesXml(profiles));
    }
    test::TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    store::BuilderRegistry builders;
    store::BuildRun run;
};

void Rebuild(benchmark::State& state, bool indexing) {
    BuiltHub built(static_cast<int>(state.range(0)));
    built.files.SetIndexing(indexing);
    for (auto _ : state)
        shell::RebuildSettings(built.run, built.builders);
    state.counters["profiles"] = static_cast<double>(state.range(0));
}

// The start of a hub whose tree is up to date: profiles, checks and the news, no rebuild.
void StartWithNothingToRebuild(benchmark::State& state) {
    BuiltHub built(static_cast<int>(state.range(0)));
    std::ostringstream transcript;
    shell::ScriptedHost host(transcript);
    shell::PageRegistry registry;
    for (auto _ : state) {
        shell::Container container(built.files, host, registry, store::kBuildVersion);
        if (shell::RunStartChecks(container, built.builders) != shell::StartResult::Ready) {
            state.SkipWithError("the start asked for a rebuild");
            break;
        }
        pages::LoadNews(built.files, container.News(), nullptr);
    }
    state.counters["profiles"] = static_cast<double>(state.range(0));
}

// 50 and 200 beside 100 show what doubling the profiles costs; the scanner needs a minute at 250
// already, so it runs at the four common sizes only.
BENCHMARK_CAPTURE(Rebuild, Indexed, true)
    ->Arg(4)
    ->Arg(20)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Arg(250)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Rebuild, Scanned, false)
    ->Arg(4)
    ->Arg(20)
    ->Arg(100)
    ->Arg(250)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(StartWithNothingToRebuild)
    ->Arg(4)
    ->Arg(20)
    ->Arg(100)
    ->Arg(250)
    ->Unit(benchmark::kMillisecond);

}  // namespace
