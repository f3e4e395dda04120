#include "cpu/bank_geometry.h"
#include "cpu/combinations.h"
#include "cpu/pocket_table.h"
#include "cpu/road_tests.h"
#include "cpu/shot_geometry.h"
#include "table_setup.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::cputest;

namespace {

void expectPoint(const PointType& p, float x, float y, float tolerance = 0) {
    EXPECT_NEAR(p.x, x, tolerance);
    EXPECT_NEAR(p.y, y, tolerance);
}

} // namespace

TEST(PocketTable, HoldsTheSixPocketsAndMirrorsTheFarOnesBehindEachCushion) {
    GameState g = tableWithCueAt(600, 600);
    expectPoint(g.pocketTable[1], 50, 1150);
    expectPoint(g.pocketTable[2], 1200, 1150);
    expectPoint(g.pocketTable[3], 2350, 1150);
    expectPoint(g.pocketTable[4], 50, 50);
    expectPoint(g.pocketTable[5], 1200, 50);
    expectPoint(g.pocketTable[6], 2350, 50);

    const float images[4][3][2] = {
        {{-2300, 1150}, {-2300, 50}, {-2300, 50}},
        {{4700, 1150}, {4700, 50}, {4700, 50}},
        {{50, 2300}, {1200, 2300}, {2350, 2300}},
        {{50, -1100}, {1200, -1100}, {2350, -1100}},
    };
    for (int16_t cushion = 101; cushion <= 104; ++cushion) {
        mirrorPockets(g, cushion);
        for (int e = 7; e <= 9; ++e) {
            SCOPED_TRACE(::testing::Message() << "cushion " << cushion << " entry " << e);
            expectPoint(g.pocketTable[e], images[cushion - 101][e - 7][0],
                        images[cushion - 101][e - 7][1]);
        }
    }
    expectPoint(g.pocketTable[3], 2350, 1150); // the pockets themselves stay
}

TEST(AngleBetween, UsesTheSinglePiAndCoversEveryQuadrant) {
    EXPECT_EQ(angleBetween({3, 4}, {6, 8}), 0);
    EXPECT_EQ(angleBetween({1, 0}, {-2, 0}), 3.1415925f); // not the float nearest to pi
    EXPECT_EQ(angleBetween({0, 5}, {7, 0}), 3.1415925f / 2);
    EXPECT_EQ(angleBetween({0, 0}, {7, 0}), 0);
    EXPECT_EQ(angleBetween({7, 0}, {0, 0}), 0);
    EXPECT_NEAR(angleBetween({1, 0}, {1, 1}), 0.78539816, 1e-6);
    EXPECT_NEAR(angleBetween({1, 0}, {-1, 1}), 2.35619449, 1e-6);
    EXPECT_NEAR(angleBetween({1, 0}, {-1, -1}), 2.35619449, 1e-6);
    EXPECT_EQ(vectorLength({-3, 4}), 5);
}

TEST(GhostPoint, StandsOneBallBehindTheBallOnTheLineFromTheDestination) {
    expectPoint(ghostPoint({1000, 600}, {2000, 600}), 900, 600, 1e-3f);
    expectPoint(ghostPoint({1000, 600}, {1000, 100}), 1000, 700, 1e-3f);
    expectPoint(ghostPoint({1800, 700}, {2350, 1150}), 1722.6042f, 636.6762f, 1e-3f);
    // Near a cushion the ghost point may lie beyond the cushion line.
    expectPoint(ghostPoint({1200, 100}, {1200, 1150}), 1200, 0, 1e-3f);
}

