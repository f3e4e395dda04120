// Small hand-made tables for zeph's tests.
#pragma once

#include "cpu/pocket_table.h"
#include "cpu/shot_plan.h"
#include "game/game_state.h"

#include <cstdint>
#include <string>

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

// The worked table: the cue ball on the head spot, ball 1 alone at (1800, 700).
inline GameState workedTable() {
    GameState g = tableWithCueAt(600, 600);
    putBall(g, 1, 1800, 700);
    return g;
}

// Ball 2 halfway between the cue ball (600, 800) and ball 1 (2000, 800) shuts every straight road;
// the aim stands on ball 1.
inline GameState shutInTable() {
    GameState g = tableWithCueAt(600, 800);
    putBall(g, 1, 2000, 800);
    putBall(g, 2, 1300, 800);
    g.aimX = 2000;
    g.aimY = 800;
    return g;
}

// The remark a strategy leaves on a Japanese system, from a plan that has found nothing yet.
template <typename Strategy> std::string japaneseRemarkOf(GameState g, Strategy strategy) {
    g.isJapanese = true;
    ShotPlan plan = startPlan(g);
    strategy(g, plan);
    return g.controls.zephsMessage;
}

inline double degrees(double radians) {
    return radians * 180 / 3.14159265358979;
}

} // namespace morvane::cputest
