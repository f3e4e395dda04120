// The mouse on the table view: dragging the aim point, or moving the cue ball when it is free.
// Coordinates are pixels of the view; any button counts.
#pragma once

#include "game/game_state.h"

namespace morvane {

void picPool_MouseDown(GameState& g, int button, float x, float y);
void picPool_MouseMove(GameState& g, int buttons, float x, float y);
void picPool_MouseUp(GameState& g, int button, float x, float y);

} // namespace morvane
