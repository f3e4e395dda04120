// Moving between the modes: play buttons, labels, the hidden menu, the match set-up form, the
// demo. What the set-up form's OK, spin button and name form do is tested through their widgets.
#include "rules/demo.h"
#include "rules/match.h"
#include "rules/match_setup_form.h"
#include "rules/modes.h"
#include "rules/new_game.h"
#include "rules_fixture.h"

using namespace morvane;
using namespace morvane::testing;

namespace {

class Modes : public RulesTest {
  protected:
    void SetUp() override {
        RulesTest::SetUp();
        backToMenu(g);
        screen.onChangeVsMode = [] {}; // OK as it stands: the mode stays versus
    }
};

// Solo Play and the menu label are clicked through the window in the shell's tests.
TEST_F(Modes, PlayAgainstZephIsAMatchToThreeAndTheChangeOfModeTurnsItIntoASoloGame) {
    g.matchTarget = 7;
    picVSCPU_Click(g, 0);
    EXPECT_EQ(std::tie(g.gameMode, g.matchTarget, g.players[1].name, g.bgmScene),
              std::tuple(kModeVersus, 3, "zeph", 3));
    mnuChangeMode_Click(g);
    EXPECT_EQ(std::tie(g.gameMode, g.controls.mnuStartEnabled), std::tuple(kModeSolo, true));

    backToMenu(g);
    screen.onChangeVsMode = [this] { g.gameMode = kModeMenu; }; // Cancel on the set-up form
    picVSPlay_Click(g, 0);
    EXPECT_EQ(std::tie(g.controls.menuVisible, g.bgmScene), std::tuple(true, 4))
        << "the scene is set whatever the form said";
}

TEST_F(Modes, TheDemoStartsOnTheThirtyFirstIdleSecondAndAClickOnTheTableEndsIt) {
    mnuStart_click(g); // Start from the menu keeps the menu mode, so the count goes on
    EXPECT_FALSE(g.controls.menuVisible);
    for (int second = 1; second <= 30; ++second)
        timDemo_Timer(g);
    EXPECT_EQ(g.gameMode, kModeMenu);
    timDemo_Timer(g);
    EXPECT_EQ(g.gameMode, kModeDemo);
    EXPECT_TRUE(isTimerEnabled(g, kTimCom));

    // A click on the table ends it, even while balls roll.
    setTimerEnabled(g, kTimer1, true);
    picPool_Click(g, 0);
    EXPECT_EQ(g.gameMode, kModeMenu);
    EXPECT_FALSE(isTimerEnabled(g, kTimer1) || isTimerEnabled(g, kTimCom));
    EXPECT_TRUE(g.breakPending);
}

TEST_F(Modes, ADemoGameThatPotsNothingForThirtyShotsInARowIsRackedAnew) {
    startDemo(g);
    g.breakPending = false;
    for (int shot = 1; shot <= 29; ++shot)
        missEverything();
    setTable(g, {{0, 1850, 650}, {1, 2150, 950}, {9, 1200, 300}}); // ball 1 into a corner
    shootToRest(2150, 950);
    ASSERT_FALSE(g.Balls[1].onTable);
    for (int shot = 1; shot <= 29; ++shot)
        missEverything();
    EXPECT_FALSE(g.breakPending);
    missEverything();
    EXPECT_EQ(std::tie(g.breakPending, g.shotCount), std::tuple(true, 0)) << "racked anew";
    EXPECT_TRUE(isTimerEnabled(g, kTimCom)) << "zeph breaks the new rack";
}

TEST(MatchSetupForm, OnlyZephsNameIsLockedAndCancelLeavesNoMatchAgainstZeph) {
    GameState g;
    nameSides(g, "Ann", "zeph");
    EXPECT_FALSE(loadMatchSetup(g).secondNameEditable);
    g.players[1].name = "Zeph";
    EXPECT_TRUE(loadMatchSetup(g).secondNameEditable);

    g.gameMode = kModeVersus;
    g.versusCpu = true;
    g.controls.mnuStartEnabled = false;
    changeVsModeCancel(g);
    EXPECT_EQ(std::tie(g.versusCpu, g.gameMode, g.controls.mnuStartEnabled),
              std::tuple(false, kModeMenu, true));
}

} // namespace
