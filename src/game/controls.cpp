#include "game/controls.h"

#include "game/view_coords.h"

namespace morvane {

namespace {

void placeMarker(MarkerState& marker, float px, float py) {
    marker.left = float(double(px) - kBallPixels * 0.5);
    marker.top = float(double(py) - kBallPixels * 0.5);
}

} // namespace

void moveCueBallTo(GameState& g, float px, float py) {
    placeMarker(g.controls.qBall, px, py);
    g.Balls[kCueBall].x = pixelToTableX(px);
    g.Balls[kCueBall].y = pixelToTableY(py);
}

void moveAimTo(GameState& g, float px, float py) {
    placeMarker(g.controls.target, px, py);
    g.aimX = pixelToTableX(px);
    g.aimY = pixelToTableY(py);
}

void placeTarget(GameState& g) {
    placeMarker(g.controls.target, tableToPixelX(g.aimX), tableToPixelY(g.aimY));
}

void setShotControls(GameState& g, bool enabled) {
    g.controls.setPointEnabled = enabled;
    g.controls.powerEnabled = enabled;
    g.controls.shotEnabled = enabled;
}

void enableShotControls(GameState& g) {
    setShotControls(g, true);
    g.controls.poolEnabled = true;
}

void disableShotControls(GameState& g) { setShotControls(g, false); }

} // namespace morvane
