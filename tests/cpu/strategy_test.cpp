#include "cpu/bank_shots.h"
#include "cpu/cue_ball_placement.h"
#include "cpu/direct_shots.h"
#include "cpu/fallback_shots.h"
#include "cpu/plan_remarks.h"
#include "support/recording_screen.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

void expectPlan(const ShotPlan& plan, float x, float y, double cutDegrees, float cueRun,
                float ballRun) {
    EXPECT_TRUE(plan.found);
    EXPECT_NEAR(plan.planX, x, 0.01);
    EXPECT_NEAR(plan.planY, y, 0.01);
    EXPECT_NEAR(degrees(plan.cutAngle), cutDegrees, 0.005);
    EXPECT_NEAR(plan.cueRun, cueRun, 0.05);
    EXPECT_NEAR(plan.ballRun, ballRun, 0.05);
}

template <typename Search> ShotPlan freshPlan(const GameState& g, Search search) {
    ShotPlan plan = startPlan(g);
    search(g, plan);
    return plan;
}

} // namespace

TEST(TryDirect, TakesTheSmallestCutOfTheReachableGhostPoints) {
    GameState g = workedTable();
    expectPlan(freshPlan(g, tryDirect), 1722.6042f, 636.6762f, 37.42, 1123.2f, 710.6f);

    putBall(g.Balls, 2, 1740, 560); // covers pocket 3's ghost point, off the cue ball's road
    const ShotPlan pocketSix = freshPlan(g, tryDirect);
    EXPECT_NEAR(degrees(pocketSix.cutAngle), 58.59, 0.005);
}

TEST(TryDirectCombination, PlaysTheBlockingBallAndSaysSo) {
    GameState g = tableWithCueAt(550, 950);
    putBall(g.Balls, 1, 1450, 500);
    // Ball 4 stands before pocket 6: the plain pot at pocket 3 (67.7 degrees) comes first and the
    // combination replaces it.
    putBall(g.Balls, 4, 1900, 300);
    const ShotPlan combination = freshPlan(g, tryDirectCombination);
    expectPlan(combination, 1357.7248f, 538.5394f, 0.4296, 906.4873f, 1006.2306f);
    EXPECT_EQ(combination.strategy, Strategy::DirectCombination);
    EXPECT_TRUE(combination.roadHoldsBall);
    EXPECT_STREQ(remarkOf(combination).english, "Combination Shot!");
}

TEST(TryObjectBank, BanksTheWorkedTableOffTheRightCushionIntoPocketSix) {
    GameState g = workedTable();
    ShotPlan plan = freshPlan(g, tryDirect);
    tryObjectBank(g, plan);
    expectPlan(plan, 1702.4210f, 721.8712f, 18.9417, 1109.1370f, 2971.9521f);
    EXPECT_EQ(plan.strategy, Strategy::ObjectBank);
}

TEST(TryCueBank, FindsTheSmallestCutOverAllPocketsAndCushions) {
    GameState g = tableWithCueAt(550, 550);
    putBall(g.Balls, 1, 2000, 1000);
    // Pocket 2 by way of the right cushion.
    expectPlan(freshPlan(g, tryCueBank), 2350, 928.5712f, 1.2707, 2096.6113f, 813.9410f);
}

TEST(TryJustHit, TakesTheThinHitWhoseProbeCutsLeastAgainstItsPocket) {
    GameState g = tableWithCueAt(600, 600);
    putBall(g.Balls, 1, 1800, 600);
    // Probe 1, the centre, is blocked by the target; probe 3 against pocket 3 beats probe 2.
    expectPlan(freshPlan(g, tryJustHit), 1769.7165f, 506.7959f, 49.5560, 1173.4268f, 777.8175f);
}

TEST(TryCushionHit, AimsByTheShortestRoadButKeepsTheRunsOfTheLastFreeCushion) {
    GameState g = tableWithCueAt(600, 900);
    putBall(g.Balls, 1, 2000, 900);
    // Left: 4450 in all; right: blocked by the target; top: 3303.4, chosen; bottom: 3303.4 again
    // is not below it, yet its runs are the ones written last.
    expectPlan(freshPlan(g, tryCushionHit), 1300, 1150, 180, 2202.2716f, 1101.1358f);
}

TEST(PlaceCueBall, WithBallInHandSetsUpAStraightShotAtTheNearestFreePocket) {
    GameState g = workedTable();
    RecordingScreen screen;
    g.ports.screen = &screen;
    g.ballInHand = true;
    placeCueBall(g);
    EXPECT_NEAR(g.Balls[0].x, 1800 - 200 * 550 / 710.6335, 1e-3); // behind the target, pocket 3
    EXPECT_NEAR(g.Balls[0].y, 700 - 200 * 450 / 710.6335, 1e-3);
    EXPECT_NEAR(g.aimX, 1800, 1e-3);
}
