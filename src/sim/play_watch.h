// Watching a game from outside between timer ticks, without touching it: the shots as they start
// and end, and which of zeph's strategies gave the plan of each decision.
#pragma once

#include "game/game_state.h"

#include <map>
#include <string>

namespace morvane::sim {

// A shot starts when Timer1 comes on and ends when the tick that finds all balls at rest turns it
// off. No step of the timers holds both the end of one shot and the start of the next.
class ShotWatch {
  public:
    enum class Change { None, ShotStarted, ShotEnded };

    Change look(const GameState& g);
    // Index in players of who played the shot under way, or the last one.
    int16_t shooter() const { return shooter_; }

  private:
    bool rolling_ = false;
    int16_t shooter_ = -1;
};

// The strategy whose plan zeph shoots with, told by the English remark that the plan left: every
// strategy that improves the plan speaks, each with remarks of its own, so the last to speak gave
// the plan. "none" when nothing was found; "" for a remark no strategy makes.
std::string strategyOfRemark(const std::string& remark);

// Counts the strategies of every decision, read just after the decision tick of zeph's turn.
class StrategyTally {
  public:
    void look(const GameState& g);

    std::map<std::string, int> counts;
    int combinations = 0; // plans that send one object ball onto the target

  private:
    int16_t lastTick_ = 0;
};

} // namespace morvane::sim
