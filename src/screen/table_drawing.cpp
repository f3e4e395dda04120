#include "screen/table_drawing.h"

#include "game/text.h"
#include "game/view_coords.h"
#include "screen/blit.h"
#include "screen/fonts.h"
#include "table/pockets.h"

#include <QPainter>
#include <cmath>

namespace morvane {

namespace {

constexpr float kShadowThrow = 2;
constexpr int kHalfBall = 10; // ballPixels / 2
// Outside these bands a ball is in a pocket's mouth and its shadow falls straight under it.
constexpr float kMouthNearX = 50;
constexpr float kMouthFarX = 490;
constexpr float kMiddleMouthLeftX = 250;
constexpr float kMiddleMouthRightX = 290;
constexpr float kMouthNearY = 50;
constexpr float kMouthFarY = 250;

constexpr QRgb kDemoGreen = qRgb(0, 128, 0);
constexpr QPoint kDemoWordAt{100, 75};
constexpr float kDemoWordPoints = 100;
constexpr QPoint kDemoHintAt{100, 200};
constexpr float kDemoHintPoints = 30;
constexpr int kTraySlot = 20;
constexpr int kTrayInset = 1;
constexpr QRgb kTrayGrey = qRgb(64, 64, 64);

struct DropPath {
    float x, y, dx, dy;
};
// Start and step of the drop path of each pocket, in table units.
constexpr DropPath kDropPaths[6] = {{3, 1197, -1, 1}, {1200, 1197, 0, 1}, {2397, 1197, 1, 1},
                                    {3, 3, -1, -1},   {1200, 3, 0, -1},   {2397, 3, 1, -1}};
constexpr int kDropStamps = 9;
constexpr double kDropStep = 0.25;

int roundToPixel(double v) {
    return int(std::lround(v));
}

bool isShadowThrown(float x, float y) {
    const bool alongLongRail =
        x >= kMouthNearX && x <= kMouthFarX && (x <= kMiddleMouthLeftX || x >= kMiddleMouthRightX);
    const bool alongShortRail = y >= kMouthNearY && y <= kMouthFarY;
    return alongLongRail || alongShortRail;
}

void printDemoWords(const GameState& g, QImage& target) {
    QPainter painter(&target);
    painter.setPen(QColor(kDemoGreen));
    painter.setFont(gameFont("Arial", kDemoWordPoints, false));
    printAt(painter, kDemoWordAt, QStringLiteral("DEMO"));
    painter.setFont(gameFont("Arial", kDemoHintPoints, false));
    printAt(painter, kDemoHintAt,
            QString::fromStdString(chooseText(g, "クリックしてください", "Click here !")));
}

void drawBallSprite(const BallType& ball, QImage& target, const QImage& balls, int i, int row) {
    const QPoint at = ballCellOrigin(ball);
    blitMasked(target, at.x(), at.y(), balls, kMaskX, kMaskY, kCell * i, row, kCell);
}

} // namespace

QPoint ballCellOrigin(const BallType& ball) {
    return {roundToPixel(double(tableToPixelX(ball.x)) - kHalfBall),
            roundToPixel(double(tableToPixelY(ball.y)) - kHalfBall)};
}

QPoint shadowCellOrigin(const BallType& ball) {
    const float x = tableToPixelX(ball.x);
    const float y = tableToPixelY(ball.y);
    const float offset = isShadowThrown(x, y) ? kShadowThrow : 0;
    return {roundToPixel(double(clampPixelX(float(double(x) + offset))) - kHalfBall),
            roundToPixel(double(clampPixelY(float(double(y) + offset))) - kHalfBall)};
}

void drawBallShadow(const GameState& g, Surfaces& s, int i) {
    const BallType& ball = g.Balls[i];
    if (!ball.onTable)
        return;
    const QPoint at = shadowCellOrigin(ball);
    blitMasked(s.backBuffer, at.x(), at.y(), s.picBalls, kMaskX, kMaskY, kShadowX, kShadowY, kCell);
}

void drawBall(const GameState& g, Surfaces& s, int i) {
    const BallType& ball = g.Balls[i];
    if (!ball.onTable)
        return;
    drawBallSprite(ball, s.backBuffer, s.picBalls, i, ball.speed != 0 ? kRollingRow : kRestingRow);
}

void drawTableFrame(const GameState& g, Surfaces& s) {
    blitCopy(s.backBuffer, 0, 0, s.picTable, 0, 0, kSheetWidth, kTableBlockHeight);
    if (g.gameMode == kModeDemo)
        printDemoWords(g, s.backBuffer);
    for (int i = 0; i < kBallCount; ++i)
        drawBallShadow(g, s, i);
    for (int i = 0; i < kBallCount; ++i)
        drawBall(g, s, i);
    blitCopy(s.view, 0, 0, s.backBuffer, 0, 0, kSheetWidth, kTableBlockHeight);
}

void drawBallOnView(const GameState& g, Surfaces& s, int i) {
    const BallType& ball = g.Balls[i];
    if (ball.onTable)
        drawBallSprite(ball, s.view, s.picBalls, i, kRestingRow);
}

void drawBallDropOnView(Surfaces& s, int n, int pocket) {
    if (pocket < kPocketTopLeft || pocket > kPocketBottomRight)
        return;
    const DropPath& path = kDropPaths[pocket - kPocketTopLeft];
    for (int k = 0; k < kDropStamps; ++k) {
        const float x = float(path.x + path.dx * float(k) * kDropStep);
        const float y = float(path.y + path.dy * float(k) * kDropStep);
        blitMasked(s.view, roundToPixel(double(tableToPixelX(x)) - kHalfBall),
                   roundToPixel(double(tableToPixelY(y)) - kHalfBall), s.picBalls, kMaskX, kMaskY,
                   kCell * n, kRestingRow, kCell);
    }
}

void drawPocketedTray(const GameState& g, Surfaces& s) {
    s.tray.fill(QColor(kTrayGrey));
    for (int i = 1; i < kBallCount; ++i) {
        if (!g.Balls[i].onTable)
            blitMasked(s.tray, (i - 1) * kTraySlot + kTrayInset, kTrayInset, s.picBalls, kMaskX,
                       kMaskY, kCell * i, kRestingRow, kCell);
    }
}

} // namespace morvane
