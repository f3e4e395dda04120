// The audio device through SDL2_mixer, opened for the run with one effect channel. When there
// is no device the game plays on in silence.
#pragma once

#include "sound/warn_once.h"

namespace morvane {

// Samples a second of the mix, and of the synthesiser that renders the tunes into it. The
// synthesiser's work grows with the rate: at 32 kHz it does about a quarter less than at
// 44.1 kHz. What 32 kHz can't carry, above 16 kHz, lies 46 to 67 dB below each tune, and for
// the clicks it is the very top of their first crack, above what most grown-up ears hear.
// Lower rates would cost the tunes their cymbals (above 11 kHz lies only 33 dB below them), and
// the other costs can't go without being heard: the voices, three quarters of the work, could
// only be fewer by cutting notes still ringing; linear interpolation would dull them; the
// reverb (a tenth of the work) and the chorus carry the sound.
constexpr int kMixRate = 32000;
constexpr int kMixChannels = 2; // stereo out
// Samples a buffer: 16 ms at 32 kHz, short enough that a click follows its contact within the
// game tick.
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
