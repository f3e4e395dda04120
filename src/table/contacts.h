// What a meeting of balls does: the contact of two balls, and the scatter of the break.
#pragma once

#include "table/game_state.h"

namespace morvane {

void collideBalls(GameState& g, int i, int j);
void breakRack(GameState& g);

} // namespace morvane
