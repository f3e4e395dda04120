// zeph's level, 1 to 11, and its growth as the human wins matches against it.
#pragma once

#include "game/game_state.h"

namespace morvane {

// The end of a decided match against zeph. Two wins of the human in a row raise the level by one,
// up to 11; a win of zeph starts the count again. Changes only the two numbers: the caller saves
// them afterwards with saveZephLevel.
void creditZephMatch(GameState& g, bool humanWon);

} // namespace morvane
