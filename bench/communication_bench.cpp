// The communication pages at their large sizes: chat rooms' five profile lists at hub sizes up to
// 250; a rotating message page over a list and a folder of 10 000 files; AutoCorrect with 10 000
// words. Each is opened, changed and saved.

#include <benchmark/benchmark.h>

#include <string>

#include "support/page_harness.h"

namespace {

using namespace qb;

constexpr int kFiles = 10000;
constexpr int kWords = 10000;

// Opens the chat rooms, ticks a row of the last list and saves.
void ChatRoomsOpenAndSave(benchmark::State& state) {
    const int profiles = static_cast<int>(state.range(0));
    test::PageHarness harness;
    harness.hub.Write("cfg/Profiles.xml", test::ProfilesXml(profiles));
    harness.hub.WriteSetting("Communication/ChatRooms/ChatRoomSettings.tbl", "");
    harness.container.LoadProfiles();
    for (auto _ : state) {
        shell::Page* page = harness.container.Open("Communication~ChatRooms");
        auto& list = static_cast<shell::ListControl&>(*page->Find("lvwEnabledProfilesDefault"));
        list.UserCheck(profiles, !list.Row(profiles).checked);
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        harness.container.Close(*page);
    }
    state.counters["profiles"] = profiles;
}
BENCHMARK(ChatRoomsOpenAndSave)->Arg(4)->Arg(100)->Arg(250)->Unit(benchmark::kMillisecond);

// A list of 10 000 ticked messages, and as many files in the folder, half of them listed: the
// load matches every file to its row, then a row is ticked and the page saved.
void RotatingMessageOpenAndSave(benchmark::State& state) {
    test::PageHarness harness;
    const std::string folder = "Communication/RotatingMainMessage/";
    std::string list = "tRotatingMainMessageFiles = {\r\n";
    for (int n = 1; n <= kFiles; ++n) {
        const std::string name = "message" + std::to_string(n);
        if (n % 2 == 1) list += "\t\"" + name + "\",\r\n";
        harness.hub.WriteSetting(folder + "Files/" + name + ".asc", "Message\r\n");
    }
    harness.hub.WriteSetting(folder + "RotatingMainMessageFiles.tbl", list + "}\r\n");
    harness.hub.WriteSetting(folder + "RotatingMainMessageSettings.tbl", "");
    harness.container.LoadProfiles();
    for (auto _ : state) {
        shell::Page* page = harness.container.Open("Communication~RotatingMainMessage");
        auto& files = static_cast<shell::ListControl&>(*page->Find("lvwFiles"));
        if (files.Count() != kFiles) state.SkipWithError("a file wasn't listed");
        files.UserCheck(kFiles, true);
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        harness.container.Close(*page);
        state.PauseTiming();
        harness.hub.WriteSetting(folder + "RotatingMainMessageFiles.tbl", list + "}\r\n");
        state.ResumeTiming();
    }
    state.counters["files"] = kFiles;
}
BENCHMARK(RotatingMessageOpenAndSave)->Unit(benchmark::kMillisecond);

// Opens 10 000 words, edits the one in the middle and saves.
void AutoCorrectOpenAndSave(benchmark::State& state) {
    test::PageHarness harness;
    std::string words = "tAutoCorrectWords = {\r\n";
    for (int n = 1; n <= kWords; ++n) {
        const std::string number = std::to_string(n);
        words += "\t[\"wrod" + number + "\"] = \"word" + number + "\",\r\n";
    }
    harness.hub.WriteSetting("Communication/AutoCorrect/AutoCorrectWords.tbl", words + "}\r\n");
    harness.hub.WriteSetting("Communication/AutoCorrect/AutoCorrectSettings.tbl", "");
    harness.hub.WriteSetting("Communication/AutoCorrect/AutoCorrectFilters.tbl",
                             "tAutoCorrectFilters = {\r\n\tbKick = 1,\r\n}\r\n");
    harness.container.LoadProfiles();
    for (auto _ : state) {
        shell::Page* page = harness.container.Open("Communication~AutoCorrect");
        auto& list = static_cast<shell::ListControl&>(*page->Find("lvwAutoCorrectWords"));
        list.UserSelect(kWords / 2);
        harness.host.QueueDialog({"OK", {"wrod", "word"}});
        test::PageHarness::Click(*page, "tlbAutoCorrectWords", "EDIT");
        test::PageHarness::Click(*page, "tlbFormToolbar", "SAVE");
        harness.container.Close(*page);
    }
    state.counters["words"] = kWords;
}
BENCHMARK(AutoCorrectOpenAndSave)->Unit(benchmark::kMillisecond);

}  // namespace
