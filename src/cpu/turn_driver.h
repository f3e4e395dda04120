// zeph's turn at a human pace, one 100 ms tick of timCom at a time: a first remark, a pause, the
// decision, the aim and the power on show, the remark fading, the shot.
#pragma once

#include "game/game_state.h"

namespace morvane {

void timCom_Timer(GameState& g);

} // namespace morvane
