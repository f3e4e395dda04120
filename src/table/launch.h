// The cue struck: its speed from the power, its direction to the aim point, its spin made
// velocities.
#pragma once

#include "table/ball.h"

namespace morvane {

// power is the power bar's percent; the break's stroke is a fifth stronger.
void launchCueBall(BallType& cue, float aimX, float aimY, int16_t power, bool isBreak);

} // namespace morvane
