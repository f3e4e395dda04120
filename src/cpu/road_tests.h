// Whether a road or a spot on the table is free of object balls. Two balls touch at 100 units
// between centres, so a ball stands on a road when its centre lies nearer than that to the line.
#pragma once

#include "game/game_state.h"

#include <cstdint>

namespace morvane {

// A ball exactly at `to` counts as on the road; a road of no length counts as blocked.
bool isPathBlocked(const GameState& g, const PointType& from, const PointType& to);
// Leaves out the ball `except`; a ball exactly at `to` stands beside the road.
bool isPathBlockedExcept(const GameState& g, const PointType& from, const PointType& to,
                         int16_t except);
// The lowest numbered ball on the road, leaving out `except`; 0 if none or the road has no length.
int16_t findBlockingBall(const GameState& g, const PointType& from, const PointType& to,
                         int16_t except);
// Some object ball other than `except` has its centre strictly nearer than 100 to (x, y).
bool isSpotBlockedExcept(const GameState& g, float x, float y, int16_t except);

} // namespace morvane
