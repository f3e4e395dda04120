// Whole shots through the game tick: what the judging of each does to the game.
#include "game/table_queries.h"
#include "rules/shot_judging.h"
#include "rules_fixture.h"

using namespace morvane;
using namespace morvane::testing;

namespace {

class ShotOutcome_ : public RulesTest {};

TEST_F(ShotOutcome_, APotOnALegalShotKeepsTheTurnAndAShotThatPotsNothingEndsIt) {
    setTable(g, {{0, 1800, 600}, {1, 2200, 1000}, {9, 1000, 300}});
    shootToRest(2200, 1000, 35);
    EXPECT_EQ(std::tie(g.Balls[1].onTable, g.turnCount, g.controls.mnuRetryEnabled),
              std::tuple(false, 0, true));
    EXPECT_TRUE(screen.messages.empty());

    setTable(g, {{0, 600, 600}, {1, 1200, 600}, {9, 1000, 1000}});
    shootToRest(1200, 600, 35);
    EXPECT_EQ(std::tie(g.turnCount, g.foulCount, g.ballInHand), std::tuple(1, 0, false));
}

TEST_F(ShotOutcome_, TouchingNothingIsAMissWithBallInHandWhereTheCueBallStopped) {
    missEverything();
    EXPECT_EQ(screen.messages, std::vector<std::string>{"You missed !"});
    EXPECT_EQ(std::tie(g.foulCount, g.ballInHand, g.Balls[0].x), std::tuple(1, true, 600));
    EXPECT_NE(g.Balls[0].y, 600);
}

TEST_F(ShotOutcome_, TheNineOnAFoulComesBackToTheFootSpot) {
    setTable(g, {{0, 1200, 800}, {1, 300, 300}, {9, 1200, 1000}});
    shootToRest(1200, 1000, 60);
    EXPECT_EQ(std::tie(g.Balls[9].onTable, g.Balls[9].x, g.Balls[9].y),
              std::tuple(true, 1800, 600));
}

TEST_F(ShotOutcome_, AFoulInAMatchNamesTheShooterAndBackIsNotOffered) {
    matchAgainst("Bob", false);
    g.turnCount = 1;
    missEverything();
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Bob missed!"});
    EXPECT_EQ(std::tie(g.controls.shotCaption, g.controls.mnuRetryEnabled),
              std::tuple("Your Shot", false));
}

// Puts back the balls that fell, in this order, on a table holding the others; gives the table.
GameState respotted(const std::vector<BallPlace>& standing, const std::vector<int16_t>& fallen) {
    GameState g;
    setTable(g, standing);
    for (std::size_t k = 0; k < fallen.size(); ++k)
        g.pocketedThisShot[k] = fallen[k];
    g.pocketedCount = int16_t(fallen.size());
    respotBalls(g);
    return g;
}

TEST(Respot, ObjectBallsComeBackAlongTheFootLineAndTheCueBallAboutTheHeadSpot) {
    const GameState free = respotted({{0, 600, 600}}, {3, 1, 2});
    EXPECT_EQ(std::tie(free.Balls[3].x, free.Balls[1].x, free.Balls[2].x),
              std::tuple(1800, 1900, 2000));

    std::vector<BallPlace> line = {{0, 600, 600}};
    for (int n = 1; n <= 5; ++n)
        line.push_back({n, 1700.0f + 100 * float(n), 600});
    EXPECT_EQ(respotted(line, {9}).Balls[9].x, 2300) << "the line's last place";
    line.push_back({6, 2300, 600});
    EXPECT_EQ(respotted(line, {9}).Balls[9].x, 1700) << "the line full";

    // The cue ball goes to the head spot, else the nearest free place above, then below it.
    std::vector<BallPlace> taken;
    for (const float y : {600.0f, 700.0f, 500.0f, 800.0f}) {
        EXPECT_EQ(respotted(taken, {0}).Balls[0].y, y);
        taken.push_back({int(taken.size()) + 5, 600, y});
    }
}

// The cue ball in a pocket is judged first, then the first ball hit, then the nine.
TEST(Judging, CueBallInAPocketThenAMissThenTheNine) {
    // Whether the cue ball and the nine still stand, the first ball hit (the target is 1), and
    // the outcome.
    using Case = std::tuple<bool, bool, int16_t, ShotOutcome>;
    const Case cases[] = {
        {false, false, 0, ShotOutcome::CueBallFoul},
        {true, false, 0, ShotOutcome::MissFoul},
        {true, false, 1, ShotOutcome::GameOver},
        {true, true, 1, ShotOutcome::Legal},
    };
    for (const auto& [cueOn, nineOn, firstHit, outcome] : cases) {
        GameState g;
        setTable(g, {{1, 900, 900}});
        g.Balls[0].onTable = cueOn;
        g.Balls[9].onTable = nineOn;
        g.firstHitBall = firstHit;
        g.targetBall = 1;
        EXPECT_EQ(judgeShot(g), outcome) << cueOn << nineOn << firstHit;
    }
}

} // namespace
