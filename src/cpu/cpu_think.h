// zeph's decision for one shot: the plan its level finds, the power, and the now-and-then
// spoiled aim, all put on the controls for the player to see.
#pragma once

#include "game/game_state.h"

namespace morvane {

// Sets the aim, the power bar and the target marker, and says what zeph makes of his choice.
void cpuThink(GameState& g);

} // namespace morvane
