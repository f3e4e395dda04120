#include "support/balls.h"
#include "table/contacts.h"
#include "table/motion.h"
#include "table/rack.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

namespace {

// The rack with the cue ball arrived at the aim point at speed v, and breakRack done.
BallArray brokenRack(uint64_t seed, float aimAngle, float v = 6000) {
    BallArray balls;
    rackBalls(balls);
    SeededRandom random(seed);
    const float aimX = float(1800 - 100 * std::cos(aimAngle));
    const float aimY = float(600 + 100 * std::sin(aimAngle));
    balls[0].x = aimX;
    balls[0].y = aimY;
    balls[0].speed = v;
    breakRack(balls, aimX, aimY, random);
    return balls;
}

} // namespace

TEST(Break, SpeedsComeFromTheRackAloneAndDirectionsDifferOnlyByTheJitter) {
    const BallArray a = brokenRack(11, 0);
    const BallArray b = brokenRack(12345, 0);
    const double u = 0.85 * 6000;
    EXPECT_EQ(a[3].speed, float(u));
    EXPECT_EQ(a[9].speed, float(0.05 * u));
    // The cue ball's speed is worked back from its jittered velocity: equal to rounding.
    EXPECT_NEAR(a[0].speed, b[0].speed, 1e-3);
    for (int n = 1; n < kBallCount; ++n)
        EXPECT_EQ(a[n].speed, b[n].speed) << "ball " << n;
    for (int n = 0; n < kBallCount; ++n) {
        EXPECT_NEAR(a[n].angle, b[n].angle, 0.02) << "ball " << n;
        EXPECT_TRUE(std::isfinite(a[n].vx) && std::isfinite(a[n].vy));
    }
    EXPECT_EQ(a[1].angle, 0);
    EXPECT_EQ(a[0].x, 1700); // at the aim point
}

TEST(Break, StraightBreakSendsTheCueBallSidewaysAtAboutOnePercent) {
    const BallArray g = brokenRack(3, 0);
    EXPECT_NEAR(g[0].speed, 6000 * std::sin(0.01), 1e-2);
    EXPECT_LT(g[0].vy, 0); // theta above 0: off to the low side
    EXPECT_NEAR(std::fabs(g[0].vx), 0, 1);
    const BallArray high = brokenRack(3, -0.3f); // aimed from below: theta above 0
    EXPECT_LT(high[0].vy, 0);
    const BallArray low = brokenRack(3, 0.3f); // aimed from above: theta below 0
    EXPECT_GT(low[0].vy, 0);
}

TEST(Break, WideBreakStarvesOneSideIntoNegativeSpeedsThatCountAsRest) {
    BallArray g = brokenRack(5, -0.6f);
    for (int n : {2, 6, 7})
        EXPECT_LT(g[n].speed, 0) << "ball " << n;
    for (int n : {4, 5, 8})
        EXPECT_GT(g[n].speed, 0) << "ball " << n;
    const float x = g[2].x;
    const float vx = g[2].vx;
    moveBalls(g, 0.05);
    EXPECT_EQ(g[2].x, x); // it lies where it is, velocity as set
    EXPECT_EQ(g[2].vx, vx);
}

TEST(Break, DrawAndSideSpinBendTheCueBallsWayOff) {
    BallArray g;
    rackBalls(g);
    putBall(g, 0, 1700, 600, 6000);
    g[0].spinFollow = -800;
    g[0].spinSide = 400;
    SeededRandom random;
    breakRack(g, 1700, 600, random);
    const double angle = g[0].angle;
    const double along = 6000 * std::sin(0.01);
    EXPECT_NEAR(g[0].vx, std::cos(angle) * along - 400, 1e-2);
    EXPECT_NEAR(g[0].vy, std::sin(angle) * along - 50, 1e-2);
    EXPECT_EQ(g[0].spinFollow, 0);
    EXPECT_EQ(g[0].spinSide, 0);
}
