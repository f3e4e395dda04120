#include "support/balls.h"
#include "support/recording_contacts.h"
#include "table/cushions.h"
#include "table/motion.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

TEST(Pockets, RangesIncludeTheirEnds) {
    BallArray balls = emptyTable();
    putBall(balls, 1, 50, 102, 800);
    EXPECT_EQ(checkPocket(balls[1], kCushionLeft), 4);
    EXPECT_FALSE(balls[1].onTable);
    EXPECT_EQ(balls[1].speed, 0);
    EXPECT_EQ(balls[1].vx, float(800)); // the rest stays as it fell

    putBall(balls, 2, 50, 102.5f, 800);
    EXPECT_EQ(checkPocket(balls[2], kCushionLeft), 0);
    EXPECT_TRUE(balls[2].onTable);
    EXPECT_EQ(balls[2].speed, 800);

    putBall(balls, 3, 1150, 1150, 800);
    EXPECT_EQ(checkPocket(balls[3], kCushionTop), 2);
    putBall(balls, 4, 1149, 1150, 800);
    EXPECT_EQ(checkPocket(balls[4], kCushionTop), 0);
}

TEST(Cushions, MirrorTheDirectionAndKeepTheSpeed) {
    BallArray balls = emptyTable();
    putBall(balls, 1, 2350, 600, 1500, 0.4f);
    bounceCushion(balls[1], kCushionRight);
    EXPECT_FLOAT_EQ(balls[1].speed, 1500);
    EXPECT_FLOAT_EQ(balls[1].angle, float(3.1415926 - 0.4f));

    putBall(balls, 2, 700, 50, 900, -1.0f);
    balls[2].spinFollow = 400;
    bounceCushion(balls[2], kCushionBottom);
    EXPECT_FLOAT_EQ(balls[2].speed, 900);
    EXPECT_FLOAT_EQ(balls[2].angle, 1.0f);
    EXPECT_EQ(balls[2].spinFollow, 0);
}

TEST(Cushions, SideSpinPushesAlongTheCushionToTheRightOfTheApproach) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 600, 1150, 1000, float(3.1415926 / 2));
    balls[0].spinSide = 500;
    bounceCushion(balls[0], kCushionTop);
    EXPECT_FLOAT_EQ(balls[0].speed, float(std::sqrt(1000.0 * 1000 + 500 * 500)));
    EXPECT_NEAR(balls[0].speed, 1118, 0.1);
    EXPECT_FLOAT_EQ(balls[0].vx, 500); // right of a ball running up the table
    EXPECT_LT(balls[0].vy, 0);
    EXPECT_EQ(balls[0].spinSide, 0);

    putBall(balls, 1, 50, 600, 1000, float(3.1415926));
    balls[1].spinSide = 500;
    bounceCushion(balls[1], kCushionLeft);
    EXPECT_FLOAT_EQ(balls[1].vy, 500); // right of a ball running left is up
}

TEST(Pockets, BallAlongTheBottomCushionPassesTheMiddleAndDropsInTheCorner) {
    BallArray balls = emptyTable();
    RecordingContacts contacts;
    putBall(balls, 3, 300, 50.5f, 5000, 0);
    for (int frame = 0; frame < 40 && balls[3].onTable; ++frame)
        runFrame(balls, contacts);
    expectOnlyCapture(contacts, kCushionRight, 6);
}
