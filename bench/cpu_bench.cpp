// How long zeph takes over one decision, by level, on a crowded and on a sparse table.
#include "cpu/cpu_think.h"
#include "cpu/pocket_table.h"

#include <benchmark/benchmark.h>

#include <array>

namespace {

using morvane::GameState;

struct Spot {
    float x;
    float y;
};

// The cue ball first, then balls 1 to 9; a ball at x = 0 is off the table.
GameState tableWith(const std::array<Spot, morvane::kBallCount>& spots, int16_t level) {
    GameState g;
    for (int n = 0; n < morvane::kBallCount; ++n) {
        g.Balls[n].x = spots[n].x;
        g.Balls[n].y = spots[n].y;
        g.Balls[n].onTable = spots[n].x != 0;
    }
    morvane::initPocketTable(g);
    g.zephLevel = level;
    g.breakPending = false;
    return g;
}

// A full rack as it might lie after the break.
constexpr std::array<Spot, morvane::kBallCount> kScatteredRack{{
    {700, 450},
    {1500, 800},
    {1900, 300},
    {2100, 950},
    {1200, 500},
    {1750, 600},
    {400, 1000},
    {2250, 150},
    {1000, 900},
    {1650, 1050},
}};

// Late in a game: the cue ball, the 3 and the 9.
constexpr std::array<Spot, morvane::kBallCount> kSparseTable{{
    {500, 400},
    {0, 0},
    {0, 0},
    {1700, 800},
    {0, 0},
    {0, 0},
    {0, 0},
    {0, 0},
    {0, 0},
    {2000, 300},
}};

void decide(benchmark::State& state, const std::array<Spot, morvane::kBallCount>& spots) {
    GameState g = tableWith(spots, int16_t(state.range(0)));
    for (auto _ : state) {
        morvane::cpuThink(g);
        benchmark::DoNotOptimize(g.aimX);
        benchmark::DoNotOptimize(g.aimY);
    }
}

void BM_CpuThinkScatteredRack(benchmark::State& state) {
    decide(state, kScatteredRack);
}
void BM_CpuThinkSparseTable(benchmark::State& state) {
    decide(state, kSparseTable);
}

} // namespace

BENCHMARK(BM_CpuThinkScatteredRack)->Arg(1)->Arg(6)->Arg(11);
BENCHMARK(BM_CpuThinkSparseTable)->Arg(1)->Arg(6)->Arg(11);
