#include "table/geometry.h"

#include <cmath>

namespace morvane {

float getAngle(float x1, float y1, float x2, float y2) {
    const double dx = double(x2) - double(x1);
    const double dy = double(y2) - double(y1);
    if (dx == 0) {
        if (dy > 0)
            return float(kPi / 2);
        if (dy < 0)
            return float(-kPi / 2);
        return 0;
    }
    if (dx > 0)
        return float(std::atan(dy / dx));
    if (dy > 0)
        return float(std::atan(dy / dx) + kPi);
    if (dy < 0)
        return float(std::atan(dy / dx) - kPi);
    return float(kPi);
}

float getDistance(const PointType& p, const PointType& q) {
    const double dx = double(q.x) - double(p.x);
    const double dy = double(q.y) - double(p.y);
    return float(std::sqrt(dy * dy + dx * dx));
}

int16_t getCushionFacing(const PointType& p, const PointType& q) {
    const double a = getAngle(p, q);
    const double c = std::sqrt(2.0) / 2;
    if (std::sin(a) >= c)
        return kCushionTop;
    if (std::sin(a) < -c)
        return kCushionBottom;
    if (std::cos(a) < -c)
        return kCushionLeft;
    return kCushionRight;
}

bool isWithinContact(const BallType& ball, float x, float y) {
    const double dx = double(ball.x) - x;
    const double dy = double(ball.y) - y;
    return dx * dx + dy * dy < double(kContactDistance) * kContactDistance;
}

} // namespace morvane
