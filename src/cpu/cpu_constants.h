// The numbers that zeph's judgement is built on.
#pragma once

#include "table/constants.h"
#include "game/zeph_level.h"

#include <cstdint>

namespace morvane {

// The pocket table: entries 1 to 6 are the pockets, 7 to 9 the images behind one cushion.
constexpr int kFirstPocket = 1;
constexpr int kLastPocket = 6;
constexpr int kFirstImage = 7;
constexpr int kLastImage = 9;
constexpr float kTableMiddleX = int(kTableLength) / 2; // the middle pockets stand here

// Images of the far pockets stand this much further out than an exact mirror would put them.
constexpr float kImageLeftX = -2300;
constexpr float kImageRightX = 4700;
constexpr float kImageTopY = 2300;
constexpr float kImageBottomY = -1100;

// A plan before any shot is found: the worst cut and two runs longer than any real road.
constexpr float kNoShotRun = 4800;
constexpr float kNoCushionRoute = 7200;

// A bank shot is looked for only when the best cut is above 30 degrees.
constexpr double kBankSearchCut = 94.247778 / 180;
// A shot off an object ball's image must cut at least 10 degrees and stand in the middle.
constexpr double kCentralShotMinCut = 31.415926 / 180;
constexpr float kCentralMarginX = 300;
constexpr float kCentralMarginY = 220;

// The mouth of a middle pocket, where the cue ball is never sent off a rail.
constexpr float kMiddleMouthLow = kTableLength / 2 - kBallRadius;
constexpr float kMiddleMouthHigh = kTableLength / 2 + kBallRadius;

// A thin hit: a point 98 units from the target's centre, turned 108 degrees from the line of sight.
constexpr double kThinHitTurn = 1.8849555599999999;
constexpr double kThinHitShare = 0.98;

// With ball in hand the cue ball stands two balls behind the target, on the line from the pocket.
constexpr double kPlacementGap = 2 * kBallDiameter;

// Power from the distances: the sum of both runs over the table's length, times 150.
constexpr double kPowerRunScale = 150;

// The aim is disturbed by at most a third of a ball, half of that either way.
constexpr double kMissSpread = kBallDiameter / 3.0;

// Level and growth.
constexpr int16_t kWinsToGrow = 2;
constexpr int16_t kLevelDirectCombination = 7;
constexpr int16_t kLevelObjectBank = 5;
constexpr int16_t kLevelCueBank = 9;
constexpr int16_t kLevelCueBankCombination = 10;
constexpr int16_t kLevelCushionHit = 3;
constexpr int16_t kLevelPowerFromRuns = 3;

// The turn, in ticks of timCom.
constexpr int16_t kTickThink = 5;
constexpr int16_t kTickFadeFrom = 15;
constexpr int16_t kTickShoot = 21;

} // namespace morvane
