// The rack: ten balls at their start points, the aim on the apex ball.
#pragma once

#include "table/game_state.h"

namespace morvane {

void rackBalls(GameState& g);

} // namespace morvane
