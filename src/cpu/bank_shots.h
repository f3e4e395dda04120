// Shots off one cushion: the object ball sent at a pocket's image, or the cue ball sent off a rail
// onto the target.
#pragma once

#include "cpu/shot_plan.h"

namespace morvane {

// The target ball off the cushion that lies ahead of the cue ball, into a far pocket.
void tryObjectBank(const GameState& g, ShotPlan& plan);
// The cue ball off any cushion onto the target's ghost point for any pocket.
void tryCueBank(const GameState& g, ShotPlan& plan);
// The same, where a ball between the target and a pocket becomes the second ball of a combination.
void tryCueBankCombination(const GameState& g, ShotPlan& plan);

} // namespace morvane
