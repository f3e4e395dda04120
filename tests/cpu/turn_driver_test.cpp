#include "cpu/turn_driver.h"
#include "game/timers.h"
#include "support/scripted_random.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

// A CPU turn on the worked table in a game against the CPU, timCom running.
GameState turnTable(bool breakPending) {
    GameState g = workedTable();
    g.gameMode = kModeVersus;
    g.breakPending = breakPending;
    g.timers[kTimCom].interval = 100;
    setTimerEnabled(g, kTimCom, true);
    return g;
}

void tick(GameState& g, int times) {
    for (int i = 0; i < times; ++i)
        timCom_Timer(g);
}

} // namespace

TEST(TurnDriver, RunsTheTurnTickByTickAndShootsOnTheTwentySecond) {
    GameState g = turnTable(false);
    ScriptedRandom random({0.99});
    g.ports.random = &random;
    tick(g, 1);
    EXPECT_TRUE(g.controls.zephsMessageVisible);
    EXPECT_EQ(g.controls.zephsMessage, "Weel....");
    EXPECT_NEAR(g.aimX, 1800, 1e-3); // placeCueBall put the aim on the target
    EXPECT_FALSE(g.controls.shotEnabled || g.controls.powerEnabled || g.controls.setPointEnabled);
    EXPECT_FALSE(g.controls.poolEnabled);

    tick(g, 4);
    EXPECT_EQ(random.draws, 0u);
    tick(g, 1); // tick 5 thinks
    EXPECT_EQ(random.draws, 1u);
    EXPECT_NEAR(g.aimX, 1722.6042, 0.01);
    EXPECT_EQ(g.controls.zephsMessage, "Simple is best.");

    tick(g, 9); // 6 to 14: the remark stays
    EXPECT_TRUE(g.controls.zephsMessageVisible);
    tick(g, 1);
    EXPECT_FALSE(g.controls.zephsMessageVisible);
    tick(g, 5);
    EXPECT_EQ(g.cpuTickCounter, 21);
    EXPECT_EQ(g.shotCount, 0);

    tick(g, 1);
    EXPECT_EQ(g.cpuTickCounter, 0);
    EXPECT_EQ(g.controls.zephsMessage, "");
    EXPECT_EQ(g.shotCount, 1);
    EXPECT_TRUE(isTimerEnabled(g, kTimer1));
    EXPECT_FALSE(isTimerEnabled(g, kTimCom));
    EXPECT_FALSE(g.controls.poolEnabled);
}

TEST(TurnDriver, OnTheBreakSaysItsFirstShotAndDoesNotThink) {
    GameState g = turnTable(true);
    g.aimY = 612;
    ScriptedRandom random({0.1, 0.1, 0.1});
    g.ports.random = &random;
    tick(g, 15);
    EXPECT_EQ(random.draws, 0u);
    EXPECT_EQ(g.controls.zephsMessage, "My first shot.");
    EXPECT_EQ(g.Balls[0].x, 600);
    EXPECT_EQ(g.aimY, 612);

    GameState japanese = turnTable(true);
    japanese.isJapanese = true;
    tick(japanese, 1);
    EXPECT_EQ(japanese.controls.zephsMessage, "お先に!");
    japanese.breakPending = false;
    japanese.cpuTickCounter = 0;
    tick(japanese, 1);
    EXPECT_EQ(japanese.controls.zephsMessage, "う～んとね。");
}

TEST(TurnDriver, BallInHandReplacesTheFirstRemarkAndTheDemoKeepsTheTableLive) {
    GameState g = turnTable(false);
    g.ballInHand = true;
    g.gameMode = kModeDemo;
    tick(g, 1);
    EXPECT_EQ(g.controls.zephsMessage, "My turn.");
    EXPECT_NE(g.Balls[0].x, 600);
    EXPECT_TRUE(g.controls.poolEnabled);
    tick(g, 21);
    EXPECT_TRUE(g.controls.poolEnabled);
    EXPECT_EQ(g.shotCount, 1);
}

TEST(TurnDriver, ATurnCutOffGoesOnFromItsTickNextTime) {
    GameState g = turnTable(false);
    ScriptedRandom random({0.99});
    g.ports.random = &random;
    tick(g, 8);
    setTimerEnabled(g, kTimCom, false); // the demo ends under it
    g.controls.zephsMessage = "";
    setTimerEnabled(g, kTimCom, true);
    tick(g, 13);
    EXPECT_EQ(g.cpuTickCounter, 21);
    EXPECT_EQ(g.controls.zephsMessage, ""); // no first remark, no new decision
    EXPECT_EQ(random.draws, 1u);
    tick(g, 1);
    EXPECT_EQ(g.shotCount, 1);
}
