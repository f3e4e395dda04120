#include "cpu/shot_choice.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

TEST(Power, ComesFromTheRunsFromLevelThreeBoundFirstThenCut) {
    struct Case {
        int16_t level;
        float cueRun, ballRun;
        int16_t power;
    };
    const Case cases[] = {
        {3, 100, 100, 35}, {3, 500, 316, 51}, {11, 4800, 4800, 100}, {2, 500, 300, 100}};
    for (const Case& c : cases) {
        ShotPlan plan;
        plan.cueRun = c.cueRun;
        plan.ballRun = c.ballRun;
        EXPECT_EQ(powerForPlan(c.level, plan), c.power) << c.cueRun << " + " << c.ballRun;
    }
    EXPECT_EQ(std::tuple(getMissChance(1), getMissChance(10), getMissChance(11)),
              std::tuple(0.8f, 0.05f, 0.01f));
}

TEST(ChoosePlan, TheWorkedTableIsADirectPotBelowLevelFiveAndAnObjectBankFromThere) {
    for (int16_t level = 1; level <= 11; ++level) {
        const ShotPlan plan = choosePlan(workedTable(), level);
        EXPECT_NEAR(plan.planX, level < 5 ? 1722.6042 : 1702.4210, 0.01) << "level " << level;
    }
}

TEST(ChoosePlan, OnlyLevelsNineAndUpBankTheCueBallWhenNoPotCutsUnder30Degrees) {
    // Ball 2 stands across every straight road from the cue ball to the target.
    GameState g = tableWithCueAt(550, 550);
    putBall(g.Balls, 1, 2000, 1000);
    putBall(g.Balls, 2, 1300, 780);
    const ShotPlan eight = choosePlan(g, 8);
    EXPECT_EQ(eight.cutAngle, 3.1415925f);
    EXPECT_EQ(eight.strategy, Strategy::CushionHit);

    // Off the bottom cushion onto the ghost point for pocket 3.
    const ShotPlan bank = choosePlan(g, 9);
    EXPECT_NEAR(bank.planX, 1031.2493, 0.01);
    EXPECT_EQ(bank.planY, 50);
    EXPECT_NEAR(degrees(bank.cutAngle), 22.8838, 0.005);
    EXPECT_EQ(bank.strategy, Strategy::CueBank);
    EXPECT_EQ(choosePlan(g, 10).strategy, Strategy::CueBankCombination);
}

TEST(ChoosePlan, WithNoPotTheLowLevelsHaveNoCushionFallbackAndLevelThreeHasOne) {
    EXPECT_FALSE(choosePlan(shutInTable(), 2).found);
    const ShotPlan three = choosePlan(shutInTable(), 3); // off the top rail, the shortest
    EXPECT_EQ(std::make_pair(three.planX, three.planY), std::make_pair(1300.0f, 1150.0f));
}
