// The judging of a shot when all balls rest: fouls, the put-back of what fell, the nine.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

enum class ShotOutcome { CueBallFoul, MissFoul, GameOver, Legal };

ShotOutcome judgeShot(const GameState& g);
// The message of a foul for the mode and the shooter, or "" where none is shown.
std::string foulMessage(const GameState& g, ShotOutcome foul);
// Puts back what fell on a foul, in the order of falling.
void respotBalls(GameState& g);
// Speed and spin of all ten balls to 0; direction and velocity stay.
void clearMotion(GameState& g);

} // namespace morvane
