// The first move of zeph's turn: the aim onto the target ball, and with ball in hand the cue ball
// set down for a straight shot.
#pragma once

#include "game/game_state.h"

namespace morvane {

void placeCueBall(GameState& g);

} // namespace morvane
