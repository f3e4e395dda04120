#include "table/rack.h"

#include <cmath>

namespace morvane {

namespace {

void placeBall(BallArray& balls, int n, double x, double y) {
    balls[n].x = float(x);
    balls[n].y = float(y);
}

} // namespace

void rackBalls(BallArray& balls) {
    const float s = float(std::sqrt(3.0) * kBallDiameter / 2); // row spacing, 86.6025390625
    const float h = kBallRadius;
    const float apexX = float(kFootSpotX - kBallDiameter / 10.0);
    const float nudge = float(kBallDiameter / 50.0);

    placeBall(balls, 0, kHeadSpotX, kHeadSpotY);
    placeBall(balls, 1, apexX, kFootSpotY);
    const BallType& apex = balls[1];
    placeBall(balls, 6, double(apex.x) + s - nudge, double(apex.y) - h - nudge);
    placeBall(balls, 5, double(apex.x) + s - nudge, double(apex.y) + h + nudge);
    placeBall(balls, 2, double(apex.x) + 2.0 * s, double(apex.y) - 2.0 * h);
    placeBall(balls, 9, double(apex.x) + 2.0 * s, apex.y);
    placeBall(balls, 4, double(apex.x) + 2.0 * s, double(apex.y) + 2.0 * h);
    placeBall(balls, 7, double(apex.x) + 3.0 * s, double(apex.y) - h);
    placeBall(balls, 8, double(apex.x) + 3.0 * s, double(apex.y) + h);
    placeBall(balls, 3, double(apex.x) + 4.0 * s, apex.y);

    for (BallType& ball : balls) {
        ball.speed = 0;
        ball.prevX = ball.x;
        ball.prevY = ball.y;
        ball.vx = ball.vy = 0;
        ball.spareA = ball.spareB = 0;
        ball.angle = ball.spinFollow = ball.spinSide = 0;
        ball.onTable = true;
    }
}

} // namespace morvane
