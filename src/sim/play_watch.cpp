#include "sim/play_watch.h"

#include "cpu/cpu_constants.h"
#include "cpu/shot_choice.h"
#include "game/table_queries.h"
#include "game/timers.h"

#include <array>

namespace morvane::sim {

ShotWatch::Change ShotWatch::look(const GameState& g) {
    const bool rolling = isTimerEnabled(g, kTimer1);
    const bool was = rolling_;
    rolling_ = rolling;
    if (rolling && !was) {
        shooter_ = getShooterIndex(g, g.turnCount);
        return Change::ShotStarted;
    }
    return !rolling && was ? Change::ShotEnded : Change::None;
}

const char* strategyName(Strategy strategy) {
    // In the order of Strategy.
    static constexpr std::array<const char*, 8> kNames{
        "none",          "tryDirect",    "tryDirectCombination",
        "tryObjectBank", "tryCueBank",   "tryCueBankCombination",
        "tryJustHit",    "tryCushionHit"};
    return kNames[size_t(strategy)];
}

bool playsCombination(const ShotPlan& plan) {
    return plan.roadHoldsBall && (plan.strategy == Strategy::DirectCombination ||
                                  plan.strategy == Strategy::CueBankCombination);
}

void StrategyTally::look(const GameState& g) {
    const int16_t tick = g.cpuTickCounter;
    const bool decided = lastTick_ <= kTickThink && tick > kTickThink;
    lastTick_ = tick;
    if (!decided || g.breakPending)
        return;
    const ShotPlan plan = choosePlan(g, g.zephLevel);
    ++counts[strategyName(plan.strategy)];
    if (playsCombination(plan))
        ++combinations;
}

} // namespace morvane::sim
