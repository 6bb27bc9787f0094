// The user actions' large lists: a spell book of 10 000 spells, each with a file of phrases,
// where one spell is amended and the book saved; a list of 20 000 quotations where one is deleted
// and the list saved; and the ascii page, with its two profile lists, at hub sizes up to 250.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/page_harness.h"

namespace {

using namespace qb;
namespace fs = std::filesystem;

constexpr int kSpells = 10000;
constexpr int kQuotations = 20000;

std::string SpellName(int n) {
    return "Spell" + std::to_string(n);
}

// A book of `spells` spells, each with a file of three phrases.
void WriteBook(test::TempHub& hub, int spells) {
    std::string book = "tSpellBook = {\r\n";
    for (int n = 1; n <= spells; ++n) {
        book += "\t[\"" + SpellName(n) + "\"] = \"What spell " + std::to_string(n) + " does\",\r\n";
        hub.WriteSetting("UserActions/Spells/Spells/" + SpellName(n) + ".tbl",
                         "tSpell = {\r\n\t\"!victim! is hit by " + SpellName(n) +
                             "\",\r\n\t\"!victim! ducks\",\r\n\t\"!victim! sighs\",\r\n}\r\n");
    }
    hub.WriteSetting("UserActions/Spells/SpellBook.tbl", book + "}\r\n");
}

// The time each spell file was last written, to show that a save leaves them alone.
std::vector<fs::file_time_type> SpellTimes(const test::TempHub& hub) {
    std::vector<fs::file_time_type> times;
    for (int n = 1; n <= kSpells; ++n) {
        times.push_back(fs::last_write_time(hub.Settings() / "UserActions/Spells/Spells" /
                                            (SpellName(n) + ".tbl")));
    }
    return times;
}

// Opens the book, amends the spell in the middle, edits one of its phrases and saves.
void SpellBookAmendAndSave(benchmark::State& state) {
    test::PageHarness harness;
    WriteBook(harness.hub, kSpells);
    harness.container.LoadProfiles();
    const int amended = kSpells / 2;
    const auto before = SpellTimes(harness.hub);
    for (auto _ : state) {
        shell::Page* page = harness.container.Open("UserActions~Spells~SpellBook");
        auto& spells = static_cast<shell::ListControl&>(*page->Find("lvwSpells"));
        auto& phrases = static_cast<shell::ListControl&>(*page->Find("lvwSpellPhrases"));
        spells.UserSelect(amended);
        test::PageHarness::Click(*page, "tlbSpells", "AMEND");
        phrases.UserSelect(2);
        harness.host.QueueDialog({"OK", {"!victim! ducks again"}});
        test::PageHarness::Click(*page, "tlbSpellPhrases", "EDIT");
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        harness.container.Close(*page);
    }
    auto after = SpellTimes(harness.hub);
    if (after[amended - 1] == before[amended - 1]) state.SkipWithError("the spell wasn't written");
    after[amended - 1] = before[amended - 1];
    if (after != before) state.SkipWithError("a spell not amended was written");
    state.counters["spells"] = kSpells;
}
BENCHMARK(SpellBookAmendAndSave)->Unit(benchmark::kMillisecond);

// Opens a list of 20 000 quotations, deletes the one in the middle and saves.
void QuotationsDeleteAndSave(benchmark::State& state) {
    test::PageHarness harness;
    std::string list = "tQuotations = {\r\n";
    for (int n = 1; n <= kQuotations; ++n)
        list += "\t\"Quotation number " + std::to_string(n) + "|  -- Someone\",\r\n";
    list += "}\r\n";
    harness.hub.WriteSetting("UserActions/Quotations/Quotations.tbl", list);
    harness.hub.WriteSetting("UserActions/Quotations/QuotationSettings.tbl", "");
    harness.container.LoadProfiles();
    for (auto _ : state) {
        shell::Page* page = harness.container.Open("UserActions~Quotations");
        auto& quotations = static_cast<shell::ListControl&>(*page->Find("lvwQuotations"));
        quotations.UserSelect(kQuotations / 2);
        harness.host.QueueAnswer(shell::Answer::OK);
        test::PageHarness::Click(*page, "tlbQuotations", "DELETE");
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        harness.container.Close(*page);
        state.PauseTiming();
        harness.hub.WriteSetting("UserActions/Quotations/Quotations.tbl", list);
        state.ResumeTiming();
    }
    state.counters["quotations"] = kQuotations;
}
BENCHMARK(QuotationsDeleteAndSave)->Unit(benchmark::kMillisecond);

// Opens the ascii page with 50 pictures, ticks a right click and saves.
void AsciiOpenAndSave(benchmark::State& state) {
    const int profiles = static_cast<int>(state.range(0));
    test::PageHarness harness;
    harness.hub.Write("cfg/Profiles.xml", test::ProfilesXml(profiles));
    std::string index = "tAsciiIndex = {\r\n";
    for (int n = 1; n <= 50; ++n) {
        const std::string number = std::to_string(n);
        index += "\t[" + number + "] = {\r\n\t\tsFilename = \"picture" + number +
                 "\",\r\n\t\tsDisplayName = \"Picture " + number + "\",\r\n\t\tsMenu = \"Menu " +
                 number + "\",\r\n\t},\r\n";
    }
    harness.hub.WriteSetting("UserActions/Ascii/AsciiIndex.tbl", index + "}\r\n");
    harness.hub.WriteSetting("UserActions/Ascii/AsciiSettings.tbl", "");
    harness.container.LoadProfiles();
    for (auto _ : state) {
        shell::Page* page = harness.container.Open("UserActions~Ascii");
        auto& rcs = static_cast<shell::ListControl&>(*page->Find("lvwEnabledRCs"));
        rcs.UserCheck(1, !rcs.Row(1).checked);
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        harness.container.Close(*page);
    }
    state.counters["profiles"] = profiles;
}
BENCHMARK(AsciiOpenAndSave)->Arg(4)->Arg(20)->Arg(100)->Arg(250)->Unit(benchmark::kMillisecond);

}  // namespace
