#include "cpu/turn_driver.h"
#include "scripted_random.h"
#include "table/timers.h"
#include "table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::cputest;

namespace {

// A CPU turn on the worked table in a game against the CPU, timCom running.
GameState turnTable(bool breakPending) {
  GameState g = workedTable();
  g.gameMode = kModeVersus;
  g.breakPending = breakPending;
  g.zephLevel = 1;
  g.timers[kTimCom].interval = 100;
  setTimerEnabled(g, kTimCom, true);
  return g;
}

void tick(GameState &g, int times) {
  for (int i = 0; i < times; ++i)
    timCom_Timer(g);
}

} // namespace

TEST(TurnDriver, RunsTheTurnTickByTickAndShootsOnTheTwentySecond) {
  GameState g = turnTable(false);
  ScriptedRandom random({0.99});
  g.ports.random = &random;
  g.aimX = 100;
  g.aimY = 100;

  tick(g, 1);
  EXPECT_EQ(g.cpuTickCounter, 1);
  EXPECT_TRUE(g.controls.zephsMessageVisible);
  EXPECT_EQ(g.controls.zephsMessage, "Weel....");
  EXPECT_NEAR(g.aimX, 1800, 1e-3); // placeCueBall put the aim on the target
  EXPECT_FALSE(g.controls.shotEnabled);
  EXPECT_FALSE(g.controls.powerEnabled);
  EXPECT_FALSE(g.controls.setPointEnabled);
  EXPECT_FALSE(g.controls.poolEnabled);

  tick(g, 5); // ticks 1 to 4 wait, tick 5 thinks
  EXPECT_EQ(g.cpuTickCounter, 6);
  EXPECT_EQ(random.draws, 1u);
  EXPECT_NEAR(g.aimX, 1722.6042, 0.01);
  EXPECT_EQ(g.controls.zephsMessage, "Simple is best.");
  EXPECT_TRUE(g.controls.zephsMessageVisible);

  tick(g, 9); // 6 to 14: the remark stays
  EXPECT_EQ(g.cpuTickCounter, 15);
  EXPECT_TRUE(g.controls.zephsMessageVisible);
  tick(g, 1);
  EXPECT_FALSE(g.controls.zephsMessageVisible);
  tick(g, 5);
  EXPECT_EQ(g.cpuTickCounter, 21);
  EXPECT_EQ(g.shotCount, 0);
  EXPECT_TRUE(isTimerEnabled(g, kTimCom));

  tick(g, 1);
  EXPECT_EQ(g.cpuTickCounter, 0);
  EXPECT_EQ(g.controls.zephsMessage, "");
  EXPECT_FALSE(g.controls.zephsMessageVisible);
  EXPECT_EQ(g.shotCount, 1);
  EXPECT_TRUE(isTimerEnabled(g, kTimer1));
  EXPECT_FALSE(isTimerEnabled(g, kTimCom));
  EXPECT_FALSE(g.controls.poolEnabled);
  EXPECT_EQ(random.draws, 1u);
}

TEST(TurnDriver, OnTheBreakSaysItsFirstShotAndDoesNotThink) {
  GameState g = turnTable(true);
  g.aimX = 1790;
  g.aimY = 612;
  ScriptedRandom random({0.1, 0.1, 0.1});
  g.ports.random = &random;
  tick(g, 1);
  EXPECT_EQ(g.controls.zephsMessage, "My first shot.");
  EXPECT_EQ(g.Balls[0].x, 600);
  tick(g, 14);
  EXPECT_EQ(random.draws, 0u);
  EXPECT_EQ(g.controls.zephsMessage, "My first shot.");
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

TEST(TurnDriver, BallInHandReplacesTheFirstRemark) {
  GameState g = turnTable(false);
  g.ballInHand = true;
  tick(g, 1);
  EXPECT_EQ(g.controls.zephsMessage, "My turn.");
  EXPECT_NE(g.Balls[0].x, 600);
}

TEST(TurnDriver, InTheDemoTheTableStaysLiveForAClick) {
  GameState g = turnTable(false);
  g.gameMode = kModeDemo;
  tick(g, 1);
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
  EXPECT_EQ(g.cpuTickCounter, 8);

  g.controls.zephsMessage = "";
  setTimerEnabled(g, kTimCom, true);
  tick(g, 13);
  EXPECT_EQ(g.cpuTickCounter, 21);
  EXPECT_EQ(g.controls.zephsMessage, ""); // no first remark, no new decision
  EXPECT_EQ(random.draws, 1u);
  tick(g, 1);
  EXPECT_EQ(g.shotCount, 1);
}
