// What makes a table from the input one the game itself could stand on, beyond the range of each
// number: the cue ball on the table, no two balls in one place, and a break from a rack with the
// aim that the break swing gives. Each check returns an empty text when all is well, else one line
// naming the field at fault.
#pragma once

#include "table/ball.h"

#include <string>

namespace morvane::sim {

// The object balls stand where the rack puts them, each within a hundredth of a unit.
bool isRacked(const BallArray& balls);
// The cue ball is on the table, and no two balls on it are closer than a ball's width; only the
// rack's own balls stand a little closer, as the game racks them.
std::string checkBallPlaces(const BallArray& balls);
// A break needs a racked table and an aim on the arc that the break swing runs along.
std::string checkBreak(const BallArray& balls, const PointType& aim);
// The break's aim when none is given: the middle of the swing, straight at the rack.
PointType straightBreakAim();

} // namespace morvane::sim
