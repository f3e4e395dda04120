// A ball on a cushion line: into a pocket, or off the cushion.
#pragma once

#include "table/game_state.h"

namespace morvane {

// The pocket 1 to 6 that takes the ball, or 0.
int16_t checkPocket(GameState& g, int n, int cushionId);
void bounceCushion(GameState& g, int n, int cushionId);

} // namespace morvane
