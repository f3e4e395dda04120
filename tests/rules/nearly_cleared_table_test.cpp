// The test-only table that brings a solo game to its last shot.
#include "game/table_queries.h"
#include "rules/nearly_cleared_table.h"
#include "rules_fixture.h"

using namespace morvane;
using namespace morvane::testing;

namespace {

TEST_F(RulesTest, NearlyClearedTableIsMadeOnceInASoloGameAtRestAndTheGamesAimSinksTheNine) {
    setTable(g, {{0, 600, 600}, {3, 1500, 300}, {7, 1900, 900}, {9, 1800, 600}});
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
    g.gameMode = kModeSolo;
    ASSERT_TRUE(wantsNearlyClearedTable(g));

    g.ballInHand = true;
    clearAllButTheNine(g);
    EXPECT_FALSE(wantsNearlyClearedTable(g)) << "done once, until a shot moves the balls";
    EXPECT_EQ(getPocketedString(g), "123456780");
    shootToRest(g.aimX, g.aimY, 100);
    EXPECT_EQ(screen.forms.front(), "frmRecord") << "the nine went down and the game is over";
}

} // namespace
