// What the game makes of the motion engine's contacts: the sound heard, the balls drawn anew or
// the drop drawn, the first ball the cue ball meets and the balls pocketed this shot; then the
// contact goes on to whoever else listens (the headless tool's list of events).
#pragma once

#include "game/game_state.h"

namespace morvane {

class ContactEffects : public ContactObserver {
  public:
    explicit ContactEffects(GameState& g) : g_(g) {}
    void beforeSearch() override;
    void onContact(float timeInFrame, int ball, int partner, int pocket) override;

  private:
    GameState& g_;
};

// One frame of the motion engine over the game's balls, with the game's answers to its contacts.
void playFrame(GameState& g);

} // namespace morvane
