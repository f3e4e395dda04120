// One run of the game without a window, as every command of the tool starts it: the game state,
// the headless screen, a seeded random source, the machine's calendar for the records' dates, and
// the start-up that matters to play (timers, pockets, zeph's level and both record tables from the
// game's folder), ending on the menu. Time is virtual: the timers fire as fast as they come.
#pragma once

#include "game/game_state.h"
#include "sim/headless_screen.h"
#include "startup/local_clock.h"

#include <cstdint>

namespace morvane::sim {

class HeadlessSession {
  public:
    explicit HeadlessSession(uint64_t seed, FormAnswers answers = {});
    HeadlessSession(const HeadlessSession&) = delete;
    HeadlessSession& operator=(const HeadlessSession&) = delete;

    GameState g;
    HeadlessScreen screen;

    // Fires the timers of the next due time. False, with nothing fired, when no timer is on or
    // the next tick would come after limitMs.
    bool step(int64_t limitMs);

  private:
    SeededRandom random_;
    LocalClock clock_;
};

} // namespace morvane::sim
