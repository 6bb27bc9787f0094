// The portal relaying public chat between two fake hubs over loopback sockets, in one thread as
// the window runs it: lines per second, and the time from a line leaving hub 1 to its relay
// reaching hub 2 (median and 99th percentile).

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "hublink/qt/socket_sessions.h"
#include "support/fake_hub.h"

namespace {

using namespace qb;

// Two hubs with the bot logged on to both.
struct Link {
    test::FakeHub hub1;
    test::FakeHub hub2;
    hublink::FixedValues values;
    hublink::SocketSessions sessions{values};

    Link() {
        values.username = "Portal";
        values.description = "a bot";
        values.email = "bot@example.org";
        values.hubs = {{hub1.Address(), "", "0", {}}, {hub2.Address(), "", "0", {}}};
        values.ignored = {"•Quillbook•", "•CommunicationBot•", "•GamesBot•", "•SecurityBot•"};
        for (int slot = 1; slot <= 2; ++slot) {
            const std::string& address = values.hubs[static_cast<size_t>(slot - 1)].address;
            sessions.Start(slot, {"127.0.0.1", address.substr(address.find(':') + 1), "0"});
        }
        if (!hub1.LogIn("Portal") || !hub2.LogIn("Portal")) std::abort();
        hub2.Forget();
    }
};

std::string ChatLine(std::size_t n) {
    char text[64];
    std::snprintf(text, sizeof text, "<Alice> message number %08zu|", n);
    return text;
}

void RelayThroughput(benchmark::State& state) {
    const auto lines = static_cast<std::size_t>(state.range(0));
    Link link;
    std::size_t next = 0;
    for (auto _ : state) {
        const std::size_t first = next;
        next += lines;
        std::string batch;
        for (std::size_t n = first; n < next; ++n)
            batch += ChatLine(n);
        link.hub1.Send(batch);
        if (!link.hub2.WaitFor("<Portal> " + ChatLine(next - 1))) {
            state.SkipWithError("a relayed line never arrived");
            break;
        }
        state.PauseTiming();
        link.hub2.Forget();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(static_cast<int64_t>(next));
    state.counters["lines_per_s"] =
        benchmark::Counter(static_cast<double>(next), benchmark::Counter::kIsRate);
}
BENCHMARK(RelayThroughput)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

void RelayLatency(benchmark::State& state) {
    Link link;
    std::vector<double> micros;
    std::size_t n = 0;
    for (auto _ : state) {
        const std::string line = ChatLine(n++);
        const auto start = std::chrono::steady_clock::now();
        link.hub1.Send(line);
        if (!link.hub2.WaitFor("<Portal> " + line)) {
            state.SkipWithError("a relayed line never arrived");
            break;
        }
        micros.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
                .count());
        link.hub2.Forget();
    }
    if (micros.empty()) return;
    std::sort(micros.begin(), micros.end());
    state.counters["p50_us"] = micros[micros.size() / 2];
    state.counters["p99_us"] = micros[std::min(micros.size() - 1, micros.size() * 99 / 100)];
}
BENCHMARK(RelayLatency)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
