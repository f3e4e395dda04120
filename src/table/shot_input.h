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
// Carries the swing's phase on by ticks that were due but never fired, as if it had swung all
// along, so that a swing that rested goes on from a phase nobody could foresee.
void carrySwingOn(GameState& g, int64_t missedTicks);

} // namespace morvane
