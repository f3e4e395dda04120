#include "cpu/level.h"

#include <gtest/gtest.h>

#include <vector>

using namespace morvane;

TEST(ZephGrowth, OnlyTwoHumanWinsInARowRaiseTheLevelUpToMaster) {
    struct Case {
        int16_t level;
        int16_t progress; // as the file left it
        std::vector<bool> humanWins;
        int16_t levelAfter;
        int16_t progressAfter;
    };
    const Case cases[] = {
        {4, 0, {true}, 4, 1},
        {4, 0, {true, true}, 5, 0},
        {4, 0, {true, true, false, true}, 5, 1},
        {1, 0, {true, false, true, false}, 1, 0},
        {10, 0, {true, true, true, true}, 11, 0},
        {11, 0, {true, true, true}, 11, 1},
        {1, 5, {true}, 2, 0},
    };
    for (const Case& c : cases) {
        GameState g;
        g.zephLevel = c.level;
        g.zephProgress = c.progress;
        for (bool humanWon : c.humanWins)
            creditZephMatch(g, humanWon);
        EXPECT_EQ(g.zephLevel, c.levelAfter) << "from level " << c.level;
        EXPECT_EQ(g.zephProgress, c.progressAfter) << "from level " << c.level;
    }
}
