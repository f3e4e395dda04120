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
// A frame of a screen at 60 Hz, whole milliseconds.
constexpr int64_t kFrameMs = 16;

// The break swing moves nothing but the aim marker on the table; while the menu or the record
// screen covers the table, or the window is minimised, nobody could see it, and it rests.
bool restsUnseen(const GameState& g, TimerId id) {
    const ControlsState& c = g.controls;
    return id == kTimer2 && (c.menuVisible || c.scoreVisible || c.mainWindowMinimised);
}

bool mayFire(const GameState& g, TimerId id) {
    const TimerState& t = g.timers[id];
    return t.enabled && !t.running && !restsUnseen(g, id);
}

// The timer due soonest at or before `nowMs`, lowest number first on a tie; kTimerCount if none.
TimerId dueTimer(const GameState& g, int64_t nowMs) {
    TimerId best = kTimerCount;
    for (int i = 0; i < kTimerCount; ++i) {
        if (isTimerDue(g, TimerId(i), nowMs) &&
            (best == kTimerCount || g.timers[i].dueAt < g.timers[best].dueAt))
            best = TimerId(i);
    }
    return best;
}

// A swing back from its rest, or late, has its phase carried on by the ticks it missed.
void catchUpSwing(GameState& g, int64_t nowMs) {
    TimerState& t = g.timers[kTimer2];
    const int64_t missed = (nowMs - t.dueAt) / t.interval;
    if (missed <= 0)
        return;
    carrySwingOn(g, missed);
    t.dueAt += missed * t.interval;
}

void fireOnce(GameState& g, TimerId id, int64_t nowMs) {
    TimerState& t = g.timers[id];
    if (id == kTimer2)
        catchUpSwing(g, nowMs);
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

// The first tick of the swing due a whole frame or more after the last one it ran.
int64_t nextSwingFrame(const TimerState& swing) {
    const int64_t lastTick = swing.dueAt - swing.interval;
    int64_t due = swing.dueAt;
    while (due - lastTick < kFrameMs)
        due += swing.interval;
    return due;
}

// The soonest of the due times that `dueOf` gives the timers that may fire, or -1 when none may.
template <typename DueOf> int64_t soonestDue(const GameState& g, DueOf dueOf) {
    int64_t best = -1;
    for (int i = 0; i < kTimerCount; ++i) {
        if (!mayFire(g, TimerId(i)))
            continue;
        const int64_t due = dueOf(TimerId(i));
        if (best < 0 || due < best)
            best = due;
    }
    // A swing back from its rest is overdue: it fires now, not back then.
    if (best >= 0 && best < g.nowMs)
        best = g.nowMs;
    return best;
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

bool isTimerDue(const GameState& g, TimerId timer, int64_t nowMs) {
    return mayFire(g, timer) && g.timers[timer].dueAt <= nowMs;
}

int64_t nextDueTime(const GameState& g) {
    return soonestDue(g, [&](TimerId id) { return g.timers[id].dueAt; });
}

int64_t nextFrameWakeTime(const GameState& g) {
    return soonestDue(g, [&](TimerId id) {
        const TimerState& t = g.timers[id];
        return id == kTimer2 ? nextSwingFrame(t) : t.dueAt;
    });
}

void advanceVirtualTime(GameState& g, int64_t untilMs) {
    for (int64_t due = nextDueTime(g); due >= 0 && due <= untilMs; due = nextDueTime(g))
        runDueTimers(g, due);
    if (g.nowMs < untilMs)
        g.nowMs = untilMs;
}

} // namespace morvane
