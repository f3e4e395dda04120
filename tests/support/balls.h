// Small tables of balls for the motion engine.
#pragma once

#include "table/ball.h"

#include <cmath>

namespace morvane::testing {

// A table with every ball off it; balls are then put on one by one.
inline BallArray emptyTable() {
    BallArray balls{};
    for (BallType& b : balls)
        b.onTable = false;
    return balls;
}

// Ball n on the table at (x, y), rolling at speed in direction angle, with no spin.
inline void putBall(BallArray& balls, int n, float x, float y, float speed = 0, float angle = 0) {
    BallType& b = balls[n];
    b = BallType{};
    b.x = x;
    b.y = y;
    b.onTable = true;
    b.speed = speed;
    b.angle = angle;
    b.vx = float(std::cos(angle) * speed);
    b.vy = float(std::sin(angle) * speed);
}

} // namespace morvane::testing
