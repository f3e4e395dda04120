#include "table/contact_times.h"

#include <cmath>

namespace morvane {

namespace {

// Time for a coordinate moving at velocity v to reach the line; 0 if already beyond it.
float timeToLine(float line, float position, float v) {
    const double t = (double(line) - position) / v;
    return t < 0 ? 0.0f : float(t);
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

} // namespace morvane
