#include "table/cushions.h"

#include "table/geometry.h"

#include <cmath>

namespace morvane {

namespace {

bool within(float value, double low, double high) {
    return value >= low && value <= high;
}

// Along a side cushion (101, 102) the pockets are the two corners, by y.
int16_t pocketAlongSide(float y, int16_t bottomPocket, int16_t topPocket) {
    if (within(y, kCushionBottomY, kCornerPocketReach))
        return bottomPocket;
    if (within(y, double(kTableWidth) - kCornerPocketReach, kCushionTopY))
        return topPocket;
    return kNoPocket;
}

// Along a long cushion (103, 104) the pockets are the two corners and the middle, by x.
int16_t pocketAlongLong(float x, int16_t leftPocket, int16_t middlePocket, int16_t rightPocket) {
    if (within(x, kCushionLeftX, kCornerPocketReach))
        return leftPocket;
    if (within(x, double(kMiddlePocketX) - kMiddlePocketHalfWidth,
               double(kMiddlePocketX) + kMiddlePocketHalfWidth))
        return middlePocket;
    if (within(x, double(kTableLength) - kCornerPocketReach, kCushionRightX))
        return rightPocket;
    return kNoPocket;
}

int16_t pocketOnCushion(const BallType& b, int cushionId) {
    switch (cushionId) {
    case kCushionLeft:
        return pocketAlongSide(b.y, kPocketBottomLeft, kPocketTopLeft);
    case kCushionRight:
        return pocketAlongSide(b.y, kPocketBottomRight, kPocketTopRight);
    case kCushionTop:
        return pocketAlongLong(b.x, kPocketTopLeft, kPocketTopMiddle, kPocketTopRight);
    case kCushionBottom:
        return pocketAlongLong(b.x, kPocketBottomLeft, kPocketBottomMiddle, kPocketBottomRight);
    default:
        return kNoPocket;
    }
}

struct Rebound {
    double angle;
    double dvx;
    double dvy;
};

// The mirrored direction, and the side spin turned into a push along the cushion, to the right
// of the ball's approach for positive spin.
Rebound reboundFrom(const BallType& b, int cushionId) {
    const double side = b.spinSide;
    switch (cushionId) {
    case kCushionLeft:
        return {kPi - b.angle, 0, side};
    case kCushionRight:
        return {kPi - b.angle, 0, -side};
    case kCushionTop:
        return {-double(b.angle), side, 0};
    default:
        return {-double(b.angle), -side, 0};
    }
}

} // namespace

int16_t checkPocket(BallType& b, int cushionId) {
    const int16_t pocket = pocketOnCushion(b, cushionId);
    if (pocket != kNoPocket) {
        b.onTable = false;
        b.speed = 0;
    }
    return pocket;
}

void bounceCushion(BallType& b, int cushionId) {
    const Rebound r = reboundFrom(b, cushionId);
    b.angle = float(r.angle);
    if (b.speed <= 0)
        b.speed = 0;
    b.spinFollow = 0;
    b.spinSide = 0;
    b.vx = float(std::cos(b.angle) * b.speed + r.dvx);
    b.vy = float(std::sin(b.angle) * b.speed + r.dvy);
    b.speed = float(std::sqrt(double(b.vx) * b.vx + double(b.vy) * b.vy));
    b.angle = getAngle(0, 0, b.vx, b.vy);
}

} // namespace morvane
