// The end of a game in each mode, through the tick.
#include "game/table_queries.h"
#include "rules/demo.h"
#include "rules/modes.h"
#include "rules/nearly_cleared_table.h"
#include "rules_fixture.h"

using namespace morvane;
using namespace morvane::testing;

namespace {

class GameOver : public RulesTest {
  protected:
    // The nine alone with the cue ball below it, straight into the top middle pocket.
    void sinkTheNine() {
        g.breakPending = false;
        setTable(g, {{0, 1200, 800}, {9, 1200, 1000}});
        shootToRest(1200, 1000, 60);
    }
};

TEST_F(GameOver, ASoloGameOfTenTurnsEntersTheTableUnderTheNameGivenAndAFreshGameIsRacked) {
    screen.onInputBox = [this] { g.players[0].name = "Tester"; };
    g.turnCount = 9;
    sinkTheNine();
    EXPECT_EQ(screen.forms, (std::vector<std::string>{"frmRecord", "frmInputBox"}));
    EXPECT_EQ(std::tie(g.controls.scoreVisible, g.soloRecords[1].Turn, g.soloRecords[1].Name),
              std::tuple(true, 10, "Tester" + std::string(14, ' ')));
    EXPECT_TRUE(g.breakPending);
}

TEST_F(GameOver, AMatchOfOneGameEndsAndTheNextMatchStartsWithPlayerOneToBreak) {
    matchAgainst("Bob", false, 1);
    g.players[0].name = "Ann";
    g.turnCount = 1; // Bob's turn
    sinkTheNine();
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Bob is Winner!"});
    EXPECT_EQ(std::tie(g.players[0].hasBreak, g.players[1].hasBreak, g.players[1].gamesWon),
              std::tuple(true, false, 0));
    EXPECT_EQ(g.controls.shotCaption, "Ann's Shot");
    EXPECT_EQ(g.zephLevel, 1) << "two people leave zeph's level alone";
}

TEST_F(GameOver, AGameWonByZephMidMatchLetsZephBreakTheNext) {
    matchAgainst("zeph", true, 2);
    g.turnCount = 1; // zeph's turn
    sinkTheNine();
    EXPECT_EQ(screen.messages, std::vector<std::string>{"zeph is Winner!"});
    EXPECT_EQ(std::tie(g.players[1].gamesWon, g.players[1].hasBreak), std::tuple(1, true));
    EXPECT_TRUE(isTimerEnabled(g, kTimCom));
    EXPECT_TRUE(g.controls.shotEnabled) << "the controls stay on through zeph's break";
}

TEST_F(GameOver, TheDemoReturnsToTheMenuWithNoMessage) {
    matchAgainst("zeph", false, 1);
    g.gameMode = kModeDemo;
    sinkTheNine();
    EXPECT_TRUE(screen.messages.empty() && screen.forms.empty());
    EXPECT_EQ(std::tie(g.gameMode, g.controls.menuVisible), std::tuple(kModeMenu, true));
    EXPECT_FALSE(isTimerEnabled(g, kTimCom));
}

// The test-only table that brings a solo game to its last shot.
TEST_F(GameOver, TheNearlyClearedTableIsMadeOnceAndTheGamesAimSinksTheNine) {
    setTable(g, {{0, 600, 600}, {3, 1500, 300}, {7, 1900, 900}, {9, 1800, 600}});
    ASSERT_TRUE(wantsNearlyClearedTable(g));

    g.ballInHand = true;
    clearAllButTheNine(g);
    EXPECT_FALSE(wantsNearlyClearedTable(g)) << "done once, until a shot moves the balls";
    EXPECT_EQ(getPocketedString(g), "123456780");
    shootToRest(g.aimX, g.aimY, 100);
    EXPECT_EQ(screen.forms.front(), "frmRecord") << "the nine went down and the game is over";
}

} // namespace
