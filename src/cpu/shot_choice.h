// What zeph's level decides in a shot: the strategies and their order, the power, and the chance
// that the aim is spoiled.
#pragma once

#include "cpu/shot_plan.h"

#include <cstdint>

namespace morvane {

// The chance that the aim is disturbed at this level.
float getMissChance(int16_t level);
// The power bar's value for a plan: full at levels 1 and 2, else from the two runs.
int16_t powerForPlan(int16_t level, const ShotPlan& plan);
// The plan that the strategies of this level find on the table as it stands, starting from the
// aim as it stands. The plan names the strategy that improved it last.
ShotPlan choosePlan(const GameState& g, int16_t level);

} // namespace morvane
