#include "rules/aiming_input.h"

#include "game/controls.h"
#include "game/view_coords.h"

namespace morvane {

namespace {

// The cue ball may be taken by the mouse on the break and with ball in hand.
bool isCueBallFree(const GameState& g) {
    return g.breakPending || g.ballInHand;
}

// The press is strictly inside the cue ball's radius.
bool isInsideGrabCircle(const GameState& g, float x, float y) {
    const double tx = pixelToTableX(x);
    const double ty = pixelToTableY(y);
    const BallType& cue = g.Balls[kCueBall];
    const double dx = cue.x - tx;
    const double dy = cue.y - ty;
    return dy * dy + dx * dx < double(kBallRadius) * kBallRadius;
}

void aimAtClamped(GameState& g, float x, float y) {
    if (!g.breakPending)
        moveAimTo(g, clampPixelX(x), clampPixelY(y));
}

} // namespace

void picPool_MouseDown(GameState& g, int /*button*/, float x, float y) {
    if (isCueBallFree(g) && isInsideGrabCircle(g, x, y)) {
        g.draggingCueBall = true;
        moveCueBallTo(g, x, y);
        return;
    }
    g.draggingCueBall = false;
    aimAtClamped(g, x, y);
}

void picPool_MouseMove(GameState& g, int buttons, float x, float y) {
    g.controls.lblMenuHover = {false, false, false};
    if (buttons == 0)
        return;
    if (g.draggingCueBall)
        moveCueBallTo(g, x, y);
    else if (!g.breakPending)
        moveAimTo(g, x, y);
}

void picPool_MouseUp(GameState& g, int button, float x, float y) {
    if (button == 0)
        return;
    if (isCueBallFree(g) && isInsideGrabCircle(g, x, y)) {
        moveCueBallTo(g, clampPixelX(x), clampPixelY(y));
        g.draggingCueBall = true;
        g.ports.screen->drawTable();
        g.ports.screen->refreshPool();
        return;
    }
    g.draggingCueBall = false;
    aimAtClamped(g, x, y);
}

} // namespace morvane
