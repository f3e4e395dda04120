#include "table/motion.h"

#include "table/contact_times.h"
#include "table/contacts.h"
#include "table/cushions.h"
#include "table/geometry.h"
#include "table/sounds.h"

#include <cmath>

namespace morvane {

namespace {

bool isMoving(const BallType& b) {
    return b.speed > 0 && b.onTable;
}
bool isCushion(int partner) {
    return partner >= kCushionLeft && partner <= kCushionBottom;
}

// Friction in two stages, chosen by the speed at the start of the step; follow and draw are lost
// once the ball has slowed to the boundary, unless keepFollow.
void advance(BallType& b, double t, bool keepFollow) {
    b.prevX = b.x;
    b.prevY = b.y;
    b.x = float(b.x + double(b.vx) * t);
    b.y = float(b.y + double(b.vy) * t);
    if (b.speed > kFastSlowBoundary) {
        b.speed = float(b.speed - t * kFastDeceleration);
    } else {
        b.speed = float(b.speed - t * kSlowDeceleration);
        if (!keepFollow)
            b.spinFollow = 0;
    }
    if (b.speed <= 0)
        b.speed = 0;
    b.vx = float(std::cos(b.angle) * b.speed);
    b.vy = float(std::sin(b.angle) * b.speed);
}

// The earliest contact of any moving ball. Only a strictly earlier time replaces the best, so
// ties go to the lowest moving ball, then a cushion before a ball, then the lower number.
struct NextContact {
    float time = kNoContactTime;
    int ball = kNoPartner;
    int partner = kNoPartner;

    void offer(float t, int i, int p) {
        if (t < time) {
            time = t;
            ball = i;
            partner = p;
        }
    }
};

NextContact findNextContact(const GameState& g) {
    NextContact next;
    for (int i = 0; i < kBallCount; ++i) {
        if (!isMoving(g.Balls[i]))
            continue;
        for (int c = kCushionLeft; c <= kCushionBottom; ++c)
            next.offer(timeToCushion(g, i, c), i, c);
        for (int j = 0; j < kBallCount; ++j) {
            if (j != i && g.Balls[j].onTable)
                next.offer(timeToBall(g, i, j), i, j);
        }
    }
    return next;
}

void tellObserver(GameState& g, float timeInFrame, int ball, int partner, int pocket) {
    if (g.ports.contacts)
        g.ports.contacts->onContact(timeInFrame, ball, partner, pocket);
}

void answerPocket(GameState& g, int n, int pocket) {
    if (g.pocketedCount < kBallCount) // each ball falls at most once a shot
        g.pocketedThisShot[g.pocketedCount++] = int16_t(n);
    playPocketSound(g, kFullPower);
    g.ports.screen->drawBallDrop(n, pocket);
}

void answerCushion(GameState& g, int n, int cushionId) {
    bounceCushion(g, n, cushionId);
    g.ports.screen->drawBallNow(n);
    playCushionSound(g, g.Balls[n].speed);
}

void answerBall(GameState& g, int i, int j) {
    if (g.firstHitPending) {
        // Only the cue ball moves before the first contact: the higher number is the object ball.
        g.firstHitBall = int16_t(maxOf(i, j));
        g.firstHitPending = false;
    }
    collideBalls(g, i, j);
    g.ports.screen->drawBallNow(i);
    g.ports.screen->drawBallNow(j);
}

// Answers the contact that the balls have just been moved to; returns the pocket, or 0.
int answerContact(GameState& g, const NextContact& next) {
    if (!isCushion(next.partner)) {
        answerBall(g, next.ball, next.partner);
        return 0;
    }
    const int pocket = checkPocket(g, next.ball, next.partner);
    if (pocket != 0)
        answerPocket(g, next.ball, pocket);
    else
        answerCushion(g, next.ball, next.partner);
    return pocket;
}

} // namespace

void runFrame(GameState& g) {
    const float frameTime = float(kFrameTime);
    float timeLeft = frameTime;
    for (int pass = 0; pass < kMaxPassesPerFrame; ++pass) {
        g.ports.screen->yieldToPaint();
        const NextContact next = findNextContact(g);
        if (next.time > timeLeft)
            break;
        moveBalls(g, next.time);
        const float timeInFrame = float(double(frameTime) - timeLeft + next.time);
        const int pocket = answerContact(g, next);
        tellObserver(g, timeInFrame, next.ball, next.partner, pocket);
        timeLeft = float(timeLeft - next.time);
    }
    // The rest of the frame without contacts; after too many contacts too, so a frame always ends.
    moveBalls(g, timeLeft);
}

void moveBalls(GameState& g, double t) {
    for (BallType& b : g.Balls) {
        if (isMoving(b))
            advance(b, t, false);
    }
}

void moveBall(GameState& g, int n, double t) {
    BallType& b = g.Balls[n];
    if (isMoving(b))
        advance(b, t, true);
}

} // namespace morvane
