// The five sound effects of the table, synthesised from decaying partials and filtered noise.
#pragma once

#include <vector>

namespace morvane::assets {

// How far below their old full-scale peaks the effects now peak, at the same loudness: the
// hardest click at 0.52 of full scale, which with the music's loudest moment (0.47) stays
// clear of clipping however the two meet.
inline constexpr double kEffectHeadroom = 0.52 / 0.9;

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
