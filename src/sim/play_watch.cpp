#include "sim/play_watch.h"

#include "cpu/cpu_constants.h"
#include "game/table_queries.h"
#include "game/timers.h"

#include <array>

namespace morvane::sim {

namespace {

struct RemarkOfStrategy {
    const char* remark;
    const char* strategy;
    bool combination;
};

constexpr std::array<RemarkOfStrategy, 10> kRemarks{{
    {"Simple is best.", "tryDirect", false},
    {"Easy for me.", "tryDirectCombination", false},
    {"Combination Shot!", "tryDirectCombination", true},
    {".......", "tryObjectBank", false},
    {"Bank Shot.", "tryCueBank", false},
    {"Bank Shot!", "tryCueBankCombination", false},
    {"Bank & Conbination Shot!", "tryCueBankCombination", true},
    {"Difficalt !", "tryJustHit", false},
    {"I can't Poket.", "tryCushionHit", false},
    {"I can do nothing!", "none", false},
}};

const RemarkOfStrategy* findRemark(const std::string& remark) {
    for (const RemarkOfStrategy& r : kRemarks) {
        if (remark == r.remark)
            return &r;
    }
    return nullptr;
}

} // namespace

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

std::string strategyOfRemark(const std::string& remark) {
    const RemarkOfStrategy* found = findRemark(remark);
    return found ? found->strategy : "";
}

void StrategyTally::look(const GameState& g) {
    const int16_t tick = g.cpuTickCounter;
    const bool decided = lastTick_ <= kTickThink && tick > kTickThink;
    lastTick_ = tick;
    if (!decided || g.breakPending)
        return;
    const RemarkOfStrategy* found = findRemark(g.controls.zephsMessage);
    ++counts[found ? found->strategy : "unknown: " + g.controls.zephsMessage];
    if (found && found->combination)
        ++combinations;
}

} // namespace morvane::sim
