#include "table/contact_times.h"

#include "table/geometry.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace morvane {

namespace {

constexpr float kReachMargin = 1;

// Time for a coordinate moving at velocity v to reach the line; 0 if already beyond it.
float timeToLine(float line, float position, float v) {
    const double t = (double(line) - position) / v;
    return t < 0 ? 0.0f : float(t);
}

// A cheap test that a coordinate moving at velocity v towards the line may reach it within the
// limit, with a whole unit of margin; one already beyond the line reaches it at once.
bool isLineWithinReach(float line, float position, float v, float limit) {
    const float gap = v < 0 ? position - line : line - position;
    return !(gap > std::fabs(v) * limit + kReachMargin);
}

// How far a ball runs in one time unit: the length of its velocity, near enough for a test with
// a whole unit of margin.
float paceOf(const BallType& b) {
    return std::sqrt(b.vx * b.vx + b.vy * b.vy);
}

// The reach test is worked for four balls at a time, in lanes of floats.
constexpr int kLanes = 4;
constexpr int kLaneGroups = (kBallCount + kLanes - 1) / kLanes;
using Lanes = float __attribute__((vector_size(kLanes * sizeof(float))));
using LaneTruths = int32_t __attribute__((vector_size(kLanes * sizeof(int32_t))));
using LanePairs = uint64_t __attribute__((vector_size(sizeof(LaneTruths))));

// Where each ball stands and how far it runs in one time unit, ball k in lane k % 4 of group
// k / 4; the lanes past the last ball stay empty.
struct Reaches {
    alignas(sizeof(Lanes)) std::array<float, kLaneGroups * kLanes> x{};
    alignas(sizeof(Lanes)) std::array<float, kLaneGroups * kLanes> y{};
    alignas(sizeof(Lanes)) std::array<float, kLaneGroups * kLanes> pace{};

    static Lanes group(const std::array<float, kLaneGroups * kLanes>& values, int g) {
        Lanes lanes;
        std::memcpy(&lanes, &values[size_t(g * kLanes)], sizeof lanes);
        return lanes;
    }

    // The balls that ball i may touch within the limit, as bits. It never turns away a pair whose
    // timeToBall would be within the limit: it keeps a margin of a whole table unit, far beyond
    // the rounding of floats over a table of a few thousand units.
    unsigned near(int i, float limit) const {
        const float xi = x[size_t(i)];
        const float yi = y[size_t(i)];
        const float reachOfI = kContactDistance + pace[size_t(i)] * limit + kReachMargin;
        // Ball k's truth is kept as bit k, in the lane where it was found.
        const auto nearInGroup = [&](int g) {
            const Lanes dx = xi - group(x, g);
            const Lanes dy = yi - group(y, g);
            const Lanes within = reachOfI + group(pace, g) * limit;
            const LaneTruths isNear = !(dx * dx + dy * dy > within * within);
            return isNear & (LaneTruths{1, 2, 4, 8} << (g * kLanes));
        };
        static_assert(kLaneGroups == 3, "the groups are taken one by one");
        const LaneTruths found = nearInGroup(0) | nearInGroup(1) | nearInGroup(2);
        // The lanes folded together two by two.
        const LanePairs halves = std::bit_cast<LanePairs>(found);
        const uint64_t pair = halves[0] | halves[1];
        return unsigned(pair | pair >> 32);
    }
};

// The earlier root of |p + v t| = 100, with p and v the position and velocity of i less j's,
// for two balls on the table.
inline float timeBetween(const BallType& bi, const BallType& bj) {
    const double dx = double(bi.x) - bj.x;
    const double dy = double(bi.y) - bj.y;
    const double dvx = double(bi.vx) - bj.vx;
    const double dvy = double(bi.vy) - bj.vy;

    const double b = -(dx * dvx + dy * dvy);
    if (b <= 0)
        return kNoContactTime; // not closing
    const double a = dvx * dvx + dvy * dvy;
    if (a == 0)
        return kNoContactTime;
    const double cross = dy * dvx - dx * dvy;
    const double d = double(kContactDistance) * kContactDistance * a - cross * cross;
    if (d <= 0)
        return kNoContactTime; // they pass without touching
    const double t = (b - std::sqrt(d)) / a;
    return t < 0 ? 0.0f : float(t); // already overlapping: at once
}

// The two cushions that face each other across one axis of the table: the one a ball running
// down the axis meets, and the one a ball running up it meets.
struct FacingCushions {
    float lowLine;
    int lowCushion;
    float highLine;
    int highCushion;
};
constexpr FacingCushions kAcross{kCushionLeftX, kCushionLeft, kCushionRightX, kCushionRight};
constexpr FacingCushions kUpAndDown{kCushionBottomY, kCushionBottom, kCushionTopY, kCushionTop};

// Offers the cushion that ball i runs towards along one axis, at position with velocity v. A
// cushion that the ball runs away from or along gives no contact, and one it cannot reach
// before the best time so far or the frame's end is not worked out.
inline void offerCushionAhead(NextContact& next, int i, float position, float v,
                              const FacingCushions& sides, float timeLeft) {
    if (!(v < 0 || v > 0))
        return;
    const bool low = v < 0;
    const float line = low ? sides.lowLine : sides.highLine;
    if (isLineWithinReach(line, position, v, minOf(next.time, timeLeft)))
        next.offer(timeToLine(line, position, v), i, low ? sides.lowCushion : sides.highCushion);
}

} // namespace

