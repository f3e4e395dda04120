#include "cpu/direct_shots.h"

#include "cpu/combinations.h"

namespace morvane {

namespace {

// Goes through pockets 1 to 6 in order; each reachable ghost point that cuts strictly less than
// the plan replaces it.
void takeBestPocket(const GameState& g, ShotPlan& plan, const PocketGhosts& ghost,
                    const PocketFlags& isCombination, Strategy strategy) {
    const ShotScene scene = sceneOf(g);
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        const ShotCandidate candidate = directCandidate(scene, ghost[p], g.pocketTable[p]);
        if (isGhostReachable(g, scene, ghost[p]) && candidate.cut < plan.cutAngle)
            takeCandidate(plan, candidate, strategy, isCombination[p]);
    }
}

} // namespace

void tryDirect(const GameState& g, ShotPlan& plan) {
    PocketFlags isCombination{};
    takeBestPocket(g, plan, pocketGhosts(g, false, isCombination), isCombination, Strategy::Direct);
}

void tryDirectCombination(const GameState& g, ShotPlan& plan) {
    PocketFlags isCombination{};
    takeBestPocket(g, plan, pocketGhosts(g, true, isCombination), isCombination,
                   Strategy::DirectCombination);
}

} // namespace morvane
