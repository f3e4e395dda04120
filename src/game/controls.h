// The markers, the aim point and which shot controls are live.
#pragma once

#include "game/game_state.h"

namespace morvane {

void moveCueBallTo(GameState& g, float px, float py);
void moveAimTo(GameState& g, float px, float py);
void placeTarget(GameState& g);
void setShotControls(GameState& g, bool enabled);
void enableShotControls(GameState& g);
void disableShotControls(GameState& g);

} // namespace morvane
