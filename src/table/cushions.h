// A ball on a cushion line: into a pocket, or off the cushion.
#pragma once

#include "table/ball.h"
#include "table/pockets.h"

namespace morvane {

// The pocket that takes the ball, or kNoPocket.
int16_t checkPocket(BallType& b, int cushionId);
void bounceCushion(BallType& b, int cushionId);

} // namespace morvane
