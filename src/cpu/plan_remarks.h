// What zeph says of the shot he has chosen: one remark for each strategy, told apart for the
// shots whose pocket road holds another ball.
#pragma once

#include "cpu/shot_plan.h"

namespace morvane {

// The remark for the plan as chosen, or that there is nothing to do when no shot was found.
Remark remarkOf(const ShotPlan& plan);

} // namespace morvane
