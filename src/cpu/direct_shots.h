// Potting the target ball straight from where the cue ball stands.
#pragma once

#include "cpu/shot_plan.h"

namespace morvane {

// The pocket with the smallest cut whose ghost point the cue ball can reach.
void tryDirect(const GameState& g, ShotPlan& plan);
// The same, where a ball between the target and a pocket becomes the second ball of a combination.
void tryDirectCombination(const GameState& g, ShotPlan& plan);

} // namespace morvane
