#include "rules/game_clock.h"

namespace morvane {

void timTimeCounter_Timer(GameState& g) {
    g.gameSeconds += 1;
}

} // namespace morvane
