// Watching a game from outside between timer ticks, without touching it: the shots as they start
// and end, and which of zeph's strategies gave the plan of each decision.
#pragma once

#include "cpu/shot_plan.h"
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

// The strategy by the name of its search ("tryDirect", ...), or "none" when nothing was found.
const char* strategyName(Strategy strategy);
// The plan sends one object ball onto the target.
bool playsCombination(const ShotPlan& plan);

// Counts the strategies of every decision, read just after the decision tick of zeph's turn. zeph's
// plan is a function of the table alone, and the table stands still while he aims, so the plan is
// asked for again on the table he decided on.
class StrategyTally {
  public:
    void look(const GameState& g);

    std::map<std::string, int> counts;
    int combinations = 0; // plans that send one object ball onto the target

  private:
    int16_t lastTick_ = 0;
};

} // namespace morvane::sim
