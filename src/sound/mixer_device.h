// The audio device through SDL2_mixer, opened for the run with one effect channel. When there
// is no device the game plays on in silence.
#pragma once

#include "sound/warn_once.h"

namespace morvane {

constexpr int kMixRate = 44100;
constexpr int kMixChannels = 2; // stereo out
// Samples a buffer: about 12 ms at 44.1 kHz, short enough that a click follows its contact.
constexpr int kMixBufferSamples = 512;

class MixerDevice {
  public:
    MixerDevice(WarnOnce& warnings, int bufferSamples);
    ~MixerDevice();
    MixerDevice(const MixerDevice&) = delete;
    MixerDevice& operator=(const MixerDevice&) = delete;

    bool isOpen() const { return open_; }
    // The samples a second the device took, which the music is rendered at.
    int rate() const { return rate_; }

  private:
    bool audioStarted_ = false;
    bool open_ = false;
    int rate_ = kMixRate;
};

} // namespace morvane
