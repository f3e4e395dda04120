#include "cpu/direct_shots.h"

#include "cpu/combinations.h"

namespace morvane {

namespace {

// Goes through pockets 1 to 6 in order; each reachable ghost point that cuts strictly less than
// the plan replaces it, and zeph says the remark for that pocket.
template <typename RemarkForPocket>
void takeBestPocket(GameState& g, ShotPlan& plan, const ShotScene& scene, const PocketGhosts& ghost,
                    RemarkForPocket sayForPocket) {
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        const ShotCandidate candidate = directCandidate(scene, ghost[p], g.pocketTable[p]);
        if (isGhostReachable(g, scene, ghost[p]) && candidate.cut < plan.cutAngle) {
            takeCandidate(plan, candidate);
            sayForPocket(p);
        }
    }
}

} // namespace

void tryDirect(GameState& g, ShotPlan& plan) {
    const ShotScene scene = sceneOf(g);
    const PocketGhosts ghost = plainGhosts(g, scene, kFirstPocket, kLastPocket);
    takeBestPocket(g, plan, scene, ghost,
                   [&g](int) { sayRemark(g, "素直が一番。", "Simple is best."); });
}

void tryDirectCombination(GameState& g, ShotPlan& plan) {
    const ShotScene scene = sceneOf(g);
    PocketGhosts ghost{};
    PocketFlags isCombination{};
    findCombinationGhosts(g, ghost, isCombination);
    takeBestPocket(g, plan, scene, ghost, [&g, &isCombination](int p) {
        if (isCombination[p])
            sayRemark(g, "コンビネーションショット！", "Combination Shot!");
        else
            sayRemark(g, "簡単、簡単♪", "Easy for me.");
    });
}

} // namespace morvane
