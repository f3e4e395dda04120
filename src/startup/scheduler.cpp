#include "startup/scheduler.h"

#include "cpu/turn_driver.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "rules/demo.h"
#include "rules/game_clock.h"
#include "rules/game_tick.h"
#include "rules/music.h"

namespace morvane {

namespace {

constexpr int32_t kTimer1Interval = 50;
constexpr int32_t kTimer2Interval = 10;
constexpr int32_t kTimComInterval = 100;
constexpr int32_t kTimDemoInterval = 1000;
constexpr int32_t kTimTimeCounterInterval = 1000;
constexpr int32_t kTimBgmInterval = 500;

bool mayFire(const TimerState& t) {
    return t.enabled && !t.running;
}

// The timer due soonest at or before `nowMs`, lowest number first on a tie; kTimerCount if none.
TimerId dueTimer(const GameState& g, int64_t nowMs) {
    TimerId best = kTimerCount;
    for (int i = 0; i < kTimerCount; ++i) {
        const TimerState& t = g.timers[i];
        if (mayFire(t) && t.dueAt <= nowMs &&
            (best == kTimerCount || t.dueAt < g.timers[best].dueAt))
            best = TimerId(i);
    }
    return best;
}

void fireOnce(GameState& g, TimerId id, int64_t nowMs) {
    TimerState& t = g.timers[id];
    const int64_t due = t.dueAt;
    t.running = true;
    fireTimer(g, id);
    t.running = false;
    const bool restartedByHandler = t.dueAt != due;
    if (!t.enabled || restartedByHandler)
        return;
    t.dueAt = due + t.interval;
    if (t.dueAt <= nowMs)
        t.dueAt = nowMs + t.interval; // a late tick is not made up
}

} // namespace

void initTimers(GameState& g) {
    const int32_t intervals[kTimerCount] = {kTimer1Interval,         kTimer2Interval,
                                            kTimComInterval,         kTimDemoInterval,
                                            kTimTimeCounterInterval, kTimBgmInterval};
    for (int i = 0; i < kTimerCount; ++i) {
        g.timers[i] = TimerState{};
        setTimerInterval(g, TimerId(i), intervals[i]);
    }
}

void fireTimer(GameState& g, TimerId timer) {
    switch (timer) {
    case kTimer1:
        Timer1_Timer(g);
        break;
    case kTimer2:
        Timer2_Timer(g);
        break;
    case kTimDemo:
        timDemo_Timer(g);
        break;
    case kTimTimeCounter:
        timTimeCounter_Timer(g);
        break;
    case kTimCom:
        timCom_Timer(g);
        break;
    case kTimBGM:
        timBGM_Timer(g);
        break;
    case kTimerCount:
        break;
    }
}

void runDueTimers(GameState& g, int64_t nowMs) {
    if (g.nowMs < nowMs)
        g.nowMs = nowMs;
    for (TimerId id = dueTimer(g, nowMs); id != kTimerCount; id = dueTimer(g, nowMs))
        fireOnce(g, id, nowMs);
}

int64_t nextDueTime(const GameState& g) {
    int64_t best = -1;
    for (const TimerState& t : g.timers) {
        if (mayFire(t) && (best < 0 || t.dueAt < best))
            best = t.dueAt;
    }
    return best;
}

void advanceVirtualTime(GameState& g, int64_t untilMs) {
    for (int64_t due = nextDueTime(g); due >= 0 && due <= untilMs; due = nextDueTime(g))
        runDueTimers(g, due);
    if (g.nowMs < untilMs)
        g.nowMs = untilMs;
}

} // namespace morvane
