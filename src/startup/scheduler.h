// The one scheduler of the six timers. The window drives it with real time; tests and the
// headless tool drive it with virtual time, as fast as the machine allows.
//
// A timer fires at most once per due time, late ticks are not made up, and a timer never fires
// while its own handler is still running (a modal form shown by a handler lets the others tick).
// The break swing rests while the menu or the record screen covers the table, or the window is
// minimised: it neither fires nor counts as due, and comes back with its phase carried on by the
// ticks it missed.
//
// A window need not wake for every tick of the swing: a screen shows a new frame only every
// 16.7 ms at 60 Hz, and the swing moves nothing but the aim marker. It wakes for the swing once a
// frame, and the ticks it slept through carry the swing's phase on then, as a late tick's do.
#pragma once

#include "game/game_state.h"

#include <cstdint>

namespace morvane {

// The intervals of the six timers, all off.
void initTimers(GameState& g);
// Calls the handler that belongs to the timer.
void fireTimer(GameState& g, TimerId timer);
// Fires every timer that is due at `nowMs`, earliest first, and sets the clock to `nowMs`.
void runDueTimers(GameState& g, int64_t nowMs);
// Virtual time: fires every tick up to `untilMs` in the order of their due times.
void advanceVirtualTime(GameState& g, int64_t untilMs);
// Virtual time until `done` holds or `limitMs` has passed; returns whether `done` held.
template <typename Done> bool advanceUntil(GameState& g, int64_t limitMs, Done done);

// Whether the timer is due at `nowMs` and may fire.
bool isTimerDue(const GameState& g, TimerId timer, int64_t nowMs);
// When the next timer that may fire is due (now, if one is overdue), or -1 when none is on; a
// resting swing is not on.
int64_t nextDueTime(const GameState& g);
// When a window that shows the game should next wake: as nextDueTime, but a wake for the swing
// alone waits for the first of its ticks due a whole frame after the last one it ran.
int64_t nextFrameWakeTime(const GameState& g);

template <typename Done> bool advanceUntil(GameState& g, int64_t limitMs, Done done) {
    while (!done()) {
        const int64_t due = nextDueTime(g);
        if (due < 0 || due > limitMs)
            return false;
        runDueTimers(g, due);
    }
    return true;
}

} // namespace morvane
