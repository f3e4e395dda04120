// Back: the last shot taken back, paid for with a shot, a turn and a foul.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

void undoShot(GameState& g);
void mnuRetry_Click(GameState& g);
// The Japanese name of a pocket, or "" for a number that is no pocket.
std::string getPocketName(int16_t PN);

} // namespace morvane
