// Whole demo games through the real tick, zeph's turns and the timers, in virtual time.
#include "cpu/pocket_table.h"
#include "game/timers.h"
#include "rules/demo.h"
#include "rules/modes.h"
#include "startup/scheduler.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace morvane;

namespace {

constexpr int64_t kTwoHours = 2 * 3600 * 1000;

void expectSaneTable(const GameState& g) {
    for (int n = 0; n < kBallCount; ++n) {
        const BallType& b = g.Balls[n];
        ASSERT_FALSE(std::isnan(b.x) || std::isnan(b.y) || std::isnan(b.speed)) << "ball " << n;
        if (!b.onTable)
            continue;
        EXPECT_GE(b.x, kCushionLeftX - 0.01f) << "ball " << n;
        EXPECT_LE(b.x, kCushionRightX + 0.01f) << "ball " << n;
        EXPECT_GE(b.y, kCushionBottomY - 0.01f) << "ball " << n;
        EXPECT_LE(b.y, kCushionTopY + 0.01f) << "ball " << n;
    }
    EXPECT_LE(g.foulCount, g.turnCount);
    EXPECT_LE(g.turnCount, g.shotCount);
}

// Plays one demo game from the menu to its end; returns the shots it took.
int playDemoGame(GameState& g) {
    int shots = 0;
    bool rolling = false;
    startDemo(g);
    const bool ended = advanceUntil(g, g.nowMs + kTwoHours, [&] {
        const bool rollingNow = isTimerEnabled(g, kTimer1);
        if (rolling && !rollingNow) {
            ++shots;
            expectSaneTable(g);
        }
        rolling = rollingNow;
        return g.gameMode == kModeMenu;
    });
    EXPECT_TRUE(ended) << "a demo game never ended";
    return shots;
}

TEST(WholeGames, SeededDemoGamesAllEndOnTheMenuWithASaneTableAfterEveryShot) {
    for (uint64_t seed = 1; seed <= 20; ++seed) {
        GameState g;
        SeededRandom random(seed);
        g.ports.random = &random;
        initTimers(g);
        initPocketTable(g);
        g.zephLevel = int16_t(1 + seed % 11);
        backToMenu(g);
        const int shots = playDemoGame(g);
        EXPECT_GT(shots, 0) << "seed " << seed;
        EXPECT_TRUE(g.controls.menuVisible);
        EXPECT_TRUE(g.breakPending) << "a fresh rack stands behind the menu";
        EXPECT_EQ(g.zephProgress, 0) << "the demo never changes the level";
    }
}

} // namespace
