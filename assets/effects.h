// The five sound effects of the table, synthesised from decaying partials and filtered noise.
#pragma once

#include <vector>

namespace morvane::assets {

// The effects in the mix. Each is as loud as a sound reaching its nominal peak (the hardest
// click 0.9 of full scale) turned down by kEffectLevel, 2.2 dB, as the music is turned down
// below its usual gain, so that the two keep their balance. A limiter then holds the hardest
// click to kEffectCeiling, which with the music's loudest moment (0.54) stays clear of full
// scale however the two meet, and each softer sound to a ceiling lower by the square root of
// its nominal peak, so that the softer sounds are held back less and the peaks keep the order
// of their strength.
inline constexpr double kEffectLevel = 0.776;
inline constexpr double kEffectCeiling = 0.43;
inline constexpr double kLoudestNominalPeak = 0.9;

struct Effect {
    const char* file;
    std::vector<double> (*samples)();
};

// Two balls meeting: a bright tick, softer or harder.
std::vector<double> ballClick(double strength);
// A ball going down: the knock on the pocket's edge, a rattle, and a thud at the bottom.
std::vector<double> pocketDrop();
// A ball against a cushion: a dull, muffled thump.
std::vector<double> cushionThump();

const std::vector<Effect>& allEffects();

} // namespace morvane::assets
