// Vectors, the cut angle, the ghost point and the places on the table that zeph measures with.
#pragma once

#include "game/game_state.h"
#include "table/geometry.h"

namespace morvane {

// value held between low and high.
template <typename V, typename L, typename H> auto limitTo(V value, L low, H high) {
    return maxOf(minOf(value, high), low);
}

// The vector from one point to another.
PointType vectorFrom(const PointType& from, const PointType& to);
float vectorLength(const PointType& v);
// The angle between two vectors, 0 to pi; 0 when either has no length.
float angleBetween(const PointType& a, const PointType& b);

// Where the cue ball's centre must be at contact to send the ball toward the destination: one
// ball behind it on the line from the destination through the ball.
PointType ghostPoint(const PointType& ball, const PointType& destination);

// Strictly inside the cushion lines.
bool isOnTable(float x, float y);
// A cut of at least 10 degrees from a spot in the middle of the table.
bool isCentralShot(const PointType& spot, float cut);

} // namespace morvane
