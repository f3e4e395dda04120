#include "table/contact_times.h"

#include "table/geometry.h"

#include <array>
#include <bit>
#include <cmath>

namespace morvane {

namespace {

constexpr double kReachMargin = 1;

// Time for a coordinate moving at velocity v to reach the line; 0 if already beyond it.
float timeToLine(float line, float position, float v) {
    const double t = (double(line) - position) / v;
    return t < 0 ? 0.0f : float(t);
}

// How far a ball runs in one time unit: the length of its velocity.
double paceOf(const BallType& b) {
    return std::sqrt(double(b.vx) * b.vx + double(b.vy) * b.vy);
}

// A cheap test that two balls, together running no faster than reach, cannot touch within the
// time limit. It never turns away a pair whose timeToBall would be within the limit: it keeps a
// margin of a whole table unit, far beyond any rounding.
bool isOutOfReach(const BallType& bi, const BallType& bj, double reach, double limit) {
    const double dx = double(bi.x) - bj.x;
    const double dy = double(bi.y) - bj.y;
    const double within = double(kContactDistance) + reach * limit + kReachMargin;
    return dx * dx + dy * dy > within * within;
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

// The earlier root of |p + v t| = 100, with p and v the position and velocity of i less j's.
float timeToBall(const BallType& bi, const BallType& bj) {
    if (!bi.onTable || !bj.onTable)
        return kNoContactTime;
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

// A pair is offered once: from the lower moving ball's side, as the full search did first, since
// the other side gives the very same time and could only tie. Pairs too far apart to touch
// before the best time so far, or before the frame's end, are not worked out: past the frame's
// end any contact is as good as none.
NextContact findNextContact(const BallArray& balls, float timeLeft) {
    unsigned onTable = 0;
    unsigned moving = 0;
    std::array<double, kBallCount> pace;
    for (int k = 0; k < kBallCount; ++k) {
        onTable |= balls[k].onTable ? 1u << k : 0;
        moving |= isMoving(balls[k]) ? 1u << k : 0;
        pace[k] = paceOf(balls[k]);
    }
    NextContact next;
    for (unsigned rest = moving; rest != 0; rest &= rest - 1) {
        const int i = std::countr_zero(rest);
        const BallType& bi = balls[i];
        // A cushion that the ball runs away from or along gives no contact: it is not asked.
        if (bi.vx < 0)
            next.offer(timeToCushion(bi, kCushionLeft), i, kCushionLeft);
        if (bi.vx > 0)
            next.offer(timeToCushion(bi, kCushionRight), i, kCushionRight);
        if (bi.vy > 0)
            next.offer(timeToCushion(bi, kCushionTop), i, kCushionTop);
        if (bi.vy < 0)
            next.offer(timeToCushion(bi, kCushionBottom), i, kCushionBottom);
        const unsigned lowerMoving = moving & ((1u << i) - 1);
        for (unsigned partners = onTable & ~lowerMoving & ~(1u << i); partners != 0;
             partners &= partners - 1) {
            const int j = std::countr_zero(partners);
            const double limit = minOf(double(next.time), double(timeLeft));
            if (!isOutOfReach(bi, balls[j], pace[i] + pace[j], limit))
                next.offer(timeToBall(bi, balls[j]), i, j);
        }
    }
    return next;
}

} // namespace morvane
