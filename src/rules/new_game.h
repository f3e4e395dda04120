// A fresh rack with all counters cleared, waiting for the break.
#pragma once

#include "game/game_state.h"

namespace morvane {

void newGame(GameState& g);
// The Start entry of the hidden menu (F2).
void mnuStart_click(GameState& g);

} // namespace morvane
