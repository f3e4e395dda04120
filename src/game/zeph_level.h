// zeph's level: the one number of his strength, 1 to 11 whenever it is read.
#pragma once

#include <cstdint>

namespace morvane {

constexpr int16_t kZephLevelMin = 1;
constexpr int16_t kZephLevelMax = 11;

} // namespace morvane
