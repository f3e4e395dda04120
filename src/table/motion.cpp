#include "table/motion.h"

#include "table/contact_times.h"
#include "table/contacts.h"
#include "table/cushions.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

namespace morvane {

namespace {

bool isCushion(int partner) {
    return partner >= kCushionLeft && partner <= kCushionBottom;
}

// The cosine and sine of a ball's direction, as the velocity is worked out from them.
struct Direction {
    float cosine;
    float sine;
};

Direction directionOf(float angle) {
    return {std::cos(angle), std::sin(angle)};
}

// The directions of the balls over one frame. A ball keeps its direction from contact to
// contact while the engine steps it many times, so each is worked out again only when the
// ball's angle has changed, to the bit.
class Directions {
  public:
    const Direction& of(int n, float angle) {
        const uint32_t bits = std::bit_cast<uint32_t>(angle);
        if (!known_[n] || bits_[n] != bits) {
            directions_[n] = directionOf(angle);
            bits_[n] = bits;
            known_[n] = true;
        }
        return directions_[n];
    }

  private:
    std::array<bool, kBallCount> known_{};
    std::array<uint32_t, kBallCount> bits_{};
    std::array<Direction, kBallCount> directions_{};
};

// Friction in two stages, chosen by the speed at the start of the step; follow and draw are lost
// once the ball has slowed to the boundary, unless keepFollow.
void advance(BallType& b, double t, bool keepFollow, const Direction& d) {
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
    b.vx = float(d.cosine * b.speed);
    b.vy = float(d.sine * b.speed);
}

void stepBalls(BallArray& balls, double t, Directions& directions) {
    for (int n = 0; n < kBallCount; ++n) {
        BallType& b = balls[n];
        if (isMoving(b))
            advance(b, t, false, directions.of(n, b.angle));
    }
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
    Directions directions;
    for (int pass = 0; pass < kMaxPassesPerFrame; ++pass) {
        observer.beforeSearch();
        const NextContact next = findNextContact(balls, timeLeft);
        if (next.time > timeLeft)
            break;
        stepBalls(balls, next.time, directions);
        const float timeInFrame = float(double(frameTime) - timeLeft + next.time);
        const int pocket = answerContact(balls, next);
        observer.onContact(timeInFrame, next.ball, next.partner, pocket);
        timeLeft = float(timeLeft - next.time);
    }
    // The rest of the frame without contacts; after too many contacts too, so a frame always ends.
    stepBalls(balls, timeLeft, directions);
}

void moveBalls(BallArray& balls, double t) {
    Directions directions;
    stepBalls(balls, t, directions);
}

void moveBall(BallType& b, double t) {
    if (isMoving(b))
        advance(b, t, true, directionOf(b.angle));
}

bool isAllStopped(const BallArray& balls) {
    for (const BallType& ball : balls) {
        if (ball.speed > 0)
            return false;
    }
    return true;
}

} // namespace morvane
