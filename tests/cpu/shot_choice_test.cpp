#include "cpu/shot_choice.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

ShotPlan planWithRuns(float cueRun, float ballRun) {
    ShotPlan plan;
    plan.cueRun = cueRun;
    plan.ballRun = ballRun;
    return plan;
}

} // namespace

TEST(Power, ComesFromTheRunsFromLevelThreeBoundFirstThenCut) {
    EXPECT_EQ(powerForPlan(3, planWithRuns(300, 260)), 35);
    EXPECT_EQ(powerForPlan(3, planWithRuns(100, 100)), 35);
    EXPECT_EQ(powerForPlan(3, planWithRuns(500, 300)), 50);
    EXPECT_EQ(powerForPlan(3, planWithRuns(500, 301)), 50);
    EXPECT_EQ(powerForPlan(3, planWithRuns(500, 316)), 51);
    EXPECT_EQ(powerForPlan(11, planWithRuns(1000, 600)), 100);
    EXPECT_EQ(powerForPlan(11, planWithRuns(4800, 4800)), 100);
    EXPECT_EQ(powerForPlan(2, planWithRuns(500, 300)), 100);
}

TEST(MissChance, FallsFromEightTenthsAtLevelOneToAHundredthForTheMaster) {
    EXPECT_EQ(getMissChance(1), 0.8f);
    EXPECT_EQ(getMissChance(10), 0.05f);
    EXPECT_EQ(getMissChance(11), 0.01f);
}

TEST(ChoosePlan, TheWorkedTableIsADirectPotBelowLevelFiveAndAnObjectBankFromThere) {
    for (int16_t level = 1; level <= 11; ++level) {
        GameState g = workedTable();
        const ShotPlan plan = choosePlan(g, level);
        EXPECT_NEAR(plan.planX, level < 5 ? 1722.6042 : 1702.4210, 0.01) << "level " << level;
        EXPECT_EQ(powerForPlan(level, plan), 100);
    }
}

TEST(ChoosePlan, OnlyLevelsNineAndUpBankTheCueBallWhenNoPotCutsUnder30Degrees) {
    // Ball 2 stands across every straight road from the cue ball to the target.
    auto table = [] {
        GameState g = tableWithCueAt(550, 550);
        putBall(g.Balls, 1, 2000, 1000);
        putBall(g.Balls, 2, 1300, 780);
        return g;
    };
    const GameState g = table();
    const ShotPlan eight = choosePlan(g, 8);
    EXPECT_EQ(eight.cutAngle, 3.1415925f);
    EXPECT_EQ(eight.strategy, Strategy::CushionHit);

    // Off the bottom cushion onto the ghost point for pocket 3.
    const ShotPlan bank = choosePlan(g, 9);
    EXPECT_NEAR(bank.planX, 1031.2493, 0.01);
    EXPECT_EQ(bank.planY, 50);
    EXPECT_NEAR(degrees(bank.cutAngle), 22.8838, 0.005);
    EXPECT_NEAR(bank.cueRun, 1958.1142, 0.05);
    EXPECT_NEAR(bank.ballRun, 380.7887, 0.05);
    EXPECT_EQ(bank.strategy, Strategy::CueBank);
    EXPECT_EQ(choosePlan(g, 10).strategy, Strategy::CueBankCombination);
}

TEST(ChoosePlan, WithNoPotTheLowLevelsHaveNoCushionFallbackAndLevelThreeHasOne) {
    for (int16_t level = 1; level <= 2; ++level) {
        GameState g = shutInTable();
        const ShotPlan plan = choosePlan(g, level);
        EXPECT_FALSE(plan.found) << "level " << level;
        EXPECT_EQ(plan.planX, 2000);
        EXPECT_EQ(plan.planY, 800);
    }
    // The top rail is the shortest; the bottom rail came last and left its runs.
    GameState three = shutInTable();
    const ShotPlan plan = choosePlan(three, 3);
    EXPECT_TRUE(plan.found);
    EXPECT_EQ(plan.planX, 1300);
    EXPECT_EQ(plan.planY, 1150);
    EXPECT_NEAR(plan.cueRun, 2051.8284, 0.01);
    EXPECT_EQ(plan.strategy, Strategy::CushionHit);
}
