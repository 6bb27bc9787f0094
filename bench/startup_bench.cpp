// From the program's start to its first shown window, offscreen, on a hub whose tree is up to
// date: navigation, profiles, checks, news, the main window shown. Measured with the index and
// with the plain scanner, at 4 to 250 profiles, and on the bundled demo hub.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QWindow>
#include <filesystem>
#include <memory>
#include <sstream>

#include "gui/application.h"
#include "gui/main_window.h"
#include "pages/pages.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "support/temp_hub.h"

namespace {

using namespace qb;
namespace fs = std::filesystem;

// Runs the start once without a window, so that the measured starts find nothing to rebuild.
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

void StartToShownWindow(benchmark::State& state, const fs::path& scripts, bool indexing) {
    for (auto _ : state) {
        auto program = std::make_unique<gui::Application>(scripts, store::kBuildVersion);
        program->Files().SetIndexing(indexing);
        if (program->Open() >= 0) {
            state.SkipWithError("the start didn't open the window");
            break;
        }
        QWindow* window = program->Window()->windowHandle();
        while (window == nullptr || !window->isExposed()) {
            QCoreApplication::processEvents();
            window = program->Window()->windowHandle();
        }
        // Closing the window is not part of the start.
        state.PauseTiming();
        program.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void StartAtProfiles(benchmark::State& state, bool indexing) {
    test::TempHub hub;
    hub.Write("cfg/Profiles.xml", test::ProfilesXml(static_cast<int>(state.range(0))));
    Build(hub);
    StartToShownWindow(state, hub.Scripts(), indexing);
    state.counters["profiles"] = static_cast<double>(state.range(0));
}

void StartOnTheDemoHub(benchmark::State& state) {
    test::TempHub hub;
    fs::remove_all(hub.Root());
    fs::copy(QB_DEMO_HUB, hub.Root(), fs::copy_options::recursive);
    Build(hub);
    StartToShownWindow(state, hub.Scripts(), true);
}

BENCHMARK_CAPTURE(StartAtProfiles, Indexed, true)
    ->Arg(4)
    ->Arg(20)
    ->Arg(100)
    ->Arg(250)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StartAtProfiles, Scanned, false)
    ->Arg(4)
    ->Arg(20)
    ->Arg(100)
    ->Arg(250)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(StartOnTheDemoHub)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
