#include "cpu/shot_geometry.h"

#include "cpu/cpu_constants.h"

#include <cmath>

namespace morvane {

PointType vectorFrom(const PointType& from, const PointType& to) {
    return {float(double(to.x) - from.x), float(double(to.y) - from.y)};
}

float vectorLength(const PointType& v) {
    return float(std::sqrt(double(v.y) * v.y + double(v.x) * v.x));
}

float angleBetween(const PointType& a, const PointType& b) {
    const float lengthA = vectorLength(a);
    const float lengthB = vectorLength(b);
    if (lengthA == 0 || lengthB == 0)
        return 0;
    const double dot = double(a.y) * b.y + double(a.x) * b.x;
    const float c = float(limitTo(dot / (double(lengthA) * lengthB), -1.0, 1.0));
    if (c == 0)
        return float(double(kPiSingle) / 2);
    const double opposite = std::sqrt(1 - double(c) * c) / c;
    if (c > 0)
        return float(std::atan(opposite));
    return float(std::atan(opposite) + kPiSingle);
}

PointType ghostPoint(const PointType& ball, const PointType& destination) {
    const double a = double(getAngle(ball, destination)) + kPi;
    return {float(ball.x + kBallDiameter * std::cos(a)),
            float(ball.y + kBallDiameter * std::sin(a))};
}

bool isOnTable(float x, float y) {
    return kCushionLeftX < x && x < kCushionRightX && kCushionBottomY < y && y < kCushionTopY;
}

bool isCentralShot(const PointType& spot, float cut) {
    return cut >= kCentralShotMinCut && kCentralMarginX < spot.x &&
           spot.x < kTableLength - kCentralMarginX && kCentralMarginY < spot.y &&
           spot.y < kTableWidth - kCentralMarginY;
}

} // namespace morvane
