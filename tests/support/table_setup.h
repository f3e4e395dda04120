// Small hand-made tables of the game for tests.
#pragma once

#include "cpu/pocket_table.h"
#include "game/game_state.h"
#include "support/balls.h"

#include <vector>

namespace morvane::testing {

struct BallPlace {
    int ball;
    float x;
    float y;
};

// Every ball off the table except those named, each standing still at its place.
inline void setTable(GameState& g, const std::vector<BallPlace>& places) {
    for (BallType& ball : g.Balls)
        ball = BallType{};
    for (const BallPlace& p : places) {
        BallType& ball = g.Balls[p.ball];
        ball.x = ball.prevX = p.x;
        ball.y = ball.prevY = p.y;
        ball.onTable = true;
    }
}

// Every object ball off the table, the cue ball at (cueX, cueY), the pockets in place.
inline GameState tableWithCueAt(float cueX, float cueY) {
    GameState g;
    g.Balls = emptyTable();
    putBall(g.Balls, kCueBall, cueX, cueY);
    initPocketTable(g);
    return g;
}

// The worked table: the cue ball at (600, 600), ball 1 alone at (1800, 700).
inline GameState workedTable() {
    GameState g = tableWithCueAt(600, 600);
    putBall(g.Balls, 1, 1800, 700);
    return g;
}

// Ball 2 halfway between the cue ball (600, 800) and ball 1 (2000, 800) shuts every straight road;
// the aim stands on ball 1.
inline GameState shutInTable() {
    GameState g = tableWithCueAt(600, 800);
    putBall(g.Balls, 1, 2000, 800);
    putBall(g.Balls, 2, 1300, 800);
    g.aimX = 2000;
    g.aimY = 800;
    return g;
}

inline double degrees(double radians) {
    return radians * 180 / 3.14159265358979;
}

} // namespace morvane::testing
