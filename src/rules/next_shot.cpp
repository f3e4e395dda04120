#include "rules/next_shot.h"

#include "game/controls.h"
#include "game/shot_input.h"
#include "game/table_queries.h"
#include "game/timers.h"
#include "game/view_coords.h"
#include "rules/match.h"

#include <cmath>

namespace morvane {

namespace {

void handTurnToZeph(GameState& g) {
    disableShotControls(g);
    setTimerEnabled(g, kTimCom, true);
}

} // namespace

void setDefaultAim(GameState& g) {
    const int16_t n = getLowestBall(g);
    g.aimX = g.Balls[n].x;
    g.aimY = g.Balls[n].y;
    const double a = getCueAngle(g);
    const float touchX = float(g.aimX - kBallDiameter * std::cos(a));
    const float touchY = float(g.aimY - kBallDiameter * std::sin(a));
    moveAimTo(g, tableToPixelX(touchX), tableToPixelY(touchY));
}

void showCueBallInHand(GameState& g) {
    const BallType& cue = g.Balls[kCueBall];
    moveCueBallTo(g, tableToPixelX(cue.x), tableToPixelY(cue.y));
    g.controls.qBall.visible = true;
}

void updateBackAvailability(GameState& g) {
    g.controls.mnuRetryEnabled = g.gameMode == kModeSolo;
}

void showTableAtRest(GameState& g) {
    g.ports.screen->drawTable();
    g.controls.target.visible = true;
    g.ports.screen->drawBallNow(kCueBall);
    g.ports.screen->refreshPool();
}

void aimAtLowestBall(GameState& g) {
    if (getLowestBall(g) == 0)
        return;
    setDefaultAim(g);
    g.controls.target.visible = true;
    if (g.ballInHand)
        showCueBallInHand(g);
    else
        g.controls.qBall.visible = false;
}

void setUpNextShot(GameState& g) {
    showTableAtRest(g);
    aimAtLowestBall(g);
    g.ports.screen->drawTray();
    setShotControls(g, true);
    updateBackAvailability(g);
    enableShotControls(g);

    centrePointDot(g);
    g.ports.screen->refreshPool();

    if (g.gameMode == kModeVersus) {
        showShooterOnButton(g, g.turnCount);
        if (getShooterIndex(g, g.turnCount) == 1 && g.versusCpu)
            handTurnToZeph(g);
    } else if (g.gameMode == kModeDemo) {
        handTurnToZeph(g);
    }
    g.ports.screen->drawInformation();
}

} // namespace morvane
