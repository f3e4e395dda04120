// The game tick: one frame of a rolling shot, and the judging of it once all balls rest.
#pragma once

#include "game/game_state.h"

namespace morvane {

void Timer1_Timer(GameState& g);

} // namespace morvane
