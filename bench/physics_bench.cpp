// The cost of the motion engine: one frame of a break's scatter, one frame of an ordinary shot,
// and a whole full-power break from the launch to rest.
#include "game/break_run.h"
#include "game/contact_effects.h"
#include "game/racking.h"
#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/table_queries.h"

#include <benchmark/benchmark.h>

using namespace morvane;

namespace {

struct ContactCounter : ContactObserver {
    int contacts = 0;
    void onContact(float, int, int, int) override { ++contacts; }
};

GameState fullPowerBreak(uint64_t seed) {
    GameState g;
    rackBalls(g);
    g.ports.ownRandom = SeededRandom(seed);
    g.aimX = 1700;
    g.aimY = 600;
    g.breakPending = true;
    setPower(g, kPowerMax);
    cmdShot_Click(g);
    return g;
}

// A table in play: the cue ball sent at ball 1 across the open table.
GameState ordinaryShot() {
    GameState g;
    rackBalls(g);
    const float places[10][2] = {{600, 600},  {1400, 800}, {1200, 300}, {2000, 200}, {900, 1000},
                                 {1500, 500}, {300, 200},  {2200, 900}, {1800, 400}, {2100, 1050}};
    for (int n = 0; n < kBallCount; ++n) {
        g.Balls[n].x = g.Balls[n].prevX = places[n][0];
        g.Balls[n].y = g.Balls[n].prevY = places[n][1];
    }
    g.aimX = 1400;
    g.aimY = 800;
    g.breakPending = false;
    setPower(g, 80);
    cmdShot_Click(g);
    return g;
}

// Plays ticks until the table is at rest or the limit is reached.
int playTicks(GameState& g, int limit) {
    int ticks = 0;
    while (ticks < limit && !isAllStopped(g)) {
        runShotTick(g);
        ++ticks;
    }
    return ticks;
}

// Times runFrame on the same table, put back before each frame; the copy of the ten balls is
// timed too, and is small beside the frame.
void timeFrameFrom(benchmark::State& state, const GameState& start) {
    GameState g = start;
    ContactCounter counter;
    g.ports.contacts = &counter;
    for (auto _ : state) {
        g.Balls = start.Balls;
        g.pocketedCount = 0;
        g.firstHitPending = start.firstHitPending;
        playFrame(g);
        benchmark::DoNotOptimize(g.Balls);
    }
    state.counters["contacts/frame"] =
        benchmark::Counter(counter.contacts, benchmark::Counter::kAvgIterations);
}

void BM_FrameDuringBreakScatter(benchmark::State& state) {
    // The busiest of the first ten frames after the cue ball reaches the rack.
    GameState g = fullPowerBreak(7);
    while (g.breakPending)
        runBreakToRack(g);
    GameState busiest = g;
    int most = -1;
    for (int frame = 0; frame < 10; ++frame) {
        ContactCounter counter;
        g.ports.contacts = &counter;
        const GameState before = g;
        playFrame(g);
        if (counter.contacts > most) {
            most = counter.contacts;
            busiest = before;
        }
    }
    timeFrameFrom(state, busiest);
}

void BM_FrameDuringOrdinaryShot(benchmark::State& state) {
    GameState g = ordinaryShot();
    playTicks(g, 6); // the cue ball is about to meet ball 1
    timeFrameFrom(state, g);
}

void BM_WholeBreakAtFullPower(benchmark::State& state) {
    int frames = 0;
    int contacts = 0;
    uint64_t seed = 0;
    for (auto _ : state) {
        GameState g = fullPowerBreak(++seed);
        ContactCounter counter;
        g.ports.contacts = &counter;
        frames += playTicks(g, 100000);
        contacts += counter.contacts;
        benchmark::DoNotOptimize(g.Balls);
    }
    state.counters["frames/shot"] = benchmark::Counter(frames, benchmark::Counter::kAvgIterations);
    state.counters["events/shot"] =
        benchmark::Counter(contacts, benchmark::Counter::kAvgIterations);
}

} // namespace

BENCHMARK(BM_FrameDuringBreakScatter);
BENCHMARK(BM_FrameDuringOrdinaryShot);
BENCHMARK(BM_WholeBreakAtFullPower)->Unit(benchmark::kMicrosecond);
