#include "table/contacts.h"
#include "table/motion.h"
#include "table_fixtures.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

namespace {

// The cue ball touching ball 1 on its left, running right at 3000.
GameState fullHit(float follow = 0) {
    GameState g = emptyTable();
    putBall(g, 0, 1000, 600, 3000);
    putBall(g, 1, 1100, 600);
    g.Balls[0].spinFollow = follow;
    return g;
}

} // namespace

TEST(BallContact, DeadOnHitStopsTheCueBallAndSendsTheObjectBallOn) {
    GameState g = fullHit();
    collideBalls(g, 0, 1);
    EXPECT_EQ(g.Balls[0].speed, 0);
    EXPECT_EQ(g.Balls[0].angle, 0);
    EXPECT_EQ(g.Balls[1].speed, 3000);
    EXPECT_EQ(g.Balls[1].angle, 0);
}

TEST(BallContact, GlancingHitSendsTheBallsOffAtRightAngles) {
    GameState g = emptyTable();
    putBall(g, 0, 1000, 600, 3000);
    putBall(g, 1, float(1000 + 100 * std::cos(0.5)), float(600 + 100 * std::sin(0.5)));
    collideBalls(g, 0, 1);
    const double dot =
        double(g.Balls[0].vx) * g.Balls[1].vx + double(g.Balls[0].vy) * g.Balls[1].vy;
    EXPECT_NEAR(dot / (double(g.Balls[0].speed) * g.Balls[1].speed), 0, 1e-6);
    EXPECT_NEAR(std::hypot(g.Balls[0].speed, g.Balls[1].speed), 3000, 1e-2); // nothing lost
    EXPECT_NEAR(g.Balls[1].angle, 0.5, 1e-6);
}

TEST(BallContact, HeadOnAtTheSameSpeedSwapsVelocities) {
    GameState g = emptyTable();
    putBall(g, 0, 1000, 600, 2000, 0);
    putBall(g, 1, 1100, 600, 2000, float(3.1415926));
    collideBalls(g, 0, 1);
    EXPECT_FLOAT_EQ(g.Balls[0].vx, -2000);
    EXPECT_FLOAT_EQ(g.Balls[1].vx, 2000);
}

TEST(BallContact, FollowAndDrawCarryTheCueBallOnOrBackAlongItsLine) {
    GameState follow = fullHit(1000);
    collideBalls(follow, 0, 1);
    EXPECT_FLOAT_EQ(follow.Balls[0].speed, 1000);
    EXPECT_EQ(follow.Balls[0].angle, 0);

    GameState draw = fullHit(-1000);
    collideBalls(draw, 0, 1);
    EXPECT_FLOAT_EQ(draw.Balls[0].speed, 1000);
    EXPECT_FLOAT_EQ(draw.Balls[0].angle, float(3.1415926));

    // Follow is gone once the ball has slowed to 1680: a slow full hit just stops.
    GameState slow = fullHit(1000);
    slow.Balls[0].speed = 1500;
    moveBalls(slow, 0.0);
    collideBalls(slow, 0, 1);
    EXPECT_EQ(slow.Balls[0].speed, 0);
}

TEST(BallContact, SideSpinThrowsBothBallsAcrossTheLineAndEveryContactUsesUpTheSpin) {
    GameState g = fullHit();
    g.Balls[0].spinSide = 1000; // spin to the right
    g.Balls[0].spinFollow = 200;
    collideBalls(g, 0, 1);
    EXPECT_FLOAT_EQ(g.Balls[1].vy, 150);  // the object ball to the left of the line
    EXPECT_FLOAT_EQ(g.Balls[0].vy, -150); // the cue ball recoils by as much
    for (int n : {0, 1}) {
        EXPECT_EQ(g.Balls[n].spinSide, 0);
        EXPECT_EQ(g.Balls[n].spinFollow, 0);
    }
}

TEST(BallContact, SoundsWithTheRelativeSpeedAfterTheContact) {
    RecordingSound sound;
    GameState g = fullHit();
    g.ports.sound = &sound;
    g.shotCount = 2;
    collideBalls(g, 0, 1); // 3000 apart: 0.536 of full power
    ASSERT_EQ(sound.played.size(), 1u);
    EXPECT_EQ(sound.played[0].first, "vmid.wav");
}
