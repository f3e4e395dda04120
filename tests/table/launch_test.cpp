#include "support/balls.h"
#include "table/launch.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

TEST(Launch, SpeedIs56APercentAndAFifthMoreOnTheBreakTowardsTheAim) {
    struct Case {
        int16_t power;
        bool isBreak;
        float speed;
    };
    for (const Case c : {Case{35, false, 1960}, Case{100, false, 5600}, Case{100, true, 6720}}) {
        BallArray balls = emptyTable();
        putBall(balls, 0, 600, 600);
        launchCueBall(balls[0], 600, 700, c.power, c.isBreak);
        EXPECT_EQ(balls[0].speed, c.speed) << c.power << (c.isBreak ? " on the break" : "");
        EXPECT_EQ(balls[0].angle, float(3.1415926 / 2));
        EXPECT_EQ(balls[0].vy, c.speed);
    }
}
