// The match set-up form: what it opens with, and what Cancel leaves in the game. What OK, the spin
// button and the name form do is tested through their widgets with the window.
#include "rules/match.h"
#include "rules/match_setup_form.h"

#include <gtest/gtest.h>

using namespace morvane;

TEST(MatchSetupForm, OpensWithTrimmedNamesTheLengthWithNoBlankAndOnlyZephLocked) {
    GameState g;
    nameSides(g, "  Ann ", "zeph");
    g.matchTarget = 1;
    const MatchSetupView view = loadMatchSetup(g);
    EXPECT_EQ(view.firstName, "Ann");
    EXPECT_EQ(view.secondName, "zeph");
    EXPECT_FALSE(view.secondNameEditable);
    EXPECT_EQ(view.lengthCaption, "1Wins Match") << "until the spin button moves";
    EXPECT_EQ(view.matchLength, 1);
    g.players[1].name = "Zeph";
    EXPECT_TRUE(loadMatchSetup(g).secondNameEditable);
}

TEST(MatchSetupForm, CancelLeavesNoMatchAgainstZephAndHeadsForTheMenu) {
    GameState g;
    g.gameMode = kModeVersus;
    g.versusCpu = true;
    g.controls.mnuStartEnabled = false;
    changeVsModeCancel(g);
    EXPECT_FALSE(g.versusCpu);
    EXPECT_EQ(g.gameMode, kModeMenu);
    EXPECT_TRUE(g.controls.mnuStartEnabled);
    EXPECT_EQ(g.controls.shotCaption, "SHOT!");
    EXPECT_EQ(g.controls.mnuChangeModeCaption, "独り撞き→対戦(&M)");
}
