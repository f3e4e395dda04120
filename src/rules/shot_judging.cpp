#include "rules/shot_judging.h"

#include "game/table_queries.h"

namespace morvane {

namespace {

constexpr float kRespotStep = 100;
constexpr float kRespotLastX = 2300; // the line runs from the foot spot to here, then back
constexpr float kCueSpotLastOffset = 500;

void standBall(BallType& ball, float x, float y) {
    ball.x = ball.prevX = x;
    ball.y = ball.prevY = y;
    ball.vx = ball.vy = 0;
    ball.speed = 0;
    ball.angle = 0;
    ball.onTable = true;
}

// The first free place on the foot line: 1800 to 2300, then 1700 toward the head. The line
// holds more places than nine balls can take, so a place is always found.
void respotObjectBall(GameState& g, int n) {
    for (float x = kFootSpotX; x <= kRespotLastX; x += kRespotStep) {
        if (!isSpotBlocked(g, x, kFootSpotY))
            return standBall(g.Balls[n], x, kFootSpotY);
    }
    for (float x = kFootSpotX - kRespotStep; x >= kCushionLeftX; x -= kRespotStep) {
        if (!isSpotBlocked(g, x, kFootSpotY))
            return standBall(g.Balls[n], x, kFootSpotY);
    }
}

// The head spot, else above and below it by hundreds; where all are taken, where it fell.
void respotCueBall(GameState& g) {
    BallType& cue = g.Balls[kCueBall];
    if (!isSpotBlocked(g, kHeadSpotX, kHeadSpotY)) {
        cue.x = kHeadSpotX;
        cue.y = kHeadSpotY;
    } else {
        for (float offset = kRespotStep; offset <= kCueSpotLastOffset; offset += kRespotStep) {
            const float above = kHeadSpotY + offset;
            const float below = kHeadSpotY - offset;
            if (!isSpotBlocked(g, kHeadSpotX, above)) {
                cue.x = kHeadSpotX;
                cue.y = above;
                break;
            }
            if (!isSpotBlocked(g, kHeadSpotX, below)) {
                cue.x = kHeadSpotX;
                cue.y = below;
                break;
            }
        }
    }
    cue.onTable = true;
}

std::string shooterMessage(const std::string& shooter, const std::string& youText,
                           const std::string& otherTail) {
    return shooter == "You" ? youText : shooter + otherTail;
}

} // namespace

ShotOutcome judgeShot(const GameState& g) {
    if (!g.Balls[kCueBall].onTable)
        return ShotOutcome::CueBallFoul;
    if (g.firstHitBall != g.targetBall)
        return ShotOutcome::MissFoul;
    if (!g.Balls[kNineBall].onTable)
        return ShotOutcome::GameOver;
    return ShotOutcome::Legal;
}

std::string foulMessage(const GameState& g, ShotOutcome foul) {
    const bool cueBallDown = foul == ShotOutcome::CueBallFoul;
    if (g.gameMode == kModeSolo)
        return cueBallDown ? "Your Ball was falling down !!" : "You missed !";
    if (g.gameMode != kModeVersus)
        return "";
    const std::string shooter = getShooterName(g, g.turnCount);
    return cueBallDown ? shooterMessage(shooter, "Your Ball was falling down !!",
                                        "'s Ball was falling down !!")
                       : shooterMessage(shooter, "You missed!", " missed!");
}

void respotBalls(GameState& g) {
    for (int k = 0; k < g.pocketedCount; ++k) {
        const int n = g.pocketedThisShot[k];
        if (n == kCueBall)
            respotCueBall(g);
        else
            respotObjectBall(g, n);
    }
}

void clearMotion(GameState& g) {
    for (BallType& ball : g.Balls) {
        ball.speed = 0;
        ball.spinFollow = 0;
        ball.spinSide = 0;
    }
}

} // namespace morvane
