// Small hand-made tables for zeph's tests.
#pragma once

#include "cpu/pocket_table.h"
#include "table/game_state.h"

#include <cstdint>

namespace morvane::cputest {

// Every object ball off the table, the cue ball at (cueX, cueY), the pockets in place.
inline GameState tableWithCueAt(float cueX, float cueY) {
    GameState g;
    for (BallType& ball : g.Balls)
        ball.onTable = false;
    g.Balls[0] = {};
    g.Balls[0].x = cueX;
    g.Balls[0].y = cueY;
    g.Balls[0].onTable = true;
    initPocketTable(g);
    return g;
}

inline void putBall(GameState& g, int16_t n, float x, float y) {
    g.Balls[n].x = x;
    g.Balls[n].y = y;
    g.Balls[n].onTable = true;
}

inline double degrees(double radians) {
    return radians * 180 / 3.14159265358979;
}

} // namespace morvane::cputest
