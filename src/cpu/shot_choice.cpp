#include "cpu/shot_choice.h"

#include "cpu/bank_shots.h"
#include "cpu/direct_shots.h"
#include "cpu/fallback_shots.h"
#include "cpu/shot_geometry.h"

#include <array>
#include <cmath>

namespace morvane {

namespace {

constexpr std::array<float, 10> kMissChanceByLevel{0.8f, 0.7f, 0.5f,  0.3f,  0.2f,
                                                   0.1f, 0.1f, 0.05f, 0.05f, 0.05f};
constexpr float kMasterMissChance = 0.01f;

// Only a cut above 30 degrees sends the best levels looking off a cushion.
void runBankSearch(const GameState& g, int16_t level, ShotPlan& plan) {
    if (plan.cutAngle <= kBankSearchCut)
        return;
    if (level == kLevelCueBank)
        tryCueBank(g, plan);
    else if (level >= kLevelCueBankCombination)
        tryCueBankCombination(g, plan);
}

} // namespace

float getMissChance(int16_t level) {
    if (level >= 1 && level <= int16_t(kMissChanceByLevel.size()))
        return kMissChanceByLevel[level - 1];
    return kMasterMissChance;
}

int16_t powerForPlan(int16_t level, const ShotPlan& plan) {
    if (level < kLevelPowerFromRuns)
        return kPowerMax;
    const double fromRuns = (double(plan.cueRun) + plan.ballRun) / kTableLength * kPowerRunScale;
    return int16_t(std::floor(limitTo(fromRuns, double(kPowerMin), double(kPowerMax))));
}

ShotPlan choosePlan(const GameState& g, int16_t level) {
    ShotPlan plan = startPlan(g);
    if (level < kLevelDirectCombination)
        tryDirect(g, plan);
    else
        tryDirectCombination(g, plan);
    if (level >= kLevelObjectBank)
        tryObjectBank(g, plan);
    runBankSearch(g, level, plan);
    tryJustHit(g, plan);
    if (level >= kLevelCushionHit)
        tryCushionHit(g, plan);
    return plan;
}

} // namespace morvane
