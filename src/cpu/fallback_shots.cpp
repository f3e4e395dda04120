#include "cpu/fallback_shots.h"

#include "cpu/bank_geometry.h"
#include "cpu/road_tests.h"
#include "table/geometry.h"

#include <array>
#include <cmath>

namespace morvane {

namespace {

constexpr int kProbeCount = 3;

// The target's centre, then a point 98 from it turned to one side of the line of sight, then to
// the other.
std::array<PointType, kProbeCount + 1> thinHitProbes(const ShotScene& scene) {
    const double a = getAngle(scene.cue, scene.target);
    const double reach = kBallDiameter * kThinHitShare;
    std::array<PointType, kProbeCount + 1> probe{};
    probe[1] = scene.target;
    probe[2] = {float(scene.target.x + std::cos(a + kThinHitTurn) * reach),
                float(scene.target.y + std::sin(a + kThinHitTurn) * reach)};
    probe[3] = {float(scene.target.x + std::cos(a - kThinHitTurn) * reach),
                float(scene.target.y + std::sin(a - kThinHitTurn) * reach)};
    return probe;
}

bool isInMiddleMouth(const PointType& bank) {
    return kMiddleMouthLow <= bank.x && bank.x <= kMiddleMouthHigh;
}

} // namespace

void tryJustHit(const GameState& g, ShotPlan& plan) {
    if (plan.found)
        return;
    const ShotScene scene = sceneOf(g);
    const auto probe = thinHitProbes(scene);
    // Probe i is measured against pocket i: that only orders the probes, and the pocket's
    // distance goes into the power.
    for (int i = 1; i <= kProbeCount; ++i) {
        const ShotCandidate candidate = directCandidate(scene, probe[i], g.pocketTable[i]);
        if (!isPathBlocked(g, scene.cue, probe[i]) && candidate.cut < plan.cutAngle)
            takeCandidate(plan, candidate, Strategy::JustHit);
    }
}

void tryCushionHit(const GameState& g, ShotPlan& plan) {
    if (plan.found)
        return;
    const ShotScene scene = sceneOf(g);
    float shortest = kNoCushionRoute;
    for (int16_t cushion = kCushionLeft; cushion <= kCushionBottom; ++cushion) {
        const BankPoint bank = findBankPoint(g, scene.cue, scene.target, cushion, scene.t);
        if (bank.blocked || isInMiddleMouth(bank.point))
            continue;
        // The runs are written before the comparison, so they keep the last cushion that came
        // this far, chosen or not; the leg from the rail to the target counts twice.
        const float secondLeg = getDistance(bank.point, scene.target);
        plan.cueRun = float(double(secondLeg) + getDistance(scene.cue, bank.point));
        plan.ballRun = secondLeg;
        const double total = double(plan.cueRun) + plan.ballRun;
        if (total < shortest) {
            plan.planX = bank.point.x;
            plan.planY = bank.point.y;
            plan.found = true;
            plan.strategy = Strategy::CushionHit;
            plan.roadHoldsBall = false;
            shortest = float(total);
        }
    }
}

} // namespace morvane
