#include "table/rack.h"

#include <cmath>

namespace morvane {

namespace {

void placeBall(GameState& g, int n, double x, double y) {
    g.Balls[n].x = float(x);
    g.Balls[n].y = float(y);
}

} // namespace

void rackBalls(GameState& g) {
    const float s = float(std::sqrt(3.0) * kBallDiameter / 2); // row spacing, 86.6025390625
    const float h = kBallRadius;
    const float apexX = float(kFootSpotX - kBallDiameter / 10.0);
    const float nudge = float(kBallDiameter / 50.0);

    g.aimX = apexX;
    g.aimY = kFootSpotY;

    placeBall(g, 0, kHeadSpotX, kHeadSpotY);
    placeBall(g, 1, apexX, kFootSpotY);
    const BallType& apex = g.Balls[1];
    placeBall(g, 6, double(apex.x) + s - nudge, double(apex.y) - h - nudge);
    placeBall(g, 5, double(apex.x) + s - nudge, double(apex.y) + h + nudge);
    placeBall(g, 2, double(apex.x) + 2.0 * s, double(apex.y) - 2.0 * h);
    placeBall(g, 9, double(apex.x) + 2.0 * s, apex.y);
    placeBall(g, 4, double(apex.x) + 2.0 * s, double(apex.y) + 2.0 * h);
    placeBall(g, 7, double(apex.x) + 3.0 * s, double(apex.y) - h);
    placeBall(g, 8, double(apex.x) + 3.0 * s, double(apex.y) + h);
    placeBall(g, 3, double(apex.x) + 4.0 * s, apex.y);

    for (BallType& ball : g.Balls) {
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
