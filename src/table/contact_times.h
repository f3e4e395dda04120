// When the next contact comes: the time until a ball reaches a cushion line or another ball.
#pragma once

#include "table/game_state.h"

namespace morvane {

float timeToCushion(const GameState& g, int n, int cushionId);
float timeToBall(const GameState& g, int i, int j);

} // namespace morvane
