#include "cpu/cpu_think.h"
#include "game/view_coords.h"
#include "support/scripted_random.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

// Thinks at the level with the given draws; gives how many numbers were drawn.
std::size_t thinkWith(GameState& g, int16_t level, std::vector<double> draws) {
    ScriptedRandom random(std::move(draws));
    g.ports.random = &random;
    g.zephLevel = level;
    g.controls.power = 60;
    cpuThink(g);
    g.ports.random = nullptr;
    return random.draws;
}

} // namespace

TEST(CpuThink, AimsOnThePlanOrADisturbedPointAndPutsTheMarkerThere) {
    GameState g = workedTable();
    EXPECT_EQ(thinkWith(g, 1, {0.9}), 1u);
    EXPECT_NEAR(g.aimX, 1722.6042, 0.01);
    EXPECT_NEAR(g.aimY, 636.6762, 0.01);
    EXPECT_EQ(g.controls.power, 100);

    EXPECT_EQ(thinkWith(g, 1, {0.5, 1.0, 0.0}), 3u);
    EXPECT_NEAR(g.aimX, 1722.6042 + 100.0 / 6, 0.01);
    EXPECT_NEAR(g.aimY, 636.6762 - 100.0 / 6, 0.01);
    EXPECT_FLOAT_EQ(g.controls.target.left, tableToPixelX(g.aimX) - 10);
    EXPECT_FLOAT_EQ(g.controls.target.top, tableToPixelY(g.aimY) - 10);
}

TEST(CpuThink, TheMissChanceMustExceedTheDrawAndDoublesOnTheNine) {
    GameState worked = workedTable();
    EXPECT_EQ(thinkWith(worked, 5, {double(0.2f)}), 1u);
    GameState nine = tableWithCueAt(600, 600);
    putBall(nine.Balls, 9, 1800, 700);
    EXPECT_EQ(thinkWith(nine, 6, {0.15, 0.5, 0.5}), 3u);
    EXPECT_EQ(thinkWith(nine, 2, {0.999999, 0.5, 0.5}), 3u); // 1.4: always
}

TEST(CpuThink, WithNothingFoundSaysSoAndShootsHardAtTheTarget) {
    GameState g = shutInTable();
    thinkWith(g, 2, {0.99});
    EXPECT_EQ(g.controls.zephsMessage, "I can do nothing!");
    EXPECT_EQ(g.controls.power, 100);
    EXPECT_EQ(std::make_pair(g.aimX, g.aimY), std::make_pair(2000.0f, 800.0f));
}
