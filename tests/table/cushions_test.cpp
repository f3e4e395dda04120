#include "support/balls.h"
#include "table/cushions.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

TEST(Pockets, EachCushionHasItsPocketMouthsWithTheirEndsIncluded) {
    struct Case {
        int cushion;
        float x, y;
        int16_t pocket;
    };
    const Case cases[] = {
        {kCushionLeft, 50, 102, 4},    {kCushionLeft, 50, 102.5f, 0},  {kCushionTop, 1150, 1150, 2},
        {kCushionTop, 1149, 1150, 0},  {kCushionTop, 1250, 1150, 2},   {kCushionTop, 1251, 1150, 0},
        {kCushionBottom, 2300, 50, 6}, {kCushionRight, 2350, 1100, 3},
    };
    for (const Case& c : cases) {
        BallArray balls = emptyTable();
        putBall(balls, 1, c.x, c.y, 800);
        EXPECT_EQ(checkPocket(balls[1], c.cushion), c.pocket) << c.x << ", " << c.y;
        EXPECT_EQ(balls[1].onTable, c.pocket == 0);
        EXPECT_EQ(balls[1].speed, c.pocket == 0 ? 800 : 0);
    }
}

TEST(Cushions, MirrorTheBallAndTurnSideSpinIntoAPushToTheRightOfTheApproach) {
    const double pi = 3.1415926;
    struct Case {
        int cushion;
        double angle;
        float vx, vy; // after the bounce, the push of 500 on the mirrored 1000
    };
    const Case cases[] = {{kCushionTop, pi / 2, 500, -1000},
                          {kCushionBottom, -pi / 2, -500, 1000},
                          {kCushionLeft, pi, 1000, 500},
                          {kCushionRight, 0, -1000, -500}};
    for (const Case& c : cases) {
        BallArray balls = emptyTable();
        putBall(balls, 0, 600, 600, 1000, float(c.angle));
        balls[0].spinSide = 500;
        balls[0].spinFollow = 400;
        bounceCushion(balls[0], c.cushion);
        EXPECT_NEAR(balls[0].vx, c.vx, 1e-2) << "cushion " << c.cushion;
        EXPECT_NEAR(balls[0].vy, c.vy, 1e-2) << "cushion " << c.cushion;
        EXPECT_FLOAT_EQ(balls[0].speed, float(std::sqrt(1000.0 * 1000 + 500 * 500)));
        EXPECT_EQ(balls[0].spinSide, 0);
        EXPECT_EQ(balls[0].spinFollow, 0);
    }
}
