// The match set-up form and the name form: what OK, Cancel, the spin button and the closing of the
// form leave in the game.
#include "rules/match.h"
#include "rules/match_setup_form.h"
#include "rules/name_form.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

TEST(MatchSetupForm, OpensWithTrimmedNamesTheLengthWithNoBlankAndZephLocked) {
    GameState g;
    nameSides(g, "  Ann ", "zeph");
    g.matchTarget = 1;
    const MatchSetupView view = loadMatchSetup(g);
    EXPECT_EQ(view.firstName, "Ann");
    EXPECT_EQ(view.secondName, "zeph");
    EXPECT_FALSE(view.secondNameEditable);
    EXPECT_EQ(view.lengthCaption, "1Wins Match") << "until the spin button moves";
    EXPECT_EQ(view.matchLength, 1);

    nameSides(g, "Player1", "Player2");
    EXPECT_TRUE(loadMatchSetup(g).secondNameEditable);
    g.players[1].name = "Zeph";
    EXPECT_TRUE(loadMatchSetup(g).secondNameEditable) << "only zeph itself is locked";
}

TEST(MatchSetupForm, TheSpinButtonSetsTheLengthAndNamesItInTheSingularForOne) {
    GameState g;
    EXPECT_EQ(changeMatchLength(g, 1), "1 Win Match");
    EXPECT_EQ(g.matchTarget, 1);
    EXPECT_EQ(changeMatchLength(g, 15), "15Wins Match");
    EXPECT_EQ(g.matchTarget, 15);
    EXPECT_EQ(matchLengthCaption(3), "3Wins Match");
}

TEST(MatchSetupForm, OkStartsAMatchThatTheFirstPlayerBreaks) {
    GameState g;
    g.gameMode = kModeMenu;
    g.players[0].gamesWon = 2;
    g.players[1].gamesWon = 1;
    g.players[1].hasBreak = true;
    changeVsModeOk(g, "You", "zeph");
    EXPECT_EQ(g.gameMode, kModeVersus);
    EXPECT_EQ(g.players[0].name, "You");
    EXPECT_EQ(g.players[1].name, "zeph");
    EXPECT_TRUE(g.players[0].hasBreak);
    EXPECT_FALSE(g.players[1].hasBreak);
    EXPECT_EQ(g.players[0].gamesWon, 0);
    EXPECT_EQ(g.players[1].gamesWon, 0);
    EXPECT_EQ(g.controls.mnuChangeModeCaption, "対戦→独り撞き(&S)");
    EXPECT_EQ(g.controls.shotCaption, "Your Shot");
    EXPECT_EQ(g.controls.shotFont.name, "Arial");
    EXPECT_EQ(g.controls.shotFont.size, 12);
    EXPECT_TRUE(g.controls.shotFont.bold);

    changeVsModeOk(g, " you ", "Bob");
    EXPECT_EQ(g.controls.shotCaption, "you's Shot") << "lower case is any other name, trimmed";
    EXPECT_EQ(g.players[0].name, " you ") << "the name is kept as typed";
}

TEST(MatchSetupForm, CancelLeavesNoMatchAgainstZephAndHeadsForTheMenu) {
    GameState g;
    g.gameMode = kModeVersus;
    g.versusCpu = true;
    g.controls.mnuStartEnabled = false;
    g.controls.shotCaption = "Your Shot";
    changeVsModeCancel(g);
    EXPECT_FALSE(g.versusCpu);
    EXPECT_EQ(g.gameMode, kModeMenu) << "after the solo controls are back, which set mode 0";
    EXPECT_TRUE(g.controls.mnuStartEnabled);
    EXPECT_EQ(g.controls.shotCaption, "SHOT!");
    EXPECT_EQ(g.controls.shotFont.size, 24);
    EXPECT_EQ(g.controls.mnuChangeModeCaption, "独り撞き→対戦(&M)");
}

TEST(NameForm, GreetsARunOutAsPerfectAndKeepsTwelveCharactersPadded) {
    GameState g;
    g.turnCount = 1;
    EXPECT_EQ(nameFormGreeting(g), "Perfect Game !");
    g.turnCount = 2;
    EXPECT_EQ(nameFormGreeting(g), "Good Game !");

    takeRecordName(g, "Maximilianus II");
    EXPECT_EQ(g.players[0].name, "Maximilianus");
    takeRecordName(g, "Tester");
    EXPECT_EQ(g.players[0].name, "Tester      ");
    takeRecordName(g, "");
    EXPECT_EQ(g.players[0].name, std::string(12, ' ')) << "an empty box gives a blank name";
    takeRecordName(g, "ゼフゼフゼフゼフゼフゼフゼフ");
    EXPECT_EQ(g.players[0].name, "ゼフゼフゼフゼフゼフゼフ") << "characters, not bytes";
}

} // namespace
