#include "rules/nearly_cleared_table.h"

#include "rules/next_shot.h"
#include "game/timers.h"

namespace morvane {

namespace {

// Straight below the top middle pocket, a little over a table's width apart.
constexpr float kSpotX = 1200;
constexpr float kNineSpotY = 1000;
constexpr float kCueSpotY = 700;

bool standsAt(const BallType& ball, float x, float y) {
    return ball.onTable && ball.x == x && ball.y == y;
}

void putAtRest(BallType& ball, float x, float y) {
    ball = BallType{};
    ball.x = ball.prevX = x;
    ball.y = ball.prevY = y;
    ball.onTable = true;
}

} // namespace

bool wantsNearlyClearedTable(const GameState& g) {
    const TimerState& tick = g.timers[kTimer1];
    if (g.gameMode != kModeSolo || g.breakPending || tick.enabled || tick.running)
        return false;
    for (int n = 1; n < kNineBall; ++n) {
        if (g.Balls[n].onTable)
            return true;
    }
    return !standsAt(g.Balls[kCueBall], kSpotX, kCueSpotY) ||
           !standsAt(g.Balls[kNineBall], kSpotX, kNineSpotY);
}

void clearAllButTheNine(GameState& g) {
    for (int n = 1; n < kNineBall; ++n)
        g.Balls[n].onTable = false;
    putAtRest(g.Balls[kCueBall], kSpotX, kCueSpotY);
    putAtRest(g.Balls[kNineBall], kSpotX, kNineSpotY);
    g.ballInHand = false;
    showTableAtRest(g);
    aimAtLowestBall(g);
    g.ports.screen->drawTray();
    g.ports.screen->drawInformation();
}

} // namespace morvane
