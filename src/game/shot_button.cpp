#include "game/shot_button.h"

#include "game/controls.h"
#include "game/table_queries.h"
#include "game/timers.h"
#include "table/launch.h"

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

void cmdShot_Click(GameState& g) {
    saveTable(g);
    prepareShot(g);
    launchCueBall(g.Balls[kCueBall], g.aimX, g.aimY, g.controls.power, g.breakPending);
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
