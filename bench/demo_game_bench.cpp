// A whole demo game headless: zeph plays both sides through the real tick and the timers, in
// virtual time, from the menu until the game has returned to it.
#include "cpu/pocket_table.h"
#include "rules/demo.h"
#include "rules/modes.h"
#include "startup/scheduler.h"

#include <benchmark/benchmark.h>

using namespace morvane;

namespace {

constexpr int64_t kGameLimitMs = 4 * 3600 * 1000;

void BM_WholeDemoGame(benchmark::State& state) {
    uint64_t seed = 1;
    int64_t simulatedMs = 0;
    int64_t games = 0;
    for (auto _ : state) {
        GameState g;
        SeededRandom random(seed++);
        g.ports.random = &random;
        g.zephLevel = int16_t(state.range(0));
        initTimers(g);
        initPocketTable(g);
        backToMenu(g);
        startDemo(g);
        const int64_t start = g.nowMs;
        advanceUntil(g, kGameLimitMs, [&] { return g.gameMode == kModeMenu; });
        simulatedMs += g.nowMs - start;
        ++games;
    }
    state.counters["simulated_s/game"] = double(simulatedMs) / 1000.0 / double(games);
}

} // namespace

BENCHMARK(BM_WholeDemoGame)->Arg(1)->Arg(6)->Unit(benchmark::kMicrosecond);
