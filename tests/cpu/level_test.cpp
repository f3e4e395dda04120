#include "cpu/level.h"

#include <gtest/gtest.h>

#include <vector>

using namespace morvane;

namespace {

constexpr bool kHuman = true;
constexpr bool kZeph = false;

void playMatches(GameState& g, const std::vector<bool>& humanWins) {
    for (bool humanWon : humanWins)
        creditZephMatch(g, humanWon);
}

} // namespace

TEST(ZephGrowth, TwoHumanWinsInARowRaiseTheLevelOnce) {
    GameState g;
    g.zephLevel = 4;
    creditZephMatch(g, kHuman);
    EXPECT_EQ(g.zephLevel, 4);
    EXPECT_EQ(g.zephProgress, 1);
    creditZephMatch(g, kHuman);
    EXPECT_EQ(g.zephLevel, 5);
    EXPECT_EQ(g.zephProgress, 0);

    playMatches(g, {kZeph, kHuman});
    EXPECT_EQ(g.zephLevel, 5);
    EXPECT_EQ(g.zephProgress, 1);
}

TEST(ZephGrowth, AlternatingWinnersNeverRaiseIt) {
    GameState g;
    playMatches(g, {kHuman, kZeph, kHuman, kZeph, kHuman, kZeph});
    EXPECT_EQ(g.zephLevel, 1);
    EXPECT_EQ(g.zephProgress, 0);
}

TEST(ZephGrowth, StopsAtMasterAndKeepsCounting) {
    GameState g;
    g.zephLevel = 10;
    playMatches(g, {kHuman, kHuman, kHuman, kHuman});
    EXPECT_EQ(g.zephLevel, 11);
    EXPECT_EQ(g.zephProgress, 0);
    creditZephMatch(g, kHuman);
    EXPECT_EQ(g.zephProgress, 1);
}

TEST(ZephGrowth, AProgressLeftHighInTheFileRaisesTheLevelAtTheNextHumanWin) {
    GameState g;
    g.zephProgress = 5;
    creditZephMatch(g, kHuman);
    EXPECT_EQ(g.zephLevel, 2);
    EXPECT_EQ(g.zephProgress, 0);
}
