// Setting up the next shot once the balls rest: the default aim, the markers, the controls and,
// when zeph is to shoot, its turn.
#pragma once

#include "game/game_state.h"

namespace morvane {

// The aim goes to the point where the cue ball would touch the lowest ball on a straight hit.
void setDefaultAim(GameState& g);
// shpQBall over the cue ball, shown: the ball may be placed by hand.
void showCueBallInHand(GameState& g);
// The table at rest: redrawn, the aim marker shown, the cue ball stamped on the view.
void showTableAtRest(GameState& g);
// The default aim on the lowest ball; the cue ball's marker shows when the ball is in hand.
void aimAtLowestBall(GameState& g);
void setUpNextShot(GameState& g);
// mnuRetry is live in solo play only.
void updateBackAvailability(GameState& g);

} // namespace morvane
