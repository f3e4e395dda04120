#include "cpu/bank_shots.h"
#include "cpu/cue_ball_placement.h"
#include "cpu/direct_shots.h"
#include "cpu/fallback_shots.h"
#include "table_setup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace morvane;
using namespace morvane::cputest;

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

void expectUntouched(const ShotPlan& plan, const GameState& g, const std::string& remark) {
    EXPECT_FALSE(plan.found);
    EXPECT_EQ(plan.cutAngle, 3.1415925f);
    EXPECT_EQ(plan.cueRun, 4800);
    EXPECT_EQ(plan.ballRun, 4800);
    EXPECT_EQ(plan.planX, g.aimX);
    EXPECT_EQ(plan.planY, g.aimY);
    EXPECT_EQ(g.controls.zephsMessage, remark);
}

class RecordingScreen : public ScreenPort {
  public:
    void drawTable() override { calls.push_back("drawTable"); }
    void refreshPool() override { calls.push_back("refreshPool"); }
    std::vector<std::string> calls;
};

} // namespace

TEST(TryDirect, TakesThePocketWithTheSmallestCutOnTheWorkedTable) {
    GameState g = workedTable();
    ShotPlan plan = startPlan(g);
    tryDirect(g, plan);
    expectPlan(plan, 1722.6042f, 636.6762f, 37.42, 1123.2f, 710.6f);
    EXPECT_EQ(g.controls.zephsMessage, "Simple is best.");

    EXPECT_EQ(japaneseRemarkOf(g, tryDirect), "素直が一番。");
}

TEST(TryDirect, ACoveredGhostPointRulesItsPocketOutAndAnEqualCutNeverReplaces) {
    GameState g = workedTable();
    putBall(g, 2, 1740, 560); // 79 from pocket 3's ghost point, off the cue ball's road
    ShotPlan plan = startPlan(g);
    tryDirect(g, plan);
    EXPECT_NEAR(plan.planX, 1735.4058, 0.01); // pocket 6
    EXPECT_NEAR(degrees(plan.cutAngle), 58.59, 0.005);

    ShotPlan equal = startPlan(g);
    equal.cutAngle = plan.cutAngle;
    g.controls.zephsMessage = "before";
    tryDirect(g, equal);
    EXPECT_FALSE(equal.found);
    EXPECT_EQ(equal.planX, g.aimX);
    EXPECT_EQ(g.controls.zephsMessage, "before");
}

TEST(TryDirect, LeavesThePlanAndTheRemarkWhenEveryRoadIsBlocked) {
    GameState g = workedTable();
    putBall(g, 2, 1200, 620); // across the roads to the ghost points of pockets 3 and 6
    g.aimX = 1800;
    g.aimY = 700;
    ShotPlan plan = startPlan(g);
    tryDirect(g, plan);
    expectUntouched(plan, g, "");
}

TEST(TryDirectCombination, PlaysTheBlockingBallAndSaysWhichKindOfShotWonLast) {
    GameState g = tableWithCueAt(550, 950);
    putBall(g, 1, 1450, 500);
    ShotPlan plain = startPlan(g);
    tryDirectCombination(g, plain);
    EXPECT_EQ(g.controls.zephsMessage, "Easy for me.");

    // Ball 4 stands before pocket 6; the plain pot at pocket 3 (67.7 degrees) comes first and the
    // combination with its smaller cut replaces it.
    putBall(g, 4, 1900, 300);
    ShotPlan plan = startPlan(g);
    tryDirectCombination(g, plan);
    expectPlan(plan, 1357.7248f, 538.5394f, 0.4296, 906.4873f, 1006.2306f);
    EXPECT_EQ(g.controls.zephsMessage, "Combination Shot!");
    EXPECT_EQ(japaneseRemarkOf(g, tryDirectCombination), "コンビネーションショット！");

    // tryDirect sees no second ball: the ghost point for pocket 6 is the plain one.
    ShotPlan direct = startPlan(g);
    tryDirect(g, direct);
    EXPECT_NE(direct.planX, plan.planX);
}

