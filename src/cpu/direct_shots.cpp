#include "cpu/direct_shots.h"

#include "cpu/combinations.h"

namespace morvane {

namespace {

constexpr Remark kSimpleIsBest{"素直が一番。", "Simple is best."};
constexpr Remark kCombinationShot{"コンビネーションショット！", "Combination Shot!"};
constexpr Remark kEasyForMe{"簡単、簡単♪", "Easy for me."};

// Goes through pockets 1 to 6 in order; each reachable ghost point that cuts strictly less than
// the plan replaces it, and zeph says the remark for that pocket.
void takeBestPocket(GameState& g, ShotPlan& plan, const PocketGhosts& ghost,
                    const PocketRemarks& remarks) {
    const ShotScene scene = sceneOf(g);
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        const ShotCandidate candidate = directCandidate(scene, ghost[p], g.pocketTable[p]);
        if (isGhostReachable(g, scene, ghost[p]) && candidate.cut < plan.cutAngle) {
            takeCandidate(plan, candidate);
            sayRemark(g, remarks.forPocket(p));
        }
    }
}

} // namespace

void tryDirect(GameState& g, ShotPlan& plan) {
    PocketRemarks remarks{{}, kSimpleIsBest, kSimpleIsBest};
    takeBestPocket(g, plan, pocketGhosts(g, false, remarks), remarks);
}

void tryDirectCombination(GameState& g, ShotPlan& plan) {
    PocketRemarks remarks{{}, kCombinationShot, kEasyForMe};
    takeBestPocket(g, plan, pocketGhosts(g, true, remarks), remarks);
}

} // namespace morvane
