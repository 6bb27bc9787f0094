// The archive at version 6: each permission page (five or four files of P rows) opened, one
// cell flipped and saved at 4 to 250 profiles; the week page over a file of 500 rows opened and
// saved; and a whole rebuild at 250 profiles as 6.0.0, which builds the archive, beside 5.3.0,
// which doesn't.

#include <benchmark/benchmark.h>

#include "pages/archive/archive.h"
#include "support/page_harness.h"

namespace {

using namespace qb;

constexpr store::ProgramVersion kSix{6, 0, 0};

// A hub of `rows` profile rows whose tree a rebuild as 6.0.0 has made.
struct ArchiveHub : test::PageHarness {
    explicit ArchiveHub(int rows) : PageHarness(kSix) { BuildFor(rows - 1); }
    void OpenFlipSave(const std::string& key) {
        shell::Page* page = container.Open(key);
        Click(*page, "tlbListview", "EDIT");
        Click(*page, "tlbFormToolbar", "SAVE");
        container.Close(*page);
    }
};

void Sizes(benchmark::internal::Benchmark* b) {
    b->Arg(4)->Arg(20)->Arg(100)->Arg(250)->Unit(benchmark::kMillisecond);
}

void PermissionsOpenFlipSave(benchmark::State& state, const std::string& key) {
    const int rows = static_cast<int>(state.range(0));
    ArchiveHub hub(rows);
    for (auto _ : state)
        hub.OpenFlipSave(key);
    state.counters["profiles"] = rows;
}
BENCHMARK_CAPTURE(PermissionsOpenFlipSave, Hyperlink, std::string("Hyperlink~Permissions"))
    ->Apply(Sizes);
BENCHMARK_CAPTURE(PermissionsOpenFlipSave, RightClicks, std::string("Hyperlink~RightClicks"))
    ->Apply(Sizes);
BENCHMARK_CAPTURE(PermissionsOpenFlipSave, Bookshelf, std::string("Bookshelf~Permissions"))
    ->Apply(Sizes);

// The week page over 500 rows: the rows are numbered tables, each of its two keys read from the
// top of the file by the reader that never leaves a table.
void WeekOpenAndSave(benchmark::State& state) {
    ArchiveHub hub(5);
    std::string text =
        "tHyperlinkItemOfTheWeek = {\r\n\tbEnabled = 1,\r\n"
        "\tsChangeTime = \"SUN 17:59\",\r\n";
    for (int n = 1; n <= 500; ++n) {
        text += "\t[" + std::to_string(n) + "] = {\r\n\t\tsTime = \"WED 1" +
                std::to_string(n % 10) + ":30\",\r\n\t\tbInMain = 1,\r\n\t},\r\n";
    }
    hub.hub.WriteSetting("TheVellum/Hyperlink/HyperlinkItemOfTheWeek.tbl", text + "}\r\n");
    for (auto _ : state) {
        shell::Page* page = hub.container.Open("Hyperlink~LinkOfTheWeek");
        auto* enabled = static_cast<shell::CheckBox*>(page->Find("chkCheckBox(0)"));
        enabled->UserSetValue(1 - enabled->Value());
        static_cast<shell::Toolbar*>(page->Find("tlbFormToolbar"))->onButtonClick("SAVE");
        hub.container.Close(*page);
    }
}
BENCHMARK(WeekOpenAndSave)->Unit(benchmark::kMillisecond);

// A whole rebuild over the tree before it, as 5.3.0 and as 6.0.0.
void Rebuild(benchmark::State& state, store::ProgramVersion version) {
    const int rows = static_cast<int>(state.range(0));
    test::PageHarness hub(version);
    hub.BuildFor(rows - 1);
    store::BuilderRegistry builders;
    pages::RegisterAllBuilders(builders);
    store::BuildRun run{hub.files, rows - 2, version};
    for (auto _ : state)
        shell::RebuildSettings(run, builders);
    state.counters["profiles"] = rows;
}
BENCHMARK_CAPTURE(Rebuild, Five, store::ProgramVersion{5, 3, 0})
    ->Arg(250)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Rebuild, Six, kSix)->Arg(250)->Unit(benchmark::kMillisecond);

}  // namespace
