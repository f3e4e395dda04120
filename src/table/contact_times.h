// When the next contact comes: the time until a ball reaches a cushion line or another ball.
#pragma once

#include "table/ball.h"

namespace morvane {

float timeToCushion(const BallType& b, int cushionId);
float timeToBall(const BallType& bi, const BallType& bj);

} // namespace morvane
