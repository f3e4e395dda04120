// The power bar, the hit point selector and the swing of the break's aim.
#pragma once

#include "table/game_state.h"

namespace morvane {

// Sets HScroll1's value; its change event comes only when the value changes.
void setPower(GameState& g, int16_t value);
void HScroll1_Change(GameState& g);
void picSetPoint_MouseDown(GameState& g, float x, float y);
// shpPoint back to the middle of the ball.
void centrePointDot(GameState& g);
void Timer2_Timer(GameState& g);

} // namespace morvane
