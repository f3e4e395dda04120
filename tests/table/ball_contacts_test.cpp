#include "support/balls.h"
#include "table/contacts.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

namespace {

// The cue ball touching ball 1 on its left, running right at 3000 with the given spin.
BallArray fullHit(float follow, float side = 0) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 1000, 600, 3000);
    putBall(balls, 1, 1100, 600);
    balls[0].spinFollow = follow;
    balls[0].spinSide = side;
    collideBalls(balls[0], balls[1]);
    return balls;
}

} // namespace

TEST(BallContact, AFullHitPassesTheSpeedOnAndFollowOrDrawCarriesTheCueBallAlongItsLine) {
    const BallArray dead = fullHit(0);
    EXPECT_EQ(dead[0].speed, 0);
    EXPECT_EQ(dead[1].speed, 3000);
    EXPECT_EQ(dead[1].angle, 0);
    for (const float follow : {1000.0f, -1000.0f}) { // follow runs on, draw comes back
        const BallArray spun = fullHit(follow);
        EXPECT_FLOAT_EQ(spun[0].speed, 1000);
        EXPECT_FLOAT_EQ(spun[0].angle, follow > 0 ? 0 : float(3.1415926));
    }
}

TEST(BallContact, AGlancingHitSendsTheBallsOffAtRightAnglesAndAHeadOnHitSwapsThem) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 1000, 600, 3000);
    putBall(balls, 1, float(1000 + 100 * std::cos(0.5)), float(600 + 100 * std::sin(0.5)));
    collideBalls(balls[0], balls[1]);
    const double dot = double(balls[0].vx) * balls[1].vx + double(balls[0].vy) * balls[1].vy;
    EXPECT_NEAR(dot / (double(balls[0].speed) * balls[1].speed), 0, 1e-6);
    EXPECT_NEAR(std::hypot(balls[0].speed, balls[1].speed), 3000, 1e-2);
    EXPECT_NEAR(balls[1].angle, 0.5, 1e-6);

    putBall(balls, 0, 1000, 600, 2000, 0); // head on at the same speed: they swap
    putBall(balls, 1, 1100, 600, 2000, float(3.1415926));
    collideBalls(balls[0], balls[1]);
    EXPECT_FLOAT_EQ(balls[0].vx, -2000);
    EXPECT_FLOAT_EQ(balls[1].vx, 2000);
}

TEST(BallContact, SideSpinThrowsTheBallsApartAcrossTheLineAndEveryContactUsesUpTheSpin) {
    const BallArray balls = fullHit(200, 1000); // spin to the right
    EXPECT_FLOAT_EQ(balls[1].vy, 150);
    EXPECT_FLOAT_EQ(balls[0].vy, -150);
    for (int n : {0, 1}) {
        EXPECT_EQ(balls[n].spinSide, 0);
        EXPECT_EQ(balls[n].spinFollow, 0);
    }
}
