// The choice of effect by speed: which file, with which flags, or silence.
#pragma once

#include "table/game_state.h"

namespace morvane {

constexpr int kSoundCutOff = 0x1;  // plays at once, cutting off an effect in progress
constexpr int kSoundNoStop = 0x11; // gives up while an effect is playing

void playContactSound(GameState& g, float speed);
void playPocketSound(GameState& g, float speed);
void playCushionSound(GameState& g, float speed);

} // namespace morvane
