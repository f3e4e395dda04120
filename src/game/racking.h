// A new rack for the game: the ten balls at their start points and the aim on the apex ball.
#pragma once

#include "game/game_state.h"
#include "table/rack.h"

namespace morvane {

inline void rackBalls(GameState& g) {
    rackBalls(g.Balls);
    g.aimX = g.Balls[1].x;
    g.aimY = g.Balls[1].y;
}

} // namespace morvane