TEST(TryObjectBank, BanksTheWorkedTableOffTheRightCushionWithASmallerCut) {
    GameState g = workedTable();
    ShotPlan plan = startPlan(g);
    tryDirect(g, plan);
    tryObjectBank(g, plan);
    // The image of pocket 6 behind the right cushion, (4700, 50).
    expectPlan(plan, 1702.4210f, 721.8712f, 18.9417, 1109.1370f, 2971.9521f);
    EXPECT_EQ(g.pocketTable[8].x, 4700);
    EXPECT_EQ(g.controls.zephsMessage, ".......");
    EXPECT_EQ(japaneseRemarkOf(g, tryObjectBank), "的球のバンクだとはいるかな？");

    putBall(g, 2, 2190, 612); // on the target's road to that image
    ShotPlan blocked = startPlan(g);
    tryObjectBank(g, blocked);
    EXPECT_EQ(blocked.planX, plan.planX); // no second ball is worked in
    EXPECT_EQ(g.controls.zephsMessage, ".......");
    EXPECT_EQ(japaneseRemarkOf(g, tryObjectBank), "これは無理かな～");
}

TEST(TryObjectBank, RefusesCutsUnderTenDegreesAndGhostPointsNearACushion) {
    GameState g = workedTable();
    ShotPlan nearlyStraight = startPlan(g);
    nearlyStraight.cutAngle = 0.17f; // below 10 degrees: its own cut must be smaller and above 10
    tryObjectBank(g, nearlyStraight);
    EXPECT_FALSE(nearlyStraight.found);

    GameState edge = tableWithCueAt(600, 600);
    putBall(edge, 1, 1200, 100);
    ShotPlan plan = startPlan(edge);
    tryObjectBank(edge, plan);
    EXPECT_FALSE(plan.found);
    EXPECT_EQ(edge.pocketTable[7].x, 4700); // the right cushion was the one ahead
}

TEST(TryCueBank, FindsTheBankWithTheSmallestCutOfAllPocketsAndCushions) {
    GameState g = tableWithCueAt(550, 550);
    putBall(g, 1, 2000, 1000);
    ShotPlan plan = startPlan(g);
    tryCueBank(g, plan);
    // Pocket 2 by way of the right cushion.
    expectPlan(plan, 2350, 928.5712f, 1.2707, 2096.6113f, 813.9410f);
    EXPECT_EQ(g.controls.zephsMessage, "Bank Shot.");
    EXPECT_EQ(japaneseRemarkOf(g, tryCueBank), "バンクショット！");
}

TEST(TryCueBankCombination, NamesACombinationAndAPlainBankApart) {
    GameState g = tableWithCueAt(550, 550);
    putBall(g, 1, 2000, 1000);
    ShotPlan plain = startPlan(g);
    tryCueBankCombination(g, plain);
    EXPECT_NEAR(plain.planY, 928.5712f, 0.01);
    EXPECT_EQ(g.controls.zephsMessage, "Bank Shot!");

    putBall(g, 3, 1600, 1080); // before pocket 2
    ShotPlan combination = startPlan(g);
    tryCueBankCombination(g, combination);
    EXPECT_TRUE(combination.found);
    EXPECT_EQ(g.controls.zephsMessage, "Bank & Conbination Shot!");
    EXPECT_EQ(japaneseRemarkOf(g, tryCueBankCombination), "バンク＆コンビネーション！");
}

TEST(TryJustHit, TakesTheThinHitWhoseProbeCutsLeastAgainstItsPocket) {
    GameState g = tableWithCueAt(600, 600);
    putBall(g, 1, 1800, 600);
    ShotPlan plan = startPlan(g);
    tryJustHit(g, plan);
    // Probe 1, the centre, is blocked by the target; probe 3 against pocket 3 beats probe 2.
    expectPlan(plan, 1769.7165f, 506.7959f, 49.5560, 1173.4268f, 777.8175f);
    EXPECT_EQ(g.controls.zephsMessage, "Difficalt !");

    g.controls.zephsMessage = "kept";
    ShotPlan found = startPlan(g);
    found.found = true;
    tryJustHit(g, found);
    EXPECT_EQ(found.planX, g.aimX);
    EXPECT_EQ(g.controls.zephsMessage, "kept");
    EXPECT_EQ(japaneseRemarkOf(g, tryJustHit), "当てるぐらいしかできませんね");
}

