#include "rules/undo.h"

#include "game/shot_input.h"
#include "rules/new_game.h"
#include "rules/next_shot.h"
#include "rules/shot_judging.h"
#include "table/pockets.h"

namespace morvane {

void undoShot(GameState& g) {
    if (g.shotCount == 1) {
        mnuStart_click(g);
        return;
    }
    g.Balls = g.BallsSaved;
    clearMotion(g);
    g.ballInHand = g.ballInHandSaved;
    g.shotCount = int16_t(g.shotCount + 1);
    g.turnCount = int16_t(g.turnCount + 1);
    g.foulCount = int16_t(g.foulCount + 1);

    g.controls.poolKeepsPicture = true;
    showTableAtRest(g);
    aimAtLowestBall(g);
    g.ports.screen->drawTray();
    g.controls.shotEnabled = true;
    centrePointDot(g);
    g.ports.screen->refreshPool();
    g.controls.mnuRetryEnabled = false;
}

void mnuRetry_Click(GameState& g) {
    undoShot(g);
}

std::string getPocketName(int16_t PN) {
    switch (PN) {
    case kPocketTopLeft:
        return "左上のポケット";
    case kPocketTopMiddle:
        return "上の真ん中のポケット";
    case kPocketTopRight:
        return "右上のポケット";
    case kPocketBottomLeft:
        return "左下のポケット";
    case kPocketBottomMiddle:
        return "下の真ん中のポケット";
    case kPocketBottomRight:
        return "右下のポケット";
    default:
        return "";
    }
}

} // namespace morvane
