#include "cpu/cpu_think.h"
#include "scripted_random.h"
#include "table/view_coords.h"
#include "table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::cputest;

namespace {

constexpr float kWorkedGhostX = 1722.6042f;
constexpr float kWorkedGhostY = 636.6762f;

GameState workedTableAt(int16_t level) {
  GameState g = workedTable();
  g.zephLevel = level;
  g.controls.power = 60;
  return g;
}

void expectMarkerOnAim(const GameState &g) {
  EXPECT_FLOAT_EQ(g.controls.target.left, tableToPixelX(g.aimX) - 10);
  EXPECT_FLOAT_EQ(g.controls.target.top, tableToPixelY(g.aimY) - 10);
}

} // namespace

TEST(CpuThink, AimsOnThePlanWhenTheDrawIsAboveTheMissChance) {
  GameState g = workedTableAt(1);
  ScriptedRandom random({0.9});
  g.ports.random = &random;
  cpuThink(g);
  EXPECT_NEAR(g.aimX, kWorkedGhostX, 0.01);
  EXPECT_NEAR(g.aimY, kWorkedGhostY, 0.01);
  EXPECT_EQ(random.draws, 1u);
  EXPECT_EQ(g.controls.power, 100);
  EXPECT_EQ(g.controls.zephsMessage, "Simple is best.");
  expectMarkerOnAim(g);
}

TEST(CpuThink, ADisturbedAimMovesAtMostASixthOfABallEachWay) {
  GameState g = workedTableAt(1);
  ScriptedRandom random({0.5, 1.0, 0.0});
  g.ports.random = &random;
  cpuThink(g);
  EXPECT_EQ(random.draws, 3u);
  EXPECT_NEAR(g.aimX, kWorkedGhostX + 100.0 / 6, 0.01);
  EXPECT_NEAR(g.aimY, kWorkedGhostY - 100.0 / 6, 0.01);
  expectMarkerOnAim(g);
}

TEST(CpuThink, TheMissChanceMustExceedTheDrawAndDoublesOnTheNine) {
  GameState level5 = workedTableAt(5);
  ScriptedRandom equal({double(0.2f)});
  level5.ports.random = &equal;
  cpuThink(level5);
  EXPECT_EQ(equal.draws, 1u);

  GameState onEight = tableWithCueAt(600, 600);
  putBall(onEight, 8, 1800, 700);
  onEight.zephLevel = 6;
  ScriptedRandom between({0.15});
  onEight.ports.random = &between;
  cpuThink(onEight);
  EXPECT_EQ(between.draws, 1u);

  GameState onNine = tableWithCueAt(600, 600);
  putBall(onNine, 9, 1800, 700);
  onNine.zephLevel = 6;
  ScriptedRandom sameDraw({0.15, 0.5, 0.5});
  onNine.ports.random = &sameDraw;
  cpuThink(onNine);
  EXPECT_EQ(sameDraw.draws, 3u);

  onNine.zephLevel = 2; // 1.4 on the nine: always disturbed
  ScriptedRandom highest({0.999999, 0.5, 0.5});
  onNine.ports.random = &highest;
  cpuThink(onNine);
  EXPECT_EQ(highest.draws, 3u);
}

TEST(CpuThink, SetsThePowerFromTheRunsAtLevelThreeAndUp) {
  // A straight shot up into pocket 2: 500 for the cue ball and 250 for the
  // ball, 46.9 -> 46.
  auto table = [](int16_t level) {
    GameState g = tableWithCueAt(1200, 300);
    putBall(g, 1, 1200, 900);
    g.zephLevel = level;
    return g;
  };
  ScriptedRandom random({0.99, 0.99});
  GameState three = table(3);
  three.ports.random = &random;
  cpuThink(three);
  EXPECT_EQ(three.controls.power, 46);
  GameState two = table(2);
  two.controls.power = 60;
  two.ports.random = &random;
  cpuThink(two);
  EXPECT_EQ(two.controls.power, 100);
}

TEST(CpuThink, WithNothingFoundSaysSoAndShootsHardAtTheTarget) {
  GameState g = shutInTable();
  g.zephLevel = 2;
  g.controls.power = 60;
  ScriptedRandom random({0.99});
  g.ports.random = &random;
  cpuThink(g);
  EXPECT_EQ(g.controls.zephsMessage, "I can do nothing!");
  EXPECT_EQ(g.controls.power, 100);
  EXPECT_EQ(g.aimX, 2000);
  EXPECT_EQ(g.aimY, 800);

  g.isJapanese = true;
  g.ports.random = nullptr;
  cpuThink(g);
  EXPECT_EQ(g.controls.zephsMessage, "打つ手がないよ～");
}
