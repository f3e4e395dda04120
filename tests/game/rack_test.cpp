#include "game/racking.h"
#include "game/table_queries.h"

#include <gtest/gtest.h>

using namespace morvane;

TEST(Rack, StandsEveryBallAtItsStartPointToTheBitWithNothingLeftFromTheLastGame) {
    GameState g;
    g.Balls[3] = {1, 2, 3, 4, 5, 6, 7, 8, 0, false, 900, 1, 300, 200};
    rackBalls(g);
    const float x1 = 1874.6025390625f, x2 = 1963.205078125f, x3 = 2049.8076171875f;
    const float expected[10][2] = {{600, 600}, {1790, 600}, {x2, 500}, {2136.41015625f, 600},
                                   {x2, 700},  {x1, 652},   {x1, 548}, {x3, 550},
                                   {x3, 650},  {x2, 600}};
    for (int n = 0; n < kBallCount; ++n) {
        const BallType& b = g.Balls[n];
        EXPECT_EQ(std::make_pair(b.x, b.y), std::make_pair(expected[n][0], expected[n][1]))
            << "ball " << n;
        EXPECT_TRUE(b.onTable);
        EXPECT_EQ(std::make_pair(b.prevX, b.prevY), std::make_pair(b.x, b.y));
        EXPECT_TRUE(b.speed == 0 && b.vx == 0 && b.vy == 0 && b.angle == 0 && b.spinSide == 0);
    }
    EXPECT_EQ(g.aimX, 1790);
    EXPECT_EQ(getLowestBall(g), 1);
}

TEST(Helpers, IsSpotBlockedOnlyStrictlyInsideADiameterOfABallInPlay) {
    GameState g;
    rackBalls(g);
    EXPECT_FALSE(isSpotBlocked(g, 500, 600)); // exactly 100 from the cue ball
    EXPECT_TRUE(isSpotBlocked(g, 500.5f, 600));
    g.Balls[0].onTable = false;
    EXPECT_FALSE(isSpotBlocked(g, 550, 600));
}
