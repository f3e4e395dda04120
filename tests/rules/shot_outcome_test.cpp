// Whole shots through the game tick: what the judging of each does to the game.
#include "game/table_queries.h"
#include "rules/shot_judging.h"
#include "rules_fixture.h"

using namespace morvane;
using namespace morvane::testing;

namespace {

class ShotOutcome_ : public RulesTest {};

TEST_F(ShotOutcome_, APotOnALegalShotKeepsTheTurn) {
    setTable(g, {{0, 1800, 600}, {1, 2200, 1000}, {9, 1000, 300}});
    shootToRest(2200, 1000, 35);
    EXPECT_FALSE(g.Balls[1].onTable);
    EXPECT_EQ(g.pocketedCount, 1);
    EXPECT_EQ(g.turnCount, 0);
    EXPECT_EQ(g.foulCount, 0);
    EXPECT_EQ(g.shotCount, 1);
    EXPECT_FALSE(g.ballInHand);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(g.controls.shotEnabled);
    EXPECT_TRUE(g.controls.mnuRetryEnabled);
}

TEST_F(ShotOutcome_, ALegalShotThatPotsNothingEndsTheTurnWithoutAFoul) {
    setTable(g, {{0, 600, 600}, {1, 1200, 600}, {9, 1000, 1000}});
    shootToRest(1200, 600, 35);
    EXPECT_EQ(g.firstHitBall, 1);
    EXPECT_EQ(g.turnCount, 1);
    EXPECT_EQ(g.foulCount, 0);
}

TEST_F(ShotOutcome_, TouchingNothingIsAMissWithBallInHandWhereTheCueBallStopped) {
    setTable(g, {{0, 600, 600}, {1, 2000, 300}, {9, 1500, 900}});
    shootToRest(600, 1100, 50);
    ASSERT_EQ(screen.messages.size(), 1u);
    EXPECT_EQ(screen.messages[0], "You missed !");
    EXPECT_EQ(g.foulCount, 1);
    EXPECT_EQ(g.turnCount, 1);
    EXPECT_TRUE(g.ballInHand);
    EXPECT_TRUE(g.controls.qBall.visible);
    EXPECT_EQ(g.Balls[0].x, 600);
    EXPECT_NE(g.Balls[0].y, 600);
}

TEST_F(ShotOutcome_, TheNineOnAFoulComesBackToTheFootSpot) {
    setTable(g, {{0, 1200, 800}, {1, 300, 300}, {9, 1200, 1000}});
    shootToRest(1200, 1000, 60);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"You missed !"});
    EXPECT_TRUE(g.Balls[9].onTable);
    EXPECT_EQ(g.Balls[9].x, 1800);
    EXPECT_EQ(g.Balls[9].y, 600);
    EXPECT_EQ(g.foulCount, 1);
}

TEST_F(ShotOutcome_, ASecondPlayerNamedInTheFoulMessageOfAMatch) {
    g.gameMode = kModeVersus;
    g.versusCpu = false;
    g.players[0] = {"Ann", true, 0};
    g.players[1] = {"Bob", false, 0};
    g.turnCount = 1;
    setTable(g, {{0, 600, 600}, {1, 2000, 300}, {9, 1500, 900}});
    shootToRest(600, 1100, 50);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Bob missed!"});
    EXPECT_EQ(g.controls.shotCaption, "Ann's Shot");
}

TEST_F(ShotOutcome_, InTheDemoAFoulShowsNoMessageAndZephShootsNext) {
    g.gameMode = kModeDemo;
    g.players[0] = {"You", true, 0};
    g.players[1] = {"zeph", false, 0};
    setTable(g, {{0, 600, 600}, {1, 2000, 300}, {9, 1500, 900}});
    shootToRest(600, 1100, 50);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(isTimerEnabled(g, kTimCom));
    EXPECT_FALSE(g.controls.shotEnabled);
}

TEST(Respot, BallsComeBackInTheOrderOfFallingOnAFreeFootLine) {
    GameState g;
    setTable(g, {{0, 600, 600}});
    g.pocketedThisShot = {3, 1, 2};
    g.pocketedCount = 3;
    respotBalls(g);
    EXPECT_EQ(g.Balls[3].x, 1800);
    EXPECT_EQ(g.Balls[1].x, 1900);
    EXPECT_EQ(g.Balls[2].x, 2000);
    for (int n : {1, 2, 3}) {
        EXPECT_TRUE(g.Balls[n].onTable);
        EXPECT_EQ(g.Balls[n].y, 600);
        EXPECT_EQ(g.Balls[n].prevX, g.Balls[n].x);
    }
}

TEST(Respot, ABallOnTheFootSpotSendsTheFirstOneFurtherAndAFullLineSendsItTowardTheHead) {
    GameState g;
    setTable(g, {{0, 600, 600}, {1, 1800, 600}});
    g.pocketedThisShot = {4};
    g.pocketedCount = 1;
    respotBalls(g);
    EXPECT_EQ(g.Balls[4].x, 1900);

    setTable(g, {{0, 600, 600},
                 {1, 1800, 600},
                 {2, 1900, 600},
                 {3, 2000, 600},
                 {4, 2100, 600},
                 {5, 2200, 600},
                 {6, 2300, 600}});
    g.pocketedThisShot = {9};
    respotBalls(g);
    EXPECT_EQ(g.Balls[9].x, 1700);
}

TEST(Respot, TheCueBallGoesToTheHeadSpotElseTheNearestFreePlaceAboveThenBelowIt) {
    struct Case {
        std::vector<BallPlace> taken;
        float y;
    };
    const Case cases[] = {
        {{{5, 1200, 900}}, 600},
        {{{5, 600, 600}}, 700},
        {{{5, 600, 600}, {6, 600, 700}}, 500},
        {{{5, 600, 600}, {6, 600, 700}, {7, 600, 500}}, 800},
    };
    for (const Case& c : cases) {
        GameState g;
        setTable(g, c.taken);
        g.pocketedThisShot = {0};
        g.pocketedCount = 1;
        respotBalls(g);
        EXPECT_EQ(g.Balls[0].x, 600);
        EXPECT_EQ(g.Balls[0].y, c.y);
        EXPECT_TRUE(g.Balls[0].onTable);
    }
}

// The cue ball in a pocket is judged first, then the first ball hit, then the nine.
TEST(Judging, CueBallInAPocketThenAMissThenTheNine) {
    struct Case {
        bool cueOn;
        bool nineOn;
        int16_t firstHit;
        ShotOutcome outcome;
    };
    const Case cases[] = {
        {false, true, 1, ShotOutcome::CueBallFoul}, {false, false, 0, ShotOutcome::CueBallFoul},
        {true, true, 0, ShotOutcome::MissFoul},     {true, false, 0, ShotOutcome::MissFoul},
        {true, false, 1, ShotOutcome::GameOver},    {true, true, 1, ShotOutcome::Legal},
    };
    for (const Case& c : cases) {
        GameState g;
        setTable(g, {{1, 900, 900}});
        g.Balls[0].onTable = c.cueOn;
        g.Balls[9].onTable = c.nineOn;
        g.firstHitBall = c.firstHit;
        g.targetBall = 1;
        EXPECT_EQ(judgeShot(g), c.outcome) << c.cueOn << c.nineOn << c.firstHit;
    }
}

} // namespace
