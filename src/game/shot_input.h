// The power bar, the hit point selector and the swing of the break's aim.
#pragma once

#include "game/game_state.h"

namespace morvane {

// Hit point selector, in pixels of its picture.
constexpr float kSetPointSize = 45;
constexpr float kPointDotSize = 5;

// The break swing: a quarter turn of phase in ten ticks, up to pi / 5.6 either side, and a jitter
// of up to a quarter of a degree.
constexpr double kSwingPhaseStep = kPi / 20;
constexpr double kSwingReach = kPi / 5.6;
constexpr double kSwingJitter = kPi / 360;
constexpr float kSwingRadius = 100;
constexpr float kSwingMarkerOffset = 10; // the marker stands this much nearer the head

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
