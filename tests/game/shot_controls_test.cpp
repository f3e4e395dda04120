// The controls of a shot: the shot button and the break swing.
#include "game/racking.h"
#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "game/view_coords.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;

TEST(ShotButton, ArmsTheShotScalesTheHitPointAndHandsTheTableToTheTick) {
    GameState g;
    rackBalls(g);
    g.breakPending = false;
    setPower(g, 100);
    g.Balls[0].spinSide = 1;
    g.Balls[0].spinFollow = 1;
    g.Balls[1].onTable = false; // the lowest ball is now 2
    g.firstHitBall = 7;
    g.pocketedCount = 3;
    g.ballInHand = true;
    g.shotCount = 4;
    setTimerEnabled(g, kTimer2, true);

    cmdShot_Click(g);

    EXPECT_EQ(std::tie(g.Balls[0].spinSide, g.Balls[0].spinFollow), std::tuple(3360, 1680));
    EXPECT_EQ(g.BallsSaved[0].spinSide, 1) << "saved for Back as it was set";
    EXPECT_TRUE(g.ballInHandSaved && !g.ballInHand);
    EXPECT_EQ(std::tie(g.shotCount, g.targetBall), std::tuple(5, 2));
    EXPECT_TRUE(g.firstHitBall == 0 && g.firstHitPending && g.pocketedCount == 0);
    EXPECT_FALSE(g.controls.shotEnabled || g.controls.powerEnabled);
    EXPECT_TRUE(isTimerEnabled(g, kTimer1) && isTimerEnabled(g, kTimTimeCounter));
    EXPECT_FALSE(isTimerEnabled(g, kTimer2)) << "the break swing stops";
}

TEST(BreakSwing, AimsOnACircleAroundTheFootSpotWithTheMarkerTenUnitsNearer) {
    GameState g;
    SeededRandom random(7);
    g.ports.random = &random;
    double largestSwing = 0;
    for (int tick = 1; tick <= 40; ++tick) {
        Timer2_Timer(g);
        const double dx = double(g.aimX) - 1800;
        const double dy = double(g.aimY) - 600;
        EXPECT_NEAR(std::hypot(dx, dy), 100, 1e-3) << "tick " << tick;
        // The marker shows the swing without its jitter, ten units to the head's side.
        const double d = 3.1415926 / 5.6 * std::sin(double(g.swingPhase));
        EXPECT_FLOAT_EQ(g.controls.target.left,
                        tableToPixelX(float(1800 - 100 * std::cos(d) - 10)) - 10);
        EXPECT_FLOAT_EQ(g.controls.target.top, tableToPixelY(float(600 + 100 * std::sin(d))) - 10);
        // The aim differs from the swing by the jitter, at most a quarter of a degree.
        EXPECT_LE(std::fabs(std::atan2(dy, -dx) - d), 3.1415926 / 720 + 1e-5);
        largestSwing = std::max(largestSwing, std::fabs(d));
    }
    EXPECT_NEAR(largestSwing, 3.1415926 / 5.6, 1e-6); // a full swing in 40 ticks
}
