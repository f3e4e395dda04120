#include "game/timers.h"

namespace morvane {

void setTimerEnabled(GameState& g, TimerId timer, bool enabled) {
    TimerState& t = g.timers[timer];
    if (enabled && !t.enabled)
        t.dueAt = g.nowMs + t.interval;
    t.enabled = enabled;
}

void setTimerInterval(GameState& g, TimerId timer, int32_t intervalMs) {
    TimerState& t = g.timers[timer];
    t.interval = intervalMs;
    t.dueAt = g.nowMs + intervalMs;
}

} // namespace morvane
