#include "table/motion.h"

#include "table/contact_times.h"
#include "table/contacts.h"
#include "table/cushions.h"

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

NextContact findNextContact(const BallArray& balls) {
    NextContact next;
    for (int i = 0; i < kBallCount; ++i) {
        if (!isMoving(balls[i]))
            continue;
        for (int c = kCushionLeft; c <= kCushionBottom; ++c)
            next.offer(timeToCushion(balls[i], c), i, c);
        for (int j = 0; j < kBallCount; ++j) {
            if (j != i && balls[j].onTable)
                next.offer(timeToBall(balls[i], balls[j]), i, j);
        }
    }
    return next;
}

// Answers the contact that the balls have just been moved to; returns the pocket, or 0.
int answerContact(BallArray& balls, const NextContact& next) {
    if (!isCushion(next.partner)) {
        collideBalls(balls[next.ball], balls[next.partner]);
        return 0;
    }
    BallType& b = balls[next.ball];
    const int pocket = checkPocket(b, next.partner);
    if (pocket == kNoPocket)
        bounceCushion(b, next.partner);
    return pocket;
}

} // namespace

void runFrame(BallArray& balls, ContactObserver& observer) {
    const float frameTime = float(kFrameTime);
    float timeLeft = frameTime;
    for (int pass = 0; pass < kMaxPassesPerFrame; ++pass) {
        observer.beforeSearch();
        const NextContact next = findNextContact(balls);
        if (next.time > timeLeft)
            break;
        moveBalls(balls, next.time);
        const float timeInFrame = float(double(frameTime) - timeLeft + next.time);
        const int pocket = answerContact(balls, next);
        observer.onContact(timeInFrame, next.ball, next.partner, pocket);
        timeLeft = float(timeLeft - next.time);
    }
    // The rest of the frame without contacts; after too many contacts too, so a frame always ends.
    moveBalls(balls, timeLeft);
}

void moveBalls(BallArray& balls, double t) {
    for (BallType& b : balls) {
        if (isMoving(b))
            advance(b, t, false);
    }
}

void moveBall(BallType& b, double t) {
    if (isMoving(b))
        advance(b, t, true);
}

bool isAllStopped(const BallArray& balls) {
    for (const BallType& ball : balls) {
        if (ball.speed > 0)
            return false;
    }
    return true;
}

} // namespace morvane
