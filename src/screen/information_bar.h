// The information bar at the top left of the game: who plays, the score so far and the ball to
// hit next. It is drawn whole every time.
#pragma once

#include "game/game_state.h"
#include "screen/surfaces.h"

#include <string>

namespace morvane {

// The line of text the bar prints for the present mode; "" in the modes that draw nothing.
std::string informationText(const GameState& g);
// Repaints the bar from the game state; in the menu and record modes it keeps what it had.
void showInfomation(const GameState& g, Surfaces& s);

} // namespace morvane
