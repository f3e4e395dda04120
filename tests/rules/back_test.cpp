// Back: the table as it stood before the last shot, paid for on the score.
#include "game/table_queries.h"
#include "rules/modes.h"
#include "rules/undo.h"
#include "rules_fixture.h"

using namespace morvane;
using namespace morvane::testing;

namespace {

class Back : public RulesTest {
  protected:
    // A game with one shot played: the next shot pots ball 1.
    void secondShotPotsBallOne() {
        setTable(g, {{0, 1800, 600}, {1, 2200, 1000}, {9, 1000, 300}});
        g.shotCount = 1;
        g.turnCount = 1;
        shootToRest(2200, 1000, 35);
        ASSERT_FALSE(g.Balls[1].onTable);
    }
};

TEST_F(Back, TakesTheShotBackAndCountsAShotATurnAndAFoulEachTime) {
    secondShotPotsBallOne();
    const BallArray before = g.BallsSaved;
    undoShot(g);
    EXPECT_EQ(g.shotCount, 3);
    EXPECT_EQ(g.turnCount, 2);
    EXPECT_EQ(g.foulCount, 1);
    for (int n = 0; n < kBallCount; ++n) {
        EXPECT_EQ(std::make_pair(g.Balls[n].x, g.Balls[n].y),
                  std::make_pair(before[n].x, before[n].y));
        EXPECT_EQ(g.Balls[n].onTable, before[n].onTable);
    }
    EXPECT_FALSE(g.controls.mnuRetryEnabled);

    lblMenu_Click(g, 2); // again without a shot: the same table, charged again
    EXPECT_EQ(g.shotCount, 4);
    EXPECT_EQ(g.foulCount, 2);
    EXPECT_EQ(g.Balls[0].x, before[0].x);
}

TEST_F(Back, AfterAFoulRestoresBallInHandAsItWasAndCountsTheFoulTwice) {
    g.shotCount = 1;
    g.ballInHand = true;
    missEverything();
    ASSERT_EQ(g.foulCount, 1);
    g.ballInHand = false;
    undoShot(g);
    EXPECT_TRUE(g.ballInHand);
    EXPECT_EQ(g.foulCount, 2);
    EXPECT_EQ(g.Balls[0].y, 600);
}

TEST_F(Back, AfterTheBreakIsAFreshGame) {
    setTable(g, {{0, 600, 600}, {1, 2000, 300}, {9, 1500, 900}});
    g.shotCount = 1;
    g.turnCount = 1;
    g.foulCount = 1;
    g.gameSeconds = 12;
    undoShot(g);
    EXPECT_EQ(g.shotCount + g.turnCount + g.foulCount + g.gameSeconds, 0);
    EXPECT_TRUE(g.breakPending);
    EXPECT_EQ(getPocketedString(g), "000000000");
}

TEST_F(Back, TheLabelRefusesWhileBallsRollOrBeforeTheBreak) {
    secondShotPotsBallOne();
    setTimerEnabled(g, kTimer1, true);
    lblMenu_Click(g, 2);
    setTimerEnabled(g, kTimer1, false);
    g.breakPending = true;
    lblMenu_Click(g, 2);
    EXPECT_EQ(g.shotCount, 2);
}

} // namespace
