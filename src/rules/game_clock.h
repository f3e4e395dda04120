// The game clock: a second of play a tick, from the first shot to the end of the game.
#pragma once

#include "game/game_state.h"

namespace morvane {

void timTimeCounter_Timer(GameState& g);

} // namespace morvane
