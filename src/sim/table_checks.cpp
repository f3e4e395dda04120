#include "sim/table_checks.h"

#include "game/shot_input.h"
#include "table/rack.h"

#include <cmath>

namespace morvane::sim {

namespace {

constexpr double kRackTolerance = 0.01;
// Two balls given as touching may come out a hair closer once their places are Singles.
constexpr double kTouchTolerance = 0.001;
// The swing's arc: a ball's width from the foot spot, as far to either side as the swing and its
// jitter reach.
constexpr double kArcTolerance = 0.5;
constexpr double kArcReach = kSwingReach + kSwingJitter / 2 + 1e-6;

double distanceOf(const BallType& a, const BallType& b) {
    return std::hypot(double(a.x) - b.x, double(a.y) - b.y);
}

std::string ballName(int n) {
    return "balls[" + std::to_string(n) + "]";
}

} // namespace

bool isRacked(const BallArray& balls) {
    BallArray racked;
    rackBalls(racked);
    for (int n = 1; n < kBallCount; ++n) {
        if (!balls[n].onTable || distanceOf(balls[n], racked[n]) > kRackTolerance)
            return false;
    }
    return true;
}

std::string checkBallPlaces(const BallArray& balls) {
    if (!balls[kCueBall].onTable)
        return "balls[0]: the cue ball must be on the table";
    const bool racked = isRacked(balls);
    for (int a = 0; a < kBallCount; ++a) {
        for (int b = a + 1; b < kBallCount; ++b) {
            if (!balls[a].onTable || !balls[b].onTable || (racked && a != kCueBall))
                continue;
            if (distanceOf(balls[a], balls[b]) < kBallDiameter - kTouchTolerance)
                return ballName(b) + ": overlaps " + ballName(a) +
                       " (centres closer than a ball's width, 100)";
        }
    }
    return "";
}

std::string checkBreak(const BallArray& balls, const PointType& aim) {
    if (!isRacked(balls))
        return "balls: a break needs the object balls where the rack puts them";
    const double fromFoot = std::hypot(double(aim.x) - kFootSpotX, double(aim.y) - kFootSpotY);
    const double side = std::atan2(double(aim.y) - kFootSpotY, double(kFootSpotX) - aim.x);
    if (std::fabs(fromFoot - kSwingRadius) > kArcTolerance || std::fabs(side) > kArcReach)
        return "aim: a break is aimed where the swing puts it, 100 from the foot spot (1800, 600) "
               "towards the head, at most 32.4 degrees to either side";
    return "";
}

PointType straightBreakAim() {
    return {kFootSpotX - kSwingRadius, kFootSpotY};
}

} // namespace morvane::sim
