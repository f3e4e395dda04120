// The table view built from bitmaps: the table, then every shadow, then every ball, in the back
// buffer; the finished frame goes to the view in one copy. Also the tray of pocketed balls.
#pragma once

#include "game/game_state.h"
#include "screen/surfaces.h"

namespace morvane {

// Steps of one frame, into the back buffer.
void drawBallShadow(const GameState& g, Surfaces& s, int i);
void drawBall(const GameState& g, Surfaces& s, int i);
// The whole frame, back buffer first, then copied to the view.
void drawTableFrame(const GameState& g, Surfaces& s);
// Ball i at rest, straight onto the view.
void drawBallOnView(const GameState& g, Surfaces& s, int i);
// Ball n going down pocket 1 to 6: nine stamps along a path shorter than a pixel, on the view.
void drawBallDropOnView(Surfaces& s, int n, int pocket);
// Each pocketed object ball in its own place, 1 at the left and 9 at the right.
void drawPocketedTray(const GameState& g, Surfaces& s);
// The top left pixel of a ball's 20 by 20 cell, as drawn.
QPoint ballCellOrigin(const BallType& ball);
// The top left pixel of a ball's shadow, thrown to the lower right except in a pocket's mouth.
QPoint shadowCellOrigin(const BallType& ball);

} // namespace morvane
