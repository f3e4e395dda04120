#include "rules/new_game.h"

#include "game/controls.h"
#include "game/racking.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "game/view_coords.h"

namespace morvane {

namespace {

// shpQBall's top left corner over the cue ball.
void placeCueBallMarker(GameState& g) {
    const BallType& cue = g.Balls[kCueBall];
    g.controls.qBall.left = tableToPixelX(float(double(cue.x) - kBallRadius));
    g.controls.qBall.top = tableToPixelY(float(double(cue.y) + kBallRadius));
}

} // namespace

void newGame(GameState& g) {
    rackBalls(g);
    g.controls.poolKeepsPicture = true;
    g.ports.screen->drawTray();
    g.ports.screen->drawTable();
    placeTarget(g);
    enableShotControls(g);
    g.breakPending = true;
    setTimerEnabled(g, kTimer2, true);
    setTimerEnabled(g, kTimer1, false);
    g.gameSeconds = 0;
    g.shotCount = 0;
    g.turnCount = 0;
    g.foulCount = 0;
    g.targetBall = 0;
    setPower(g, kPowerMax);
    g.controls.target.visible = true;
    g.controls.qBall.visible = false;
    placeCueBallMarker(g);
    setShotControls(g, true);
    g.controls.mnuRetryEnabled = false;
    g.ports.screen->refreshPool();
}

void mnuStart_click(GameState& g) {
    centrePointDot(g);
    newGame(g);
    g.controls.menuVisible = false;
}

} // namespace morvane
