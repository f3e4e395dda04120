// The numbers of the table, the balls and the physics, each with the value the game is built on.
#pragma once

#include <cstdint>

namespace morvane {

// Pi as the game uses it: most routines take 3.1415926, a few take the float nearest to pi.
constexpr double kPi = 3.1415926;
constexpr float kPiSingle = 3.1415925f;
constexpr double kBreakSpreadPi = 3.1415; // the break's spread is worked with this value

// Table and balls, in table units.
constexpr float kTableLength = 2400;
constexpr float kTableWidth = 1200;
constexpr float kBallDiameter = 100;
constexpr float kBallRadius = 50;
constexpr float kCushionLeftX = 50;
constexpr float kCushionRightX = 2350;
constexpr float kCushionTopY = 1150;
constexpr float kCushionBottomY = 50;

// Contact partners of the motion engine.
constexpr int16_t kCushionLeft = 101;
constexpr int16_t kCushionRight = 102;
constexpr int16_t kCushionTop = 103;
constexpr int16_t kCushionBottom = 104;
constexpr int16_t kNoPartner = 1000;

constexpr int kBallCount = 10; // the cue ball 0 and the object balls 1 to 9
constexpr int16_t kCueBall = 0;
constexpr int16_t kNineBall = 9;

// Spots.
constexpr float kHeadSpotX = 600;
constexpr float kHeadSpotY = 600;
constexpr float kFootSpotX = 1800;
constexpr float kFootSpotY = 600;

// Speeds and time.
constexpr float kFullPower = 5600;
constexpr double kBreakPowerFactor = 1.2;
constexpr double kFrameTime = 0.05;
constexpr float kFastSlowBoundary = 1680;
constexpr double kFastDeceleration = 1866.6666666666667;
constexpr double kSlowDeceleration = 746.6666666666667;
constexpr float kNoContactTime = 100;
constexpr float kContactDistance = 100;
constexpr double kFollowShare = 1680.0 / 5600.0; // follow is 0.3 of the speed at a full hit point
constexpr double kSideThrow = 0.3;
constexpr float kBreakArrivalX = 1700;
// A frame answers at most this many contacts; the rest of its time passes without contacts.
constexpr int kMaxPassesPerFrame = 1000;

// Pockets: stretches of the cushion lines, ends included.
constexpr float kCornerPocketReach = 102; // from the corner of the cushion lines to 102
constexpr float kMiddlePocketX = 1200;
constexpr float kMiddlePocketHalfWidth = 50;

// The break's scatter.
constexpr double kBreakThetaOffset = 0.01;
constexpr double kBreakSpreadPerTheta = 0.08;
constexpr double kBreakSpreadDegrees = 0.5;
constexpr double kBreakRackShare = 0.85;  // of the cue ball's speed, fed into the rack
constexpr double kBreakSlowShare = 0.05;  // ball 1 of the cue ball's, ball 9 of the rack's
constexpr double kBreakRowTwoShare = 0.5; // the second row gets half of its side's share
constexpr double kBreakDrawShare = 0.5;   // the cue ball keeps half its draw
constexpr double kBreakSideDivisor = 8;   // and an eighth of its side spin, across
constexpr double kBreakObjectSideDivisor = 2;

// Power bar.
constexpr int16_t kPowerMin = 35;
constexpr int16_t kPowerMax = 100;

} // namespace morvane
