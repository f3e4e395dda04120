#include "support/balls.h"
#include "table/contacts.h"
#include "table/motion.h"
#include "table/rack.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

namespace {

// The rack with the cue ball arrived at 6000 on the aim point 100 from ball 1 at aimAngle, and
// the break done.
BallArray brokenRack(uint64_t seed, float aimAngle, float follow = 0, float side = 0) {
    BallArray balls;
    rackBalls(balls);
    SeededRandom random(seed);
    const float aimX = float(1800 - 100 * std::cos(aimAngle));
    const float aimY = float(600 + 100 * std::sin(aimAngle));
    putBall(balls, 0, aimX, aimY, 6000);
    balls[0].spinFollow = follow;
    balls[0].spinSide = side;
    breakRack(balls, aimX, aimY, random);
    return balls;
}

} // namespace

TEST(Break, SpeedsComeFromTheRackAloneAndTheCueBallGoesOffSideways) {
    const BallArray a = brokenRack(11, 0);
    const BallArray b = brokenRack(12345, 0);
    EXPECT_EQ(a[3].speed, float(0.85 * 6000));
    EXPECT_EQ(a[9].speed, float(0.05 * 0.85 * 6000));
    EXPECT_EQ(a[0].x, 1700); // at the aim point
    for (int n = 0; n < kBallCount; ++n) {
        EXPECT_NEAR(a[n].speed, b[n].speed, n == 0 ? 1e-3 : 0) << "ball " << n;
        EXPECT_NEAR(a[n].angle, b[n].angle, 0.02) << "ball " << n; // only the jitter differs
    }
    EXPECT_NEAR(a[0].speed, 6000 * std::sin(0.01), 1e-2);
    EXPECT_LT(brokenRack(3, -0.3f)[0].vy, 0); // aimed from below
    EXPECT_GT(brokenRack(3, 0.3f)[0].vy, 0);  // aimed from above

    const BallArray spun = brokenRack(1, 0, -800, 400); // draw and side bend it
    const double along = 6000 * std::sin(0.01);
    EXPECT_NEAR(spun[0].vx, std::cos(spun[0].angle) * along - 400, 1e-2);
    EXPECT_NEAR(spun[0].vy, std::sin(spun[0].angle) * along - 50, 1e-2);
    EXPECT_EQ(spun[0].spinSide, 0);
}

TEST(Break, WideBreakStarvesOneSideIntoNegativeSpeedsThatCountAsRest) {
    BallArray g = brokenRack(5, -0.6f);
    for (int n : {2, 6, 7})
        EXPECT_LT(g[n].speed, 0) << "ball " << n;
    EXPECT_GT(g[8].speed, 0);
    const BallType before = g[2];
    moveBalls(g, 0.05);
    EXPECT_EQ(g[2].x, before.x); // it lies where it is, velocity as set
    EXPECT_EQ(g[2].vx, before.vx);
}
