#include "support/balls.h"
#include "table/contacts.h"
#include "table/motion.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

namespace {

// The cue ball touching ball 1 on its left, running right at 3000.
BallArray fullHit(float follow = 0) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 1000, 600, 3000);
    putBall(balls, 1, 1100, 600);
    balls[0].spinFollow = follow;
    return balls;
}

} // namespace

TEST(BallContact, DeadOnHitStopsTheCueBallAndSendsTheObjectBallOn) {
    BallArray balls = fullHit();
    collideBalls(balls[0], balls[1]);
    EXPECT_EQ(balls[0].speed, 0);
    EXPECT_EQ(balls[0].angle, 0);
    EXPECT_EQ(balls[1].speed, 3000);
    EXPECT_EQ(balls[1].angle, 0);
}

TEST(BallContact, GlancingHitSendsTheBallsOffAtRightAngles) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 1000, 600, 3000);
    putBall(balls, 1, float(1000 + 100 * std::cos(0.5)), float(600 + 100 * std::sin(0.5)));
    collideBalls(balls[0], balls[1]);
    const double dot = double(balls[0].vx) * balls[1].vx + double(balls[0].vy) * balls[1].vy;
    EXPECT_NEAR(dot / (double(balls[0].speed) * balls[1].speed), 0, 1e-6);
    EXPECT_NEAR(std::hypot(balls[0].speed, balls[1].speed), 3000, 1e-2); // nothing lost
    EXPECT_NEAR(balls[1].angle, 0.5, 1e-6);
}

TEST(BallContact, HeadOnAtTheSameSpeedSwapsVelocities) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 1000, 600, 2000, 0);
    putBall(balls, 1, 1100, 600, 2000, float(3.1415926));
    collideBalls(balls[0], balls[1]);
    EXPECT_FLOAT_EQ(balls[0].vx, -2000);
    EXPECT_FLOAT_EQ(balls[1].vx, 2000);
}

TEST(BallContact, FollowAndDrawCarryTheCueBallOnOrBackAlongItsLine) {
    BallArray follow = fullHit(1000);
    collideBalls(follow[0], follow[1]);
    EXPECT_FLOAT_EQ(follow[0].speed, 1000);
    EXPECT_EQ(follow[0].angle, 0);

    BallArray draw = fullHit(-1000);
    collideBalls(draw[0], draw[1]);
    EXPECT_FLOAT_EQ(draw[0].speed, 1000);
    EXPECT_FLOAT_EQ(draw[0].angle, float(3.1415926));

    // Follow is gone once the ball has slowed to 1680: a slow full hit just stops.
    BallArray slow = fullHit(1000);
    slow[0].speed = 1500;
    moveBalls(slow, 0.0);
    collideBalls(slow[0], slow[1]);
    EXPECT_EQ(slow[0].speed, 0);
}

TEST(BallContact, SideSpinThrowsBothBallsAcrossTheLineAndEveryContactUsesUpTheSpin) {
    BallArray balls = fullHit();
    balls[0].spinSide = 1000; // spin to the right
    balls[0].spinFollow = 200;
    collideBalls(balls[0], balls[1]);
    EXPECT_FLOAT_EQ(balls[1].vy, 150);  // the object ball to the left of the line
    EXPECT_FLOAT_EQ(balls[0].vy, -150); // the cue ball recoils by as much
    for (int n : {0, 1}) {
        EXPECT_EQ(balls[n].spinSide, 0);
        EXPECT_EQ(balls[n].spinFollow, 0);
    }
}
