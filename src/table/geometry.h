// Angles and distances on the table, shared by the physics and by zeph.
#pragma once

#include "table/ball.h"

#include <cstdint>

namespace morvane {

// Direction in radians from the first point to the second; 0 when the points are equal.
float getAngle(float x1, float y1, float x2, float y2);
inline float getAngle(const PointType& from, const PointType& to) {
    return getAngle(from.x, from.y, to.x, to.y);
}

float getDistance(const PointType& p, const PointType& q);

// The cushion that the direction from p to q points at: 101 to 104.
int16_t getCushionFacing(const PointType& p, const PointType& q);

// On a tie both give the second argument.
template <typename A, typename B> auto maxOf(A a, B b) {
    return a > b ? a : b;
}
template <typename A, typename B> auto minOf(A a, B b) {
    return a < b ? a : b;
}

inline PointType centreOf(const BallType& ball) {
    return {ball.x, ball.y};
}

// The ball's centre lies strictly nearer than a ball's diameter to (x, y).
bool isWithinContact(const BallType& ball, float x, float y);

} // namespace morvane
