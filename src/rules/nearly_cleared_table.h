// A test-only way to reach the end of a solo game at once: once the break has come to rest, every
// ball but the nine leaves the table, and the nine and the cue ball stand in line with the top
// middle pocket, so that the shot the game aims by itself sinks the nine. The window offers it
// only when MORVANE_NEARLY_CLEARED is set; the journey test under Xvfb plays through it.
#pragma once

#include "game/game_state.h"

namespace morvane {

// A solo game after its break, at rest, whose table isn't nearly cleared yet.
bool wantsNearlyClearedTable(const GameState& g);
// Balls 1 to 8 off, the nine and the cue ball on their spots, the aim on the nine; redrawn.
void clearAllButTheNine(GameState& g);

} // namespace morvane
