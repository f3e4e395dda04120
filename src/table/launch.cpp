#include "table/launch.h"

#include "table/controls.h"
#include "table/table_queries.h"
#include "table/timers.h"

#include <cmath>

namespace morvane {

void saveTable(GameState& g) {
    g.BallsSaved = g.Balls;
    g.ballInHandSaved = g.ballInHand;
}

void prepareShot(GameState& g) {
    g.firstHitBall = 0;
    g.targetBall = getLowestBall(g);
    g.firstHitPending = true;
    g.pocketedCount = 0;
    g.pocketedThisShot.fill(0);
}

void launchCueBall(GameState& g) {
    BallType& cue = g.Balls[kCueBall];
    const double perPercent = double(kFullPower) / kPowerMax;
    const double breakFactor = g.breakPending ? kBreakPowerFactor : 1.0;
    cue.speed = float(perPercent * g.controls.power * breakFactor);
    cue.angle = getCueAngle(g);
    cue.vx = float(cue.speed * std::cos(cue.angle));
    cue.vy = float(cue.speed * std::sin(cue.angle));
    // From here on the spins are velocities: a full hit point gives 0.3 of the speed as follow
    // and 0.6 as side spin.
    cue.spinFollow = float(cue.spinFollow * double(cue.speed) * kFastSlowBoundary / kFullPower);
    cue.spinSide = float(2 * cue.spinSide * double(cue.speed) * kFastSlowBoundary / kFullPower);
}

void cmdShot_Click(GameState& g) {
    saveTable(g);
    prepareShot(g);
    launchCueBall(g);
    g.controls.target.visible = false;
    g.controls.qBall.visible = false;
    g.controls.poolKeepsPicture = false;
    setShotControls(g, false);
    setTimerEnabled(g, kTimer1, true);
    setTimerEnabled(g, kTimer2, false);
    setTimerEnabled(g, kTimTimeCounter, true);
    g.ballInHand = false;
    ++g.shotCount;
}

} // namespace morvane
