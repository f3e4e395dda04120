#include "table_fixtures.h"

#include <cmath>

namespace morvane::testing {

void putBall(GameState& g, int n, float x, float y, float speed, float angle) {
    BallType& b = g.Balls[n];
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
