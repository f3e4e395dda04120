// What a meeting of balls does: the contact of two balls, and the scatter of the break.
#pragma once

#include "table/ball.h"
#include "table/random_source.h"

namespace morvane {

void collideBalls(BallType& bi, BallType& bj);
// The rack scattered by the cue ball arriving at the aim point.
void breakRack(BallArray& balls, float aimX, float aimY, RandomPort& random);

} // namespace morvane
