// The test-only table that brings a solo game to its last shot: what it leaves, and that the shot
// the game aims by itself ends the game.
#include "rules/nearly_cleared_table.h"
#include "rules_fixture.h"
#include "game/table_queries.h"

using namespace morvane;
using namespace morvane::testing;

namespace {

class NearlyClearedTable : public RulesTest {
  protected:
    void SetUp() override {
        RulesTest::SetUp();
        setTable(g, {{0, 600, 600}, {3, 1500, 300}, {7, 1900, 900}, {9, 1800, 600}});
    }
};

TEST_F(NearlyClearedTable, IsWantedOnlyInASoloGameAtRestAfterItsBreak) {
    EXPECT_TRUE(wantsNearlyClearedTable(g));
    g.breakPending = true;
    EXPECT_FALSE(wantsNearlyClearedTable(g));
    g.breakPending = false;
    setTimerEnabled(g, kTimer1, true);
    EXPECT_FALSE(wantsNearlyClearedTable(g)) << "balls rolling";
    setTimerEnabled(g, kTimer1, false);
    g.timers[kTimer1].running = true;
    EXPECT_FALSE(wantsNearlyClearedTable(g)) << "a form of the tick is up";
    g.timers[kTimer1].running = false;
    g.gameMode = kModeVersus;
    EXPECT_FALSE(wantsNearlyClearedTable(g));
}

TEST_F(NearlyClearedTable, LeavesTheNineAndTheCueBallAndTheGamesOwnAimSinksTheNine) {
    g.ballInHand = true;
    clearAllButTheNine(g);
    EXPECT_FALSE(wantsNearlyClearedTable(g)) << "done once, until a shot moves the balls";
    EXPECT_EQ("123456780", getPocketedString(g));
    EXPECT_EQ(9, getLowestBall(g));
    EXPECT_FALSE(g.ballInHand);
    EXPECT_TRUE(g.controls.target.visible);

    const float aimX = g.aimX;
    const float aimY = g.aimY;
    shootToRest(aimX, aimY, 100);
    EXPECT_EQ(screen.forms.front(), "frmRecord") << "the nine went down and the game is over";
    EXPECT_TRUE(g.breakPending) << "a fresh rack follows";
}

} // namespace
