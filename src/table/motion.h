// The motion engine: one frame of 0.05 time units, contact by contact.
#pragma once

#include "table/game_state.h"

namespace morvane {

void runFrame(GameState& g);
// Advances every moving ball by t, with no regard to contacts.
void moveBalls(GameState& g, double t);
// The same for ball n alone, keeping its spin; used on the break only.
void moveBall(GameState& g, int n, double t);

} // namespace morvane
