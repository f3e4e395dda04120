#include "table/cushions.h"
#include "table/motion.h"
#include "table_fixtures.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

TEST(Pockets, RangesIncludeTheirEnds) {
    GameState g = emptyTable();
    putBall(g, 1, 50, 102, 800);
    EXPECT_EQ(checkPocket(g, 1, kCushionLeft), 4);
    EXPECT_FALSE(g.Balls[1].onTable);
    EXPECT_EQ(g.Balls[1].speed, 0);
    EXPECT_EQ(g.Balls[1].vx, float(800)); // the rest stays as it fell

    putBall(g, 2, 50, 102.5f, 800);
    EXPECT_EQ(checkPocket(g, 2, kCushionLeft), 0);
    EXPECT_TRUE(g.Balls[2].onTable);
    EXPECT_EQ(g.Balls[2].speed, 800);

    putBall(g, 3, 1150, 1150, 800);
    EXPECT_EQ(checkPocket(g, 3, kCushionTop), 2);
    putBall(g, 4, 1149, 1150, 800);
    EXPECT_EQ(checkPocket(g, 4, kCushionTop), 0);
}

TEST(Cushions, MirrorTheDirectionAndKeepTheSpeed) {
    GameState g = emptyTable();
    putBall(g, 1, 2350, 600, 1500, 0.4f);
    bounceCushion(g, 1, kCushionRight);
    EXPECT_FLOAT_EQ(g.Balls[1].speed, 1500);
    EXPECT_FLOAT_EQ(g.Balls[1].angle, float(3.1415926 - 0.4f));

    putBall(g, 2, 700, 50, 900, -1.0f);
    g.Balls[2].spinFollow = 400;
    bounceCushion(g, 2, kCushionBottom);
    EXPECT_FLOAT_EQ(g.Balls[2].speed, 900);
    EXPECT_FLOAT_EQ(g.Balls[2].angle, 1.0f);
    EXPECT_EQ(g.Balls[2].spinFollow, 0);
}

TEST(Cushions, SideSpinPushesAlongTheCushionToTheRightOfTheApproach) {
    GameState g = emptyTable();
    putBall(g, 0, 600, 1150, 1000, float(3.1415926 / 2));
    g.Balls[0].spinSide = 500;
    bounceCushion(g, 0, kCushionTop);
    EXPECT_FLOAT_EQ(g.Balls[0].speed, float(std::sqrt(1000.0 * 1000 + 500 * 500)));
    EXPECT_NEAR(g.Balls[0].speed, 1118, 0.1);
    EXPECT_FLOAT_EQ(g.Balls[0].vx, 500); // right of a ball running up the table
    EXPECT_LT(g.Balls[0].vy, 0);
    EXPECT_EQ(g.Balls[0].spinSide, 0);

    putBall(g, 1, 50, 600, 1000, float(3.1415926));
    g.Balls[1].spinSide = 500;
    bounceCushion(g, 1, kCushionLeft);
    EXPECT_FLOAT_EQ(g.Balls[1].vy, 500); // right of a ball running left is up
}

TEST(Pockets, BallAlongTheBottomCushionPassesTheMiddleAndDropsInTheCorner) {
    GameState g = emptyTable();
    RecordingContacts contacts;
    g.ports.contacts = &contacts;
    putBall(g, 3, 300, 50.5f, 5000, 0);
    for (int frame = 0; frame < 40 && g.Balls[3].onTable; ++frame)
        runFrame(g);
    expectOnlyCapture(contacts, kCushionRight, 6);
}

TEST(Pockets, BallsFallingInOneFrameAreListedInTheOrderOfTheirTimes) {
    GameState g = emptyTable();
    RecordingScreen screen;
    RecordingSound sound;
    g.ports.screen = &screen;
    g.ports.sound = &sound;
    putBall(g, 2, 1200, 1100, 1500, float(3.1415926 / 2)); // 50 from the top: at 0.033
    putBall(g, 7, 1200, 80, 5600, float(-3.1415926 / 2));  // 30 from the bottom: at 0.005
    runFrame(g);
    ASSERT_EQ(g.pocketedCount, 2);
    EXPECT_EQ(g.pocketedThisShot[0], 7);
    EXPECT_EQ(g.pocketedThisShot[1], 2);
    ASSERT_EQ(screen.drops.size(), 2u);
    EXPECT_EQ(screen.drops[0], std::make_pair(7, 5));
    EXPECT_EQ(screen.drops[1], std::make_pair(2, 2));
    ASSERT_EQ(sound.played.size(), 2u); // a pocket always sounds, however fast the ball
    EXPECT_EQ(sound.played[0].first, "drop.wav");
    EXPECT_EQ(sound.played[0].second, 1);
}
