#include "cpu/turn_driver.h"
#include "game/timers.h"
#include "support/scripted_random.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

// A CPU turn on the worked table in a game against the CPU, timCom running.
struct TurnDriver : ::testing::Test {
    GameState g = workedTable();
    ScriptedRandom random{{0.99}};
    void SetUp() override {
        g.gameMode = kModeVersus;
        g.breakPending = false;
        g.ports.random = &random;
        g.timers[kTimCom].interval = 100;
        setTimerEnabled(g, kTimCom, true);
    }
    void tick(int times) {
        for (int i = 0; i < times; ++i)
            timCom_Timer(g);
    }
};

} // namespace

TEST_F(TurnDriver, RunsTheTurnTickByTickThinkingOnTheFifthAndShootingOnTheTwentieth) {
    tick(1);
    EXPECT_EQ(g.controls.zephsMessage, "Weel....");
    EXPECT_FALSE(g.controls.shotEnabled || g.controls.poolEnabled);
    tick(4);
    EXPECT_EQ(random.draws, 0u);
    tick(1); // tick 5 thinks
    EXPECT_EQ(random.draws, 1u);
    EXPECT_EQ(g.controls.zephsMessage, "Simple is best.");
    tick(15);
    EXPECT_EQ(g.shotCount, 0);
    tick(1);
    EXPECT_EQ(g.shotCount, 1);
    EXPECT_TRUE(isTimerEnabled(g, kTimer1) && !isTimerEnabled(g, kTimCom));
}

TEST_F(TurnDriver, BallInHandReplacesTheFirstRemarkAndTheDemoKeepsTheTableLive) {
    g.ballInHand = true;
    g.gameMode = kModeDemo;
    tick(1);
    EXPECT_EQ(g.controls.zephsMessage, "My turn.");
    EXPECT_NE(g.Balls[0].x, 600);
    tick(21);
    EXPECT_EQ(std::tie(g.controls.poolEnabled, g.shotCount), std::tuple(true, 1));
}
