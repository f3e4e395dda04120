// The break's run to the rack: the cue ball alone, with no contact tests, until it reaches the
// rack; then the scatter and its first free step. One tick of the game while the break is on.
#pragma once

#include "game/game_state.h"

namespace morvane {

void runBreakToRack(GameState& g);
// One tick of a rolling shot: the break's run while it lasts, else one frame of the motion engine.
void runShotTick(GameState& g);

} // namespace morvane