TEST(TryCushionHit, AimsByTheShortestRoadButKeepsTheRunsOfTheLastFreeCushion) {
    GameState g = tableWithCueAt(600, 900);
    putBall(g, 1, 2000, 900);
    ShotPlan plan = startPlan(g);
    tryCushionHit(g, plan);
    // Left: 4450 in all; right: blocked by the target; top: 3303.4, chosen; bottom: 3303.4 again
    // is not below it, yet its runs are the ones written last.
    EXPECT_TRUE(plan.found);
    EXPECT_EQ(plan.planY, 1150);
    EXPECT_NEAR(plan.planX, 1300, 1e-3);
    EXPECT_NEAR(plan.cueRun, 2202.2716, 0.01);
    EXPECT_NEAR(plan.ballRun, 1101.1358, 0.01);
    EXPECT_EQ(plan.cutAngle, 3.1415925f);
    EXPECT_EQ(g.controls.zephsMessage, "I can't Poket.");
    EXPECT_EQ(japaneseRemarkOf(g, tryCushionHit), "とりあえず当てていきましょうかね。");
}

TEST(TryCushionHit, NeverSendsTheCueBallIntoTheMouthOfAMiddlePocket) {
    GameState g = tableWithCueAt(600, 600);
    putBall(g, 1, 1700, 600); // top and bottom bank points at x = 1150 exactly
    ShotPlan plan = startPlan(g);
    tryCushionHit(g, plan);
    EXPECT_EQ(plan.planX, 50);
    EXPECT_EQ(plan.planY, 600);
    EXPECT_NEAR(plan.cueRun, 1650 + 550, 1e-3);
    EXPECT_NEAR(plan.ballRun, 1650, 1e-3);
}

TEST(TryCushionHit, FindsNothingWhenEveryCushionIsClosed) {
    GameState g = tableWithCueAt(600, 600);
    putBall(g, 1, 1800, 600);
    putBall(g, 2, 400, 650); // the left rail's road
    putBall(g, 3, 900, 880); // the top rail's road
    putBall(g, 4, 900, 320); // the bottom rail's road
    ShotPlan plan = startPlan(g);
    tryCushionHit(g, plan);
    expectUntouched(plan, g, "");
}

TEST(PlaceCueBall, WithBallInHandSetsUpAStraightShotAtTheNearestPocket) {
    GameState g = workedTable();
    RecordingScreen screen;
    g.ports.screen = &screen;
    g.ballInHand = true;
    g.controls.qBall.visible = true;
    placeCueBall(g);
    // Pocket 3 is the nearest: 200 behind the target on its line.
    EXPECT_NEAR(g.Balls[0].x, 1800 - 200 * 550 / 710.6335, 1e-3);
    EXPECT_NEAR(g.Balls[0].y, 700 - 200 * 450 / 710.6335, 1e-3);
    EXPECT_NEAR(g.aimX, 1800, 1e-3);
    EXPECT_NEAR(g.aimY, 700, 1e-3);
    EXPECT_NEAR(g.controls.target.left, 30 + 360 - 10, 1e-3);
    EXPECT_NEAR(g.controls.target.top, 30 + 100 - 10, 1e-3);
    EXPECT_FALSE(g.controls.qBall.visible);
    EXPECT_EQ(screen.calls, (std::vector<std::string>{"drawTable", "refreshPool"}));
    EXPECT_EQ(g.controls.zephsMessage, "My turn.");

    // Now the straight shot is there for tryDirect, with no cut.
    ShotPlan plan = startPlan(g);
    tryDirect(g, plan);
    EXPECT_NEAR(plan.cutAngle, 0, 1e-3);

    g.isJapanese = true;
    placeCueBall(g);
    EXPECT_EQ(g.controls.zephsMessage, "動かさなきゃ");
}

TEST(PlaceCueBall, SkipsTakenSpotsAndSpotsOnACushionLine) {
    GameState g = tableWithCueAt(600, 900);
    putBall(g, 1, 1200, 250);
    putBall(g, 2, 1200, 450); // takes the spot for pocket 5
    g.ballInHand = true;
    placeCueBall(g);
    // Pocket 2's spot is (1200, 50), on the cushion line; pocket 4 comes before pocket 6.
    EXPECT_NEAR(g.Balls[0].x, 1200 + 200 * 1150 / 1167.2618, 1e-3);
    EXPECT_NEAR(g.Balls[0].y, 250 + 200 * 200 / 1167.2618, 1e-3);
}

TEST(PlaceCueBall, WithoutBallInHandOnlyMovesTheAimOntoTheTarget) {
    GameState g = workedTable();
    g.controls.zephsMessage = "Weel....";
    placeCueBall(g);
    EXPECT_EQ(g.Balls[0].x, 600);
    EXPECT_EQ(g.Balls[0].y, 600);
    EXPECT_NEAR(g.aimX, 1800, 1e-3);
    EXPECT_EQ(g.controls.zephsMessage, "Weel....");
}
