#include "cpu/level.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

using namespace morvane;

// Each case: the level and progress the file left, the matches ('h' a human win, 'z' zeph's),
// and the level and progress after them.
TEST(ZephGrowth, OnlyTwoHumanWinsInARowRaiseTheLevelUpToMaster) {
    const std::tuple<int, int, std::string, int, int> cases[] = {
        {4, 0, "h", 4, 1},      {4, 0, "hh", 5, 0},    {4, 0, "hhzh", 5, 1}, {1, 0, "hzhz", 1, 0},
        {10, 0, "hhhh", 11, 0}, {11, 0, "hhh", 11, 1}, {1, 5, "h", 2, 0},
    };
    for (const auto& [level, progress, matches, levelAfter, progressAfter] : cases) {
        GameState g;
        g.zephLevel = int16_t(level);
        g.zephProgress = int16_t(progress);
        for (char winner : matches)
            creditZephMatch(g, winner == 'h');
        EXPECT_EQ(std::tie(g.zephLevel, g.zephProgress), std::tuple(levelAfter, progressAfter))
            << matches << " from level " << level;
    }
}
