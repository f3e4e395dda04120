#include "table/launch.h"

#include "table/geometry.h"

#include <cmath>

namespace morvane {

void launchCueBall(BallType& cue, float aimX, float aimY, int16_t power, bool isBreak) {
    const double perPercent = double(kFullPower) / kPowerMax;
    const double breakFactor = isBreak ? kBreakPowerFactor : 1.0;
    cue.speed = float(perPercent * power * breakFactor);
    cue.angle = getAngle(cue.x, cue.y, aimX, aimY);
    cue.vx = float(cue.speed * std::cos(cue.angle));
    cue.vy = float(cue.speed * std::sin(cue.angle));
    // From here on the spins are velocities: a full hit point gives 0.3 of the speed as follow
    // and 0.6 as side spin.
    cue.spinFollow = float(cue.spinFollow * double(cue.speed) * kFastSlowBoundary / kFullPower);
    cue.spinSide = float(2 * cue.spinSide * double(cue.speed) * kFastSlowBoundary / kFullPower);
}

} // namespace morvane