TEST(TablePlaces, OnTableAndCentralShotAreStrictAtTheirEdges) {
    EXPECT_TRUE(isOnTable(51, 1149));
    EXPECT_FALSE(isOnTable(50, 600));
    EXPECT_FALSE(isOnTable(2350, 600));
    EXPECT_FALSE(isOnTable(600, 50));
    EXPECT_FALSE(isOnTable(600, 1150));

    const float tenDegrees = 0.1746f;
    EXPECT_TRUE(isCentralShot({1200, 600}, tenDegrees));
    EXPECT_FALSE(isCentralShot({1200, 600}, 0.1745f));
    EXPECT_FALSE(isCentralShot({300, 600}, tenDegrees));
    EXPECT_TRUE(isCentralShot({300.1f, 600}, tenDegrees));
    EXPECT_FALSE(isCentralShot({2100, 600}, tenDegrees));
    EXPECT_FALSE(isCentralShot({1200, 220}, tenDegrees));
    EXPECT_FALSE(isCentralShot({1200, 980}, tenDegrees));
    EXPECT_TRUE(isCentralShot({1200, 979.9f}, tenDegrees));

    EXPECT_EQ(limitTo(5, 1, 3), 3);
    EXPECT_EQ(limitTo(-5, 1, 3), 1);
    EXPECT_EQ(limitTo(2.5, 1.0, 3.0), 2.5);
}

TEST(RoadTests, ABallOnTheLineOrItsEndsCountsByEachTestsOwnRule) {
    // One ball, number 2, on or near the road from (600, 600) to (1600, 600); the tests leave out
    // ball 1, which is off the table anyway.
    struct Case {
        const char* where;
        float x, y;
        bool blocked;       // isPathBlocked
        bool blockedExcept; // isPathBlockedExcept, leaving out ball 1
    };
    const Case cases[] = {
        {"99 from the line", 1100, 699, true, true},
        {"101 from the line", 1100, 701, false, false},
        {"level with the start, 100 off", 600, 700, false, false},
        {"level with the start, 99.9 off", 600, 699.9f, true, false},
        {"exactly at the end", 1600, 600, true, false},
        {"behind the start", 550, 600, false, false},
        {"beyond the end", 1650, 600, false, false},
        {"on the start", 600, 600, true, true},
    };
    const PointType from{600, 600};
    const PointType to{1600, 600};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.where);
        GameState g = tableWithCueAt(600, 600);
        putBall(g, 2, c.x, c.y);
        EXPECT_EQ(isPathBlocked(g, from, to), c.blocked);
        EXPECT_EQ(isPathBlockedExcept(g, from, to, 1), c.blockedExcept);
        EXPECT_EQ(findBlockingBall(g, from, to, 1), c.blockedExcept ? 2 : 0);
        EXPECT_FALSE(isPathBlockedExcept(g, from, to, 2));
    }
}

TEST(RoadTests, SkipTheCueBallAndBallsOffTheTableAndNameTheLowestBlocker) {
    GameState g = tableWithCueAt(1100, 600); // sits right on the road
    const PointType from{600, 600};
    const PointType to{1600, 600};
    putBall(g, 7, 1000, 600);
    g.Balls[7].onTable = false;
    EXPECT_FALSE(isPathBlocked(g, from, to));

    putBall(g, 5, 700, 620); // nearer the start
    putBall(g, 3, 1500, 580);
    EXPECT_EQ(findBlockingBall(g, from, to, 0), 3);
    EXPECT_EQ(findBlockingBall(g, from, to, 3), 5);
    EXPECT_TRUE(isPathBlockedExcept(g, from, to, 3));
}

TEST(RoadTests, ARoadOfNoLengthIsBlockedYetHasNoBlockingBall) {
    GameState g = tableWithCueAt(600, 600);
    const PointType p{1000, 1000};
    EXPECT_TRUE(isPathBlocked(g, p, p));
    EXPECT_TRUE(isPathBlockedExcept(g, p, p, 0));
    EXPECT_EQ(findBlockingBall(g, p, p, 0), 0);
}

TEST(SpotTest, LeavesOutTheCueBallAndTheNamedBallAndIsStrictAt100) {
    GameState g = tableWithCueAt(1000, 600);
    EXPECT_FALSE(isSpotBlockedExcept(g, 1000, 600, 0));
    putBall(g, 4, 1100, 600);
    EXPECT_FALSE(isSpotBlockedExcept(g, 1000, 600, 0));
    EXPECT_TRUE(isSpotBlockedExcept(g, 1000.1f, 600, 0));
    EXPECT_FALSE(isSpotBlockedExcept(g, 1000.1f, 600, 4));
}

