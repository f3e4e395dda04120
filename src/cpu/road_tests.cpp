#include "cpu/road_tests.h"

#include "cpu/shot_geometry.h"

#include <cmath>

namespace morvane {

namespace {

constexpr int16_t kNobody = 0;

// The end test decides whether a ball level with either end of the road is still on it.
enum class RoadEnds { ballAtEndCounts, ballAtEndIsBeside };

bool isBallOnRoad(const BallType& ball, const PointType& from, const PointType& to, float length,
                  RoadEnds ends) {
    const PointType w = vectorFrom(from, centreOf(ball));
    const float s = vectorLength(w);
    if (s == 0)
        return true;
    const PointType d = vectorFrom(from, to);
    const double dot = double(w.x) * d.x + double(w.y) * d.y;
    const float c = float(limitTo(dot / (double(s) * length), -1.0, 1.0));
    const float perpendicular = float(std::sqrt(1 - double(c) * c) * s);
    const float along = float(double(c) * s);
    const bool pastAnEnd =
        ends == RoadEnds::ballAtEndCounts ? (c < 0 || length < along) : (c <= 0 || length <= along);
    return !pastAnEnd && perpendicular < kContactDistance;
}

// The first object ball from 1 to 9, other than `except`, that stands on the road.
int16_t firstBallOnRoad(const GameState& g, const PointType& from, const PointType& to,
                        float length, int16_t except, RoadEnds ends) {
    for (int16_t i = 1; i <= kNineBall; ++i) {
        if (i == except || !g.Balls[i].onTable)
            continue;
        if (isBallOnRoad(g.Balls[i], from, to, length, ends))
            return i;
    }
    return kNobody;
}

// A road of no length counts as blocked.
bool isRoadBlocked(const GameState& g, const PointType& from, const PointType& to, int16_t except,
                   RoadEnds ends) {
    const float length = getDistance(from, to);
    return length == 0 || firstBallOnRoad(g, from, to, length, except, ends) != kNobody;
}

} // namespace

bool isPathBlocked(const GameState& g, const PointType& from, const PointType& to) {
    return isRoadBlocked(g, from, to, kNobody, RoadEnds::ballAtEndCounts);
}

bool isPathBlockedExcept(const GameState& g, const PointType& from, const PointType& to,
                         int16_t except) {
    return isRoadBlocked(g, from, to, except, RoadEnds::ballAtEndIsBeside);
}

int16_t findBlockingBall(const GameState& g, const PointType& from, const PointType& to,
                         int16_t except) {
    const float length = getDistance(from, to);
    if (length == 0)
        return kNobody;
    return firstBallOnRoad(g, from, to, length, except, RoadEnds::ballAtEndIsBeside);
}

bool isSpotBlockedExcept(const GameState& g, float x, float y, int16_t except) {
    for (int16_t i = 1; i <= kNineBall; ++i) {
        if (i != except && g.Balls[i].onTable && isWithinContact(g.Balls[i], x, y))
            return true;
    }
    return false;
}

} // namespace morvane
