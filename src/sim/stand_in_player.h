// zeph's logic at a level of its own plays the person's side: whenever the controls wait for the
// person, it runs zeph's own turn with zeph's level set to that level for the turn, and gives zeph
// its level back once the shot is away, before any game or match can end.
#pragma once

#include "game/game_state.h"

namespace morvane::sim {

class StandInPlayer {
  public:
    explicit StandInPlayer(int16_t level) : level_(level) {}
    // Called between timer ticks.
    void look(GameState& g);

  private:
    int16_t level_;
    int16_t zephsOwnLevel_ = 0;
    bool onTurn_ = false;
};

// The game waits for the person: nothing rolls, zeph isn't playing, and the shooter is the person,
// in solo play always, in a match players(0).
bool isWaitingForPerson(const GameState& g);

} // namespace morvane::sim
