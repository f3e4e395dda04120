// A ball on the table: where it is, where it was, how it moves and what spin it carries.
#pragma once

#include "table/constants.h"

#include <array>
#include <cstdint>

namespace morvane {

struct PointType {
    float x = 0;
    float y = 0;
};

struct BallType {
    float x = 0;
    float y = 0;
    float prevX = 0;
    float prevY = 0;
    float vx = 0;
    float vy = 0;
    float spareA = 0;
    float spareB = 0;
    int16_t spareFlag = 0;
    bool onTable = false;
    float speed = 0; // below 0 only after an off-centre break, and then the ball counts as at rest
    float angle = 0;
    float spinFollow = 0;
    float spinSide = 0;
};

using BallArray = std::array<BallType, kBallCount>;

} // namespace morvane
