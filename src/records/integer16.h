// Numbers from files and clocks brought into the 16-bit fields of the game state.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace morvane {

// The value, or the nearest end of the 16-bit range when it lies outside.
inline int16_t toInteger16(int64_t value) {
    return int16_t(std::clamp<int64_t>(value, std::numeric_limits<int16_t>::min(),
                                       std::numeric_limits<int16_t>::max()));
}

} // namespace morvane
