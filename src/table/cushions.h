// A ball on a cushion line: into a pocket, or off the cushion.
#pragma once

#include "table/ball.h"

namespace morvane {

// The pocket 1 to 6 that takes the ball, or 0.
int16_t checkPocket(BallType& b, int cushionId);
void bounceCushion(BallType& b, int cushionId);

} // namespace morvane
