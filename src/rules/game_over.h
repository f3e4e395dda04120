// The end of a game, by mode: statistics and records in solo play, the winner and the match in
// versus, the way back to the menu in the demo; and in every mode a fresh rack.
#pragma once

#include "game/game_state.h"

namespace morvane {

void endGame(GameState& g);

} // namespace morvane
