// The one-cushion road: where the cue ball must meet a cushion line to go on to a point, angle in
// equal to angle out.
#pragma once

#include "game/game_state.h"

#include <cstdint>

namespace morvane {

struct BankPoint {
    PointType point;
    bool blocked = false; // one of the two legs is not free, or the road has no bank point
};

// The bank point on cushion 101 to 104 on the way from `from` to `to`. The first leg must be free
// of every object ball, the second of all but `except`.
BankPoint findBankPoint(const GameState& g, const PointType& from, const PointType& to,
                        int16_t cushion, int16_t except);

} // namespace morvane
