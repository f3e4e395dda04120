#include "sim/headless_session.h"

#include "cpu/pocket_table.h"
#include "records/score_file.h"
#include "rules/match.h"
#include "rules/modes.h"
#include "startup/scheduler.h"
#include "startup/settings.h"

#include <utility>

namespace morvane::sim {

HeadlessSession::HeadlessSession(uint64_t seed, FormAnswers answers)
    : screen(g, std::move(answers)), random_(seed) {
    g.ports.screen = &screen;
    g.ports.random = &random_;
    g.ports.clock = &clock_;
    initTimers(g);
    initPocketTable(g);
    removeUnfinishedSaves();
    loadZephLevel(g);
    loadSoloRecord(g);
    loadVsCpuRecord(g);
    setTwoPlayerDefaults(g);
    resetToSoloMode(g);
    backToMenu(g);
}

bool HeadlessSession::step(int64_t limitMs) {
    const int64_t due = nextDueTime(g);
    if (due < 0 || due > limitMs)
        return false;
    runDueTimers(g, due);
    return true;
}

} // namespace morvane::sim
