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
    EXPECT_EQ(std::tie(g.shotCount, g.turnCount, g.foulCount), std::tuple(3, 2, 1));
    for (int n = 0; n < kBallCount; ++n)
        EXPECT_EQ(std::tie(g.Balls[n].x, g.Balls[n].y, g.Balls[n].onTable),
                  std::tie(before[n].x, before[n].y, before[n].onTable));
    EXPECT_FALSE(g.controls.mnuRetryEnabled);

    lblMenu_Click(g, 2); // again without a shot: the same table, charged again
    EXPECT_EQ(std::tie(g.shotCount, g.foulCount), std::tuple(4, 2));
    EXPECT_EQ(g.Balls[0].x, before[0].x);
}

TEST_F(Back, AfterTheBreakIsAFreshGame) {
    setTable(g, {{0, 600, 600}, {1, 2000, 300}, {9, 1500, 900}});
    g.shotCount = g.turnCount = g.foulCount = 1;
    g.gameSeconds = 12;
    undoShot(g);
    EXPECT_EQ(g.shotCount + g.turnCount + g.foulCount + g.gameSeconds, 0);
    EXPECT_TRUE(g.breakPending);
    EXPECT_EQ(getPocketedString(g), "000000000");
}

} // namespace
