// The rack: ten balls at their start points, at rest.
#pragma once

#include "table/ball.h"

namespace morvane {

void rackBalls(BallArray& balls);

} // namespace morvane