TEST(BankPoint, FollowsTheMirrorOnEveryCushion) {
    GameState g = tableWithCueAt(600, 600);
    const PointType from{600, 600};
    BankPoint top = findBankPoint(g, from, {1800, 600}, 103, 0);
    EXPECT_FALSE(top.blocked);
    expectPoint(top.point, 1200, 1150);
    expectPoint(findBankPoint(g, from, {1800, 300}, 102, 0).point, 2350, 371.73913f, 1e-3f);
    expectPoint(findBankPoint(g, from, {1800, 300}, 101, 0).point, 50, 528.26086f, 1e-3f);
    expectPoint(findBankPoint(g, from, {1800, 300}, 104, 0).point, 1425, 50, 1e-3f);
}

TEST(BankPoint, TakesTheFarDistanceAsAWholeNumberWithHalvesToEven) {
    GameState g = tableWithCueAt(600, 600);
    const PointType from{600, 600}; // 550 from the bottom cushion
    // 600.5 from the cushion counts as 600; 601.5 as 602.
    EXPECT_NEAR(findBankPoint(g, from, {1800, 650.5f}, 104, 0).point.x,
                (600.0 * 600 + 1800.0 * 550) / 1150, 1e-3);
    EXPECT_NEAR(findBankPoint(g, from, {1800, 651.5f}, 104, 0).point.x,
                (600.0 * 602 + 1800.0 * 550) / 1152, 1e-3);
    EXPECT_NEAR(findBankPoint(g, from, {1800, 650.4f}, 104, 0).point.x,
                (600.0 * 600 + 1800.0 * 550) / 1150, 1e-3);
}

TEST(BankPoint, ReportsBlockedLegsAndARoadWithNoBankPoint) {
    GameState g = tableWithCueAt(600, 600);
    const PointType from{600, 600};
    const PointType to{1800, 600}; // bank point (1200, 1150)
    putBall(g, 1, 900, 875);       // on the first leg: even the named ball counts there
    EXPECT_TRUE(findBankPoint(g, from, to, 103, 1).blocked);
    putBall(g, 1, 1500, 875); // on the second leg: the named ball is left out
    EXPECT_FALSE(findBankPoint(g, from, to, 103, 1).blocked);
    EXPECT_TRUE(findBankPoint(g, from, to, 103, 2).blocked);

    // The cue ball on the cushion line and the far point within half a unit of it.
    GameState edge = tableWithCueAt(600, 50);
    EXPECT_TRUE(findBankPoint(edge, {600, 50}, {1800, 50.4f}, 104, 0).blocked);
}

TEST(Combination, TheLowestNumberedBallBetweenPocketAndTargetBecomesTheSecondBall) {
    GameState g = tableWithCueAt(550, 950);
    putBall(g, 1, 1450, 500);
    EXPECT_FALSE(isCombinationPocket(g, 6));
    expectPoint(ghostForPocket(g, 6), ghostPoint({1450, 500}, {2350, 50}).x,
                ghostPoint({1450, 500}, {2350, 50}).y);

    putBall(g, 4, 1900, 300); // 22.4 off the line from pocket 6 to the target
    EXPECT_TRUE(isCombinationPocket(g, 6));
    EXPECT_FALSE(isCombinationPocket(g, 3));
    expectPoint(ghostForPocket(g, 6), 1357.7248f, 538.5394f, 1e-3f);

    putBall(g, 2, 2200, 130); // farther from the target than ball 4, but the lower number
    const PointType viaTwo = ghostPoint({1450, 500}, ghostPoint({2200, 130}, {2350, 50}));
    expectPoint(ghostForPocket(g, 6), viaTwo.x, viaTwo.y);
}
