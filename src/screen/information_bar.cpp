#include "screen/information_bar.h"

#include "game/table_queries.h"
#include "game/text.h"
#include "game/zeph_level.h"
#include "screen/blit.h"
#include "screen/fonts.h"

#include <QPainter>

namespace morvane {

namespace {

constexpr QRgb kBarGreen = qRgb(0, 255, 0);
constexpr double kBarFontPoints = 12;
constexpr QPoint kTextAt{30, 3};
constexpr QPoint kNextAt{240, 3};
constexpr int kIconSize = 25;
constexpr int kIconTop = 301;
constexpr int kSoloIconX = 220;
constexpr int kVersusCpuIconX = 245;
constexpr int kTwoPlayersIconX = 270;
constexpr int kNextBoxLeft = 289;
constexpr int kNextBoxRight = 310;
constexpr int kNextBoxBottom = 22;

std::string number(long value) {
    return std::to_string(value);
}

std::string soloLine(const GameState& g) {
    return " Turn:" + number(g.turnCount) + "  Shot:" + number(g.shotCount) +
           "  Foul:" + number(g.foulCount);
}

std::string versusLine(const GameState& g) {
    const std::string score = " " + trimBlanks(g.players[0].name) + "  " +
                              number(g.players[0].gamesWon) + " - " + number(g.players[1].gamesWon);
    if (!g.versusCpu)
        return score + "  " + trimBlanks(g.players[1].name);
    const std::string level =
        g.zephLevel >= kZephMasterLevel ? " Master " : " Lv." + number(g.zephLevel);
    return score + level + " zeph ";
}

std::string demoLine(const GameState& g) {
    return " Lv." + number(g.zephLevel) + " zeph is demonstrating!!";
}

void print(QImage& bar, QPoint at, const std::string& text) {
    QPainter painter(&bar);
    painter.setPen(QColor(kBarGreen));
    painter.setFont(gameFont("Arial", kBarFontPoints, true));
    printAt(painter, at, QString::fromStdString(text));
}

// The box of the next ball: its outline, then the ball copied with its black corners.
void drawNextBall(const GameState& g, Surfaces& s, int boxTop) {
    {
        QPainter painter(&s.information);
        painter.setPen(QColor(kBarGreen));
        // A stroked rectangle covers one pixel more than its size: both corners are drawn.
        painter.drawRect(kNextBoxLeft, boxTop, kNextBoxRight - kNextBoxLeft,
                         kNextBoxBottom - boxTop);
    }
    blitCopy(s.information, kNextBoxLeft + 1, boxTop + 1, s.picBalls, kCell * getLowestBall(g),
             kRestingRow, kCell, kCell);
}

} // namespace

std::string informationText(const GameState& g) {
    switch (g.gameMode) {
    case kModeSolo:
        return soloLine(g);
    case kModeVersus:
        return versusLine(g);
    case kModeDemo:
        return demoLine(g);
    default:
        return "";
    }
}

void showInfomation(const GameState& g, Surfaces& s) {
    if (g.gameMode != kModeSolo && g.gameMode != kModeVersus && g.gameMode != kModeDemo)
        return;
    s.information.fill(Qt::black);
    print(s.information, kTextAt, informationText(g));
    if (g.gameMode == kModeDemo)
        return;
    const int iconX = g.gameMode == kModeSolo ? kSoloIconX
                      : g.versusCpu           ? kVersusCpuIconX
                                              : kTwoPlayersIconX;
    blitCopy(s.information, 0, 0, s.picTable, iconX, kIconTop, kIconSize, kIconSize);
    print(s.information, kNextAt, " Next:");
    drawNextBall(g, s, g.gameMode == kModeSolo ? 0 : 1);
}

} // namespace morvane
