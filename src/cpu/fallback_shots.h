// When zeph sees no pot it tries at least to touch the target ball first. Both act only while the
// plan has found nothing.
#pragma once

#include "cpu/shot_plan.h"

namespace morvane {

// A thin hit on either side of the target, from where the cue ball stands.
void tryJustHit(const GameState& g, ShotPlan& plan);
// The target's centre by way of the cushion that makes the shortest road.
void tryCushionHit(const GameState& g, ShotPlan& plan);

} // namespace morvane
