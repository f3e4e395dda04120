#include "cpu/level.h"

#include "cpu/cpu_constants.h"
#include "table/geometry.h"

namespace morvane {

void creditZephMatch(GameState& g, bool humanWon) {
    g.zephProgress = humanWon ? int16_t(g.zephProgress + 1) : int16_t(0);
    if (g.zephProgress >= kWinsToGrow) {
        g.zephLevel = int16_t(minOf(g.zephLevel + 1, int(kZephLevelMax)));
        g.zephProgress = 0;
    }
}

} // namespace morvane
