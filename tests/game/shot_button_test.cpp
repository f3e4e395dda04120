#include "game/racking.h"
#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/timers.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;

namespace {

GameState rackedForShot(int16_t power, bool isBreak) {
    GameState g;
    rackBalls(g);
    g.breakPending = isBreak;
    setPower(g, power);
    return g;
}

} // namespace

TEST(Launch, ScalesAFullHitPointToVelocitiesButSavesItUnscaled) {
    GameState g = rackedForShot(100, false);
    g.Balls[0].spinSide = 1;
    g.Balls[0].spinFollow = 1;
    cmdShot_Click(g);
    EXPECT_EQ(g.Balls[0].spinSide, 3360);
    EXPECT_EQ(g.Balls[0].spinFollow, 1680);
    EXPECT_EQ(g.BallsSaved[0].spinSide, 1);
    EXPECT_EQ(g.BallsSaved[0].spinFollow, 1);
    EXPECT_EQ(g.BallsSaved[0].speed, 0);
}

TEST(Launch, ShotButtonArmsTheShotAndHandsTheTableToTheTick) {
    GameState g = rackedForShot(80, false);
    g.Balls[1].onTable = false; // the lowest ball is now 2
    g.firstHitBall = 7;
    g.pocketedCount = 3;
    g.pocketedThisShot[2] = 5;
    g.ballInHand = true;
    g.shotCount = 4;
    g.controls.target.visible = g.controls.qBall.visible = true;
    setTimerEnabled(g, kTimer2, true);

    cmdShot_Click(g);

    EXPECT_TRUE(g.ballInHandSaved);
    EXPECT_FALSE(g.ballInHand);
    EXPECT_EQ(g.shotCount, 5);
    EXPECT_EQ(g.targetBall, 2);
    EXPECT_EQ(g.firstHitBall, 0);
    EXPECT_TRUE(g.firstHitPending);
    EXPECT_EQ(g.pocketedCount, 0);
    EXPECT_EQ(g.pocketedThisShot[2], 0);
    EXPECT_FALSE(g.controls.target.visible);
    EXPECT_FALSE(g.controls.qBall.visible);
    EXPECT_FALSE(g.controls.poolKeepsPicture);
    EXPECT_FALSE(g.controls.shotEnabled);
    EXPECT_FALSE(g.controls.powerEnabled);
    EXPECT_FALSE(g.controls.setPointEnabled);
    EXPECT_TRUE(isTimerEnabled(g, kTimer1));
    EXPECT_FALSE(isTimerEnabled(g, kTimer2));
    EXPECT_TRUE(isTimerEnabled(g, kTimTimeCounter));
}
