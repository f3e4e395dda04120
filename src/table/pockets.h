// The six pockets by number, as the drop picture, zeph's pocket table and the pockets' names
// count them: the top row left to right, then the bottom row.
#pragma once

#include <cstdint>

namespace morvane {

enum Pocket : int16_t {
    kNoPocket = 0,
    kPocketTopLeft = 1,
    kPocketTopMiddle = 2,
    kPocketTopRight = 3,
    kPocketBottomLeft = 4,
    kPocketBottomMiddle = 5,
    kPocketBottomRight = 6,
};

} // namespace morvane
