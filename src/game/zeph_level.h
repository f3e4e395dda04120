// zeph's level: the one number of his strength, 1 to 11 whenever it is read.
#pragma once

#include <cstdint>

namespace morvane {

constexpr int16_t kZephLevelMin = 1;
constexpr int16_t kZephLevelMax = 11;
// At his top level zeph is a Master: the captions name him so, not by a number.
constexpr int16_t kZephMasterLevel = kZephLevelMax;

} // namespace morvane
