// Switching the six timers on and off. A timer switched on starts its interval from that moment.
#pragma once

#include "game/game_state.h"

namespace morvane {

void setTimerEnabled(GameState& g, TimerId timer, bool enabled);
void setTimerInterval(GameState& g, TimerId timer, int32_t intervalMs);
inline bool isTimerEnabled(const GameState& g, TimerId timer) { return g.timers[timer].enabled; }

} // namespace morvane