float timeToCushion(const BallType& b, int cushionId) {
    if (b.speed == 0 || !b.onTable)
        return kNoContactTime;
    switch (cushionId) {
    case kCushionLeft:
        return b.vx < 0 ? timeToLine(kCushionLeftX, b.x, b.vx) : kNoContactTime;
    case kCushionRight:
        return b.vx > 0 ? timeToLine(kCushionRightX, b.x, b.vx) : kNoContactTime;
    case kCushionTop:
        return b.vy > 0 ? timeToLine(kCushionTopY, b.y, b.vy) : kNoContactTime;
    case kCushionBottom:
        return b.vy < 0 ? timeToLine(kCushionBottomY, b.y, b.vy) : kNoContactTime;
    default:
        return kNoContactTime;
    }
}

float timeToBall(const BallType& bi, const BallType& bj) {
    if (!bi.onTable || !bj.onTable)
        return kNoContactTime;
    return timeBetween(bi, bj);
}

// A pair is offered once: from the lower moving ball's side, as the full search did first, since
// the other side gives the very same time and could only tie. Cushions and balls too far away to
// reach before the best time so far, or before the frame's end, are not worked out: past the
// frame's end any contact is as good as none. A ball's pairs are picked out once its cushions
// have been asked, so that the best time so far is as short as it can be.
NextContact findNextContact(const BallArray& balls, float timeLeft) {
    unsigned onTable = 0;
    unsigned moving = 0;
    Reaches reaches;
    for (size_t k = 0; k < kBallCount; ++k) {
        const BallType& b = balls[k];
        onTable |= unsigned(b.onTable) << k;
        moving |= unsigned(isMoving(b)) << k;
        reaches.x[k] = b.x;
        reaches.y[k] = b.y;
        reaches.pace[k] = paceOf(b);
    }
    NextContact next;
    for (unsigned rest = moving; rest != 0; rest &= rest - 1) {
        const int i = std::countr_zero(rest);
        const BallType& bi = balls[i];
        offerCushionAhead(next, i, bi.x, bi.vx, kAcross, timeLeft);
        offerCushionAhead(next, i, bi.y, bi.vy, kUpAndDown, timeLeft);
        const unsigned lowerMoving = moving & ((1u << i) - 1);
        unsigned partners = onTable & ~lowerMoving & ~(1u << i);
        if (partners == 0)
            continue;
        partners &= reaches.near(i, minOf(next.time, timeLeft));
        for (; partners != 0; partners &= partners - 1) {
            const int j = std::countr_zero(partners);
            next.offer(timeBetween(bi, balls[j]), i, j);
        }
    }
    return next;
}

} // namespace morvane
