#include "cpu/road_tests.h"
#include "cpu/shot_geometry.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

void expectPoint(const PointType& p, float x, float y, float tolerance = 1e-3f) {
    EXPECT_NEAR(p.x, x, tolerance);
    EXPECT_NEAR(p.y, y, tolerance);
}

} // namespace

TEST(ShotGeometry, CutAngleGhostPointAndTheEdgesOfTheTable) {
    EXPECT_EQ(angleBetween({3, 4}, {6, 8}), 0);
    EXPECT_EQ(angleBetween({1, 0}, {-2, 0}), 3.1415925f); // not the float nearest to pi

    expectPoint(ghostPoint({1800, 700}, {2350, 1150}), 1722.6042f, 636.6762f);
    expectPoint(ghostPoint({1200, 100}, {1200, 1150}), 1200, 0); // beyond the cushion line

    EXPECT_TRUE(isOnTable(51, 1149));
    EXPECT_FALSE(isOnTable(50, 600));
    EXPECT_TRUE(isCentralShot({300.1f, 979.9f}, 0.1746f));
    EXPECT_FALSE(isCentralShot({1200, 600}, 0.1745f)); // under 10 degrees
}

TEST(RoadTests, ABallOnTheLineOrItsEndsCountsByEachTestsOwnRule) {
    // Ball 2 on or near the road from (600, 600) to (1600, 600).
    struct Case {
        const char* where;
        float x, y;
        bool blocked;       // isPathBlocked
        bool blockedExcept; // isPathBlockedExcept, leaving out ball 1
    };
    const Case cases[] = {
        {"99 from the line", 1100, 699, true, true},
        {"101 from the line", 1100, 701, false, false},
        {"level with the start, 99.9 off", 600, 699.9f, true, false},
        {"exactly at the end", 1600, 600, true, false},
        {"behind the start", 550, 600, false, false},
    };
    const PointType from{600, 600};
    const PointType to{1600, 600};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.where);
        GameState g = tableWithCueAt(1100, 600); // the cue ball never counts
        putBall(g.Balls, 2, c.x, c.y);
        EXPECT_EQ(isPathBlocked(g, from, to), c.blocked);
        EXPECT_EQ(isPathBlockedExcept(g, from, to, 1), c.blockedExcept);
        EXPECT_EQ(findBlockingBall(g, from, to, 1), c.blockedExcept ? 2 : 0);
        EXPECT_FALSE(isPathBlockedExcept(g, from, to, 2));
    }
}

TEST(RoadTests, NameTheLowestBlockerAndCallARoadOfNoLengthBlocked) {
    GameState g = tableWithCueAt(600, 600);
    const PointType from{600, 600};
    const PointType to{1600, 600};
    putBall(g.Balls, 5, 700, 620);
    putBall(g.Balls, 3, 1500, 580);
    EXPECT_EQ(findBlockingBall(g, from, to, 0), 3);
    EXPECT_EQ(findBlockingBall(g, from, to, 3), 5);
    EXPECT_TRUE(isPathBlocked(g, {90, 90}, {90, 90}));
}
