#include "table/break_run.h"
#include "table/contacts.h"
#include "table/launch.h"
#include "table/motion.h"
#include "table/rack.h"
#include "table_fixtures.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

namespace {

// The rack with the cue ball arrived at the aim point at speed v, and breakRack done.
GameState brokenRack(uint64_t seed, float aimAngle, float v = 6000) {
    GameState g;
    rackBalls(g);
    g.ports.ownRandom = SeededRandom(seed);
    g.aimX = float(1800 - 100 * std::cos(aimAngle));
    g.aimY = float(600 + 100 * std::sin(aimAngle));
    g.Balls[0].x = g.aimX;
    g.Balls[0].y = g.aimY;
    g.Balls[0].speed = v;
    breakRack(g);
    return g;
}

} // namespace

TEST(Break, SpeedsComeFromTheRackAloneAndDirectionsDifferOnlyByTheJitter) {
    const GameState a = brokenRack(11, 0);
    const GameState b = brokenRack(12345, 0);
    const double u = 0.85 * 6000;
    EXPECT_EQ(a.Balls[3].speed, float(u));
    EXPECT_EQ(a.Balls[9].speed, float(0.05 * u));
    // The cue ball's speed is worked back from its jittered velocity: equal to rounding.
    EXPECT_NEAR(a.Balls[0].speed, b.Balls[0].speed, 1e-3);
    for (int n = 1; n < kBallCount; ++n)
        EXPECT_EQ(a.Balls[n].speed, b.Balls[n].speed) << "ball " << n;
    for (int n = 0; n < kBallCount; ++n) {
        EXPECT_NEAR(a.Balls[n].angle, b.Balls[n].angle, 0.02) << "ball " << n;
        EXPECT_TRUE(std::isfinite(a.Balls[n].vx) && std::isfinite(a.Balls[n].vy));
    }
    EXPECT_EQ(a.Balls[1].angle, 0);
    EXPECT_EQ(a.Balls[0].x, a.aimX);
}

TEST(Break, StraightBreakSendsTheCueBallSidewaysAtAboutOnePercent) {
    const GameState g = brokenRack(3, 0);
    EXPECT_NEAR(g.Balls[0].speed, 6000 * std::sin(0.01), 1e-2);
    EXPECT_LT(g.Balls[0].vy, 0); // theta above 0: off to the low side
    EXPECT_NEAR(std::fabs(g.Balls[0].vx), 0, 1);
    const GameState high = brokenRack(3, -0.3f); // aimed from below: theta above 0
    EXPECT_LT(high.Balls[0].vy, 0);
    const GameState low = brokenRack(3, 0.3f); // aimed from above: theta below 0
    EXPECT_GT(low.Balls[0].vy, 0);
}

TEST(Break, WideBreakStarvesOneSideIntoNegativeSpeedsThatCountAsRest) {
    GameState g = brokenRack(5, -0.6f);
    for (int n : {2, 6, 7})
        EXPECT_LT(g.Balls[n].speed, 0) << "ball " << n;
    for (int n : {4, 5, 8})
        EXPECT_GT(g.Balls[n].speed, 0) << "ball " << n;
    const float x = g.Balls[2].x;
    const float vx = g.Balls[2].vx;
    moveBalls(g, 0.05);
    EXPECT_EQ(g.Balls[2].x, x); // it lies where it is, velocity as set
    EXPECT_EQ(g.Balls[2].vx, vx);
}

TEST(Break, DrawAndSideSpinBendTheCueBallsWayOff) {
    GameState g;
    rackBalls(g);
    g.aimX = 1700;
    g.aimY = 600;
    g.Balls[0] = {};
    putBall(g, 0, 1700, 600, 6000);
    g.Balls[0].spinFollow = -800;
    g.Balls[0].spinSide = 400;
    breakRack(g);
    const double angle = g.Balls[0].angle;
    const double along = 6000 * std::sin(0.01);
    EXPECT_NEAR(g.Balls[0].vx, std::cos(angle) * along - 400, 1e-2);
    EXPECT_NEAR(g.Balls[0].vy, std::sin(angle) * along - 50, 1e-2);
    EXPECT_EQ(g.Balls[0].spinFollow, 0);
    EXPECT_EQ(g.Balls[0].spinSide, 0);
}

TEST(Break, CueBallRunsAloneToTheRackThenScatterGetsAFreeStep) {
    GameState g;
    rackBalls(g);
    RecordingSound sound;
    RecordingContacts contacts;
    g.ports.sound = &sound;
    g.ports.contacts = &contacts;
    g.ports.ownRandom = SeededRandom(42);
    g.aimX = 1700;
    g.aimY = 600;
    g.breakPending = true;
    cmdShot_Click(g);
    g.controls.poolEnabled = false;

    int ticks = 0;
    while (g.breakPending && ticks < 100) {
        runBreakToRack(g);
        ++ticks;
        if (g.breakPending) {
            EXPECT_EQ(g.Balls[1].speed, 0) << "the rack waits for the cue ball";
        }
    }
    EXPECT_EQ(ticks, 4); // 600 to 1700 at 6720 less friction
    EXPECT_EQ(g.firstHitBall, 1);
    EXPECT_FALSE(g.firstHitPending);
    EXPECT_TRUE(g.controls.poolEnabled);
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].ball, 0);
    EXPECT_EQ(contacts.seen[0].partner, 1);
    ASSERT_EQ(sound.played.size(), 1u);
    EXPECT_EQ(sound.played[0].first, "vmax.wav");
    EXPECT_EQ(sound.played[0].second, 0x11);
    EXPECT_GT(g.Balls[3].x, 2136.5f); // the rear ball has already had its free step
}
