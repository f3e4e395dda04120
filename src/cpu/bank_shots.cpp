#include "cpu/bank_shots.h"

#include "cpu/bank_geometry.h"
#include "cpu/combinations.h"
#include "cpu/pocket_table.h"
#include "cpu/road_tests.h"
#include "cpu/shot_geometry.h"

namespace morvane {

namespace {

// In English zeph keeps quiet about an object-ball bank, whether the road to the image is free.
constexpr Remark kHopelessBank{"これは無理かな～", "......."};
constexpr Remark kHopefulBank{"的球のバンクだとはいるかな？", "......."};
constexpr Remark kBankShot{"バンクショット！", "Bank Shot."};
constexpr Remark kBankShotExclaimed{"バンクショット！", "Bank Shot!"};
constexpr Remark kBankAndCombination{"バンク＆コンビネーション！", "Bank & Conbination Shot!"};

// A bank point in the mouth of a middle pocket would send the cue ball into it.
bool missesMiddleMouth(const PointType& bank) {
    return bank.x <= kMiddleMouthLow || bank.x >= kMiddleMouthHigh;
}

// Pocket first, cushion second: each free road off a cushion onto a ghost point that cuts strictly
// less than the plan replaces it, and zeph says the remark for that pocket.
void takeBestCueBank(GameState& g, ShotPlan& plan, const PocketGhosts& ghost,
                     const PocketRemarks& remarks) {
    const ShotScene scene = sceneOf(g);
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        for (int16_t cushion = kCushionLeft; cushion <= kCushionBottom; ++cushion) {
            const BankPoint bank = findBankPoint(g, scene.cue, ghost[p], cushion, scene.t);
            const ShotCandidate candidate =
                bankCandidate(scene, bank.point, ghost[p], g.pocketTable[p]);
            if (!bank.blocked && !isSpotBlockedExcept(g, ghost[p].x, ghost[p].y, scene.t) &&
                candidate.cut < plan.cutAngle && missesMiddleMouth(bank.point)) {
                takeCandidate(plan, candidate);
                sayRemark(g, remarks.forPocket(p));
            }
        }
    }
}

} // namespace

void tryObjectBank(GameState& g, ShotPlan& plan) {
    const ShotScene scene = sceneOf(g);
    mirrorPockets(g, getCushionFacing(scene.cue, scene.target));
    PocketRemarks remarks{{}, kHopelessBank, kHopefulBank};
    for (int p = kFirstImage; p <= kLastImage; ++p)
        remarks.isCombination[p] = isCombinationPocket(g, p);
    const PocketGhosts ghost = plainGhosts(g, scene, kFirstImage, kLastImage);
    for (int p = kFirstImage; p <= kLastImage; ++p) {
        const ShotCandidate candidate = directCandidate(scene, ghost[p], g.pocketTable[p]);
        if (isGhostReachable(g, scene, ghost[p]) && candidate.cut < plan.cutAngle &&
            isCentralShot(ghost[p], candidate.cut)) {
            takeCandidate(plan, candidate);
            sayRemark(g, remarks.forPocket(p));
        }
    }
}

void tryCueBank(GameState& g, ShotPlan& plan) {
    PocketRemarks remarks{{}, kBankShot, kBankShot};
    takeBestCueBank(g, plan, pocketGhosts(g, false, remarks), remarks);
}

void tryCueBankCombination(GameState& g, ShotPlan& plan) {
    PocketRemarks remarks{{}, kBankAndCombination, kBankShotExclaimed};
    takeBestCueBank(g, plan, pocketGhosts(g, true, remarks), remarks);
}

} // namespace morvane
