// The picture surfaces of the main window: the sprite sheet, the ball sprites, the back buffer and
// the view of the table, the tray of pocketed balls and the information bar. All are of the scale
// of the sheet they are made from; their sizes below are in the layout's pixels.
#pragma once

#include <QImage>

namespace morvane {

// Sizes and places in the layout's pixels.
constexpr int kSheetWidth = 540;
constexpr int kSheetHeight = 360;
constexpr int kTableBlockHeight = 300;
constexpr int kViewWidth = 540;
constexpr int kViewHeight = 299;
constexpr int kSpriteBlockTop = 300;
constexpr int kSpriteBlockWidth = 220;
constexpr int kSpriteBlockHeight = 40;
constexpr int kCell = 20;
constexpr int kRestingRow = 0;
constexpr int kRollingRow = 20;
constexpr int kMaskX = 200;
constexpr int kMaskY = 0;
constexpr int kShadowX = 200;
constexpr int kShadowY = 20;
constexpr int kTrayWidth = 183;
constexpr int kTrayHeight = 25;
constexpr int kInfoWidth = 321;
constexpr int kInfoHeight = 25;
constexpr int kSetPointPixels = 45;
// The cue ball picture of the hit point selector, in the 256-colour sheet.
constexpr int kSheetCueBallX = 495;
constexpr int kSheetCueBallY = 300;

struct Surfaces {
    QImage picTable;    // the sheet: table and every sprite; never shown
    QImage picBalls;    // row 0 the balls at rest and the mask, row 1 rolling and the shadow
    QImage backBuffer;  // picPool(1): each frame is built here
    QImage view;        // picPool(0): what the table view shows
    QImage tray;        // picPocketedBalls
    QImage information; // picInfomation
    QImage setPoint;    // the cue ball picture of picSetPoint
};

// Empty surfaces around the given sheet and cue ball picture; the ball sprites are cut out at
// once, as loadBallSprites does.
Surfaces makeSurfaces(const QImage& sheet, const QImage& cueBallPicture);
void loadBallSprites(Surfaces& s);

} // namespace morvane
