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
// less than the plan replaces it, and zeph says the remark for that pocket.
template <typename RemarkForPocket>
void takeBestCueBank(GameState& g, ShotPlan& plan, const ShotScene& scene,
                     const PocketGhosts& ghost, RemarkForPocket sayForPocket) {
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        for (int16_t cushion = kCushionLeft; cushion <= kCushionBottom; ++cushion) {
            const BankPoint bank = findBankPoint(g, scene.cue, ghost[p], cushion, scene.t);
            const ShotCandidate candidate =
                bankCandidate(scene, bank.point, ghost[p], g.pocketTable[p]);
            if (!bank.blocked && !isSpotBlockedExcept(g, ghost[p].x, ghost[p].y, scene.t) &&
                candidate.cut < plan.cutAngle && missesMiddleMouth(bank.point)) {
                takeCandidate(plan, candidate);
                sayForPocket(p);
            }
        }
    }
}

} // namespace

void tryObjectBank(GameState& g, ShotPlan& plan) {
    const ShotScene scene = sceneOf(g);
    mirrorPockets(g, getCushionFacing(scene.cue, scene.target));
    PocketFlags isCombination{};
    for (int p = kFirstImage; p <= kLastImage; ++p)
        isCombination[p] = isCombinationPocket(g, p);
    const PocketGhosts ghost = plainGhosts(g, scene, kFirstImage, kLastImage);
    for (int p = kFirstImage; p <= kLastImage; ++p) {
        const ShotCandidate candidate = directCandidate(scene, ghost[p], g.pocketTable[p]);
        if (isGhostReachable(g, scene, ghost[p]) && candidate.cut < plan.cutAngle &&
            isCentralShot(ghost[p], candidate.cut)) {
            takeCandidate(plan, candidate);
            if (isCombination[p])
                sayRemark(g, "これは無理かな～", ".......");
            else
                sayRemark(g, "的球のバンクだとはいるかな？", ".......");
        }
    }
}

void tryCueBank(GameState& g, ShotPlan& plan) {
    const ShotScene scene = sceneOf(g);
    const PocketGhosts ghost = plainGhosts(g, scene, kFirstPocket, kLastPocket);
    takeBestCueBank(g, plan, scene, ghost,
                    [&g](int) { sayRemark(g, "バンクショット！", "Bank Shot."); });
}

void tryCueBankCombination(GameState& g, ShotPlan& plan) {
    const ShotScene scene = sceneOf(g);
    PocketGhosts ghost{};
    PocketFlags isCombination{};
    findCombinationGhosts(g, ghost, isCombination);
    takeBestCueBank(g, plan, scene, ghost, [&g, &isCombination](int p) {
        if (isCombination[p])
            sayRemark(g, "バンク＆コンビネーション！", "Bank & Conbination Shot!");
        else
            sayRemark(g, "バンクショット！", "Bank Shot!");
    });
}

} // namespace morvane
