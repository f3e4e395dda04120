// Small hand-made tables for tests.
#pragma once

#include "game/game_state.h"

#include <initializer_list>

namespace morvane::testing {

struct BallPlace {
    int ball;
    float x;
    float y;
};

// Every ball off the table except those named, each standing still at its place.
inline void setTable(GameState& g, std::initializer_list<BallPlace> places) {
    for (BallType& ball : g.Balls)
        ball = BallType{};
    for (const BallPlace& p : places) {
        BallType& ball = g.Balls[p.ball];
        ball.x = ball.prevX = p.x;
        ball.y = ball.prevY = p.y;
        ball.onTable = true;
    }
}

} // namespace morvane::testing
