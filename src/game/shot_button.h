// Firing a shot: the snapshot for Back, the rule state of one shot, then the cue struck.
#pragma once

#include "game/game_state.h"

namespace morvane {

void saveTable(GameState& g);
void prepareShot(GameState& g);
// The shot button's handler; zeph fires its shots through it too.
void cmdShot_Click(GameState& g);

} // namespace morvane
