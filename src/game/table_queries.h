// Questions about the table and the players that every layer asks.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// The lowest numbered object ball on the table, or 0 when all nine are down.
int16_t getLowestBall(const GameState& g);
// Direction from the cue ball's centre to the aim point.
float getCueAngle(const GameState& g);
// Nine characters: the digit k where ball k is down, "0" where it is still on the table.
std::string getPocketedString(const GameState& g);
// Some ball on the table has its centre strictly nearer than 100 to (x, y).
bool isSpotBlocked(const GameState& g, float x, float y);
bool isAllStopped(const GameState& g);
// Index in players of who shoots on that turn, and that player's trimmed name.
int16_t getShooterIndex(const GameState& g, int16_t turn);
std::string getShooterName(const GameState& g, int16_t turn);

} // namespace morvane
