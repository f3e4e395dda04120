// The choice of effect by speed: which file, with which flags, or silence.
#pragma once

#include "game/game_state.h"

namespace morvane {

constexpr int kSoundCutOff = 0x1;  // plays at once, cutting off an effect in progress
constexpr int kSoundNoStop = 0x11; // gives up while an effect is playing

// The five effects, looked for beside the program.
inline constexpr const char* kSoundSoftClick = "vmin.wav";
inline constexpr const char* kSoundMediumClick = "vmid.wav";
inline constexpr const char* kSoundHardClick = "vmax.wav";
inline constexpr const char* kSoundDrop = "drop.wav";
inline constexpr const char* kSoundCushion = "meetwall.wav";

void playContactSound(GameState& g, float speed);
void playPocketSound(GameState& g, float speed);
void playCushionSound(GameState& g, float speed);

} // namespace morvane
