#include "cpu/level.h"

#include <gtest/gtest.h>

#include <vector>

using namespace morvane;

namespace {

constexpr bool kHuman = true;
constexpr bool kZeph = false;

// Plays the matches from the given level with no progress, and gives the level and progress.
std::pair<int, int> afterMatches(int16_t level, const std::vector<bool>& humanWins) {
    GameState g;
    g.zephLevel = level;
    for (bool humanWon : humanWins)
        creditZephMatch(g, humanWon);
    return {g.zephLevel, g.zephProgress};
}

} // namespace

TEST(ZephGrowth, OnlyTwoHumanWinsInARowRaiseTheLevelUpToMaster) {
    EXPECT_EQ(afterMatches(4, {kHuman}), std::make_pair(4, 1));
    EXPECT_EQ(afterMatches(4, {kHuman, kHuman}), std::make_pair(5, 0));
    EXPECT_EQ(afterMatches(4, {kHuman, kHuman, kZeph, kHuman}), std::make_pair(5, 1));
    EXPECT_EQ(afterMatches(1, {kHuman, kZeph, kHuman, kZeph}), std::make_pair(1, 0));
    EXPECT_EQ(afterMatches(10, {kHuman, kHuman, kHuman, kHuman}), std::make_pair(11, 0));
    EXPECT_EQ(afterMatches(11, {kHuman, kHuman, kHuman}), std::make_pair(11, 1));
}

TEST(ZephGrowth, AProgressLeftHighInTheFileRaisesTheLevelAtTheNextHumanWin) {
    GameState g;
    g.zephProgress = 5;
    creditZephMatch(g, kHuman);
    EXPECT_EQ(g.zephLevel, 2);
    EXPECT_EQ(g.zephProgress, 0);
}
