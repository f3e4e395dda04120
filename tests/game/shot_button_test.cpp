#include "game/racking.h"
#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/timers.h"

#include <gtest/gtest.h>

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
    g.controls.target.visible = g.controls.qBall.visible = true;
    setTimerEnabled(g, kTimer2, true);

    cmdShot_Click(g);

    EXPECT_EQ(g.Balls[0].spinSide, 3360);
    EXPECT_EQ(g.Balls[0].spinFollow, 1680);
    EXPECT_EQ(g.BallsSaved[0].spinSide, 1) << "saved for Back as it was set";
    EXPECT_TRUE(g.ballInHandSaved && !g.ballInHand);
    EXPECT_EQ(g.shotCount, 5);
    EXPECT_EQ(g.targetBall, 2);
    EXPECT_TRUE(g.firstHitBall == 0 && g.firstHitPending && g.pocketedCount == 0);
    EXPECT_FALSE(g.controls.target.visible || g.controls.qBall.visible);
    EXPECT_FALSE(g.controls.shotEnabled || g.controls.powerEnabled);
    EXPECT_TRUE(isTimerEnabled(g, kTimer1) && isTimerEnabled(g, kTimTimeCounter));
    EXPECT_FALSE(isTimerEnabled(g, kTimer2)) << "the break swing stops";
}
