// The working record of one decision of zeph, and what every strategy looks at first.
#pragma once

#include "cpu/cpu_constants.h"
#include "game/game_state.h"

#include <string>

namespace morvane {

// The strategy whose shot a plan holds, named for the search that found it.
enum class Strategy {
    None, // nothing found yet
    Direct,
    DirectCombination,
    ObjectBank,
    CueBank,
    CueBankCombination,
    JustHit,
    CushionHit,
};

struct ShotPlan {
    float planX = 0; // the aim point chosen so far
    float planY = 0;
    float cutAngle = kPiSingle; // any real shot cuts less
    float cueRun = kNoShotRun;  // the cue ball's road to the contact
    float ballRun = kNoShotRun; // the object ball's road
    bool found = false;
    Strategy strategy = Strategy::None;
    // The strategy saw another ball on the target's road to the pocket: the second ball of a
    // combination, or for an object-ball bank a road it doubts.
    bool roadHoldsBall = false;
};

// A plan that aims where the aim stands now and has found nothing yet. The strategies look at the
// table and change nothing but the plan; what zeph says of it is worked out once it is chosen.
ShotPlan startPlan(const GameState& g);

// The target ball (the lowest on the table) and the two centres every strategy starts from.
struct ShotScene {
    int16_t t = 0;
    PointType target;
    PointType cue;
};

ShotScene sceneOf(const GameState& g);

// One shot a strategy may take: where to aim, both runs and the cut.
struct ShotCandidate {
    PointType aim;
    float run = 0;
    float ballLength = 0;
    float cut = 0;
};

// The cue ball runs straight to the ghost point and the object ball on to the pocket.
ShotCandidate directCandidate(const ShotScene& scene, const PointType& ghost,
                              const PointType& pocket);
// The cue ball runs to the bank point on a cushion, from there to the ghost point, and the object
// ball on to the pocket. The aim is the bank point.
ShotCandidate bankCandidate(const ShotScene& scene, const PointType& bank, const PointType& ghost,
                            const PointType& pocket);

// The cue ball can run straight to the ghost point, and no object ball but the target covers it.
bool isGhostReachable(const GameState& g, const ShotScene& scene, const PointType& ghost);

// The candidate of this strategy becomes the plan.
void takeCandidate(ShotPlan& plan, const ShotCandidate& candidate, Strategy strategy,
                   bool roadHoldsBall = false);

// A remark of zeph in both languages.
struct Remark {
    const char* japanese;
    const char* english;
};

// zeph says something: the remark shows in the language of the system.
void sayRemark(GameState& g, const Remark& remark);

} // namespace morvane
