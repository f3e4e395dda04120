#include "cpu/bank_shots.h"

#include "cpu/bank_geometry.h"
#include "cpu/combinations.h"
#include "cpu/pocket_table.h"
#include "cpu/road_tests.h"
#include "cpu/shot_geometry.h"

namespace morvane {

namespace {

// A bank point in the mouth of a middle pocket would send the cue ball into it.
bool missesMiddleMouth(const PointType& bank) {
    return bank.x <= kMiddleMouthLow || bank.x >= kMiddleMouthHigh;
}

// Pocket first, cushion second: each free road off a cushion onto a ghost point that cuts strictly
// less than the plan replaces it.
void takeBestCueBank(const GameState& g, ShotPlan& plan, const PocketGhosts& ghost,
                     const PocketFlags& isCombination, Strategy strategy) {
    const ShotScene scene = sceneOf(g);
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        for (int16_t cushion = kCushionLeft; cushion <= kCushionBottom; ++cushion) {
            const BankPoint bank = findBankPoint(g, scene.cue, ghost[p], cushion, scene.t);
            const ShotCandidate candidate =
                bankCandidate(scene, bank.point, ghost[p], g.pocketTable[p]);
            if (!bank.blocked && !isSpotBlockedExcept(g, ghost[p].x, ghost[p].y, scene.t) &&
                candidate.cut < plan.cutAngle && missesMiddleMouth(bank.point))
                takeCandidate(plan, candidate, strategy, isCombination[p]);
        }
    }
}

} // namespace

void tryObjectBank(const GameState& g, ShotPlan& plan) {
    const ShotScene scene = sceneOf(g);
    PocketTable pockets = g.pocketTable;
    mirrorPockets(pockets, getCushionFacing(scene.cue, scene.target));
    const PocketGhosts ghost = plainGhosts(pockets, scene, kFirstImage, kLastImage);
    for (int p = kFirstImage; p <= kLastImage; ++p) {
        const ShotCandidate candidate = directCandidate(scene, ghost[p], pockets[p]);
        if (isGhostReachable(g, scene, ghost[p]) && candidate.cut < plan.cutAngle &&
            isCentralShot(ghost[p], candidate.cut))
            takeCandidate(plan, candidate, Strategy::ObjectBank,
                          isCombinationPocket(g, pockets[p]));
    }
}

void tryCueBank(const GameState& g, ShotPlan& plan) {
    PocketFlags isCombination{};
    takeBestCueBank(g, plan, pocketGhosts(g, false, isCombination), isCombination,
                    Strategy::CueBank);
}

void tryCueBankCombination(const GameState& g, ShotPlan& plan) {
    PocketFlags isCombination{};
    takeBestCueBank(g, plan, pocketGhosts(g, true, isCombination), isCombination,
                    Strategy::CueBankCombination);
}

} // namespace morvane
