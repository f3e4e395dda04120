// The game's sound on SDL2_mixer: effects and tunes read from the files beside the program.
// Without an audio device, or without a file, it stays silent and says so once on stderr.
#pragma once

#include "game/ports.h"
#include "sound/effect_channel.h"
#include "sound/loading_worker.h"
#include "sound/mixer_device.h"
#include "sound/music_tracks.h"
#include "sound/warn_once.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

namespace morvane {

class SdlSound : public SoundPort {
  public:
    // `folder` holds the five effects and the five tunes: the program's own folder.
    explicit SdlSound(const std::filesystem::path& folder, std::ostream& warnings = std::cerr,
                      int bufferSamples = kMixBufferSamples);

    void playEffect(const std::string& file, int flags) override;
    void sendMusic(const std::string& command) override;

    bool hasDevice() const { return device_.isOpen(); }
    std::string effectPlaying() const;
    std::string musicPlaying();
    bool isMusicOpen(const std::string& name) const { return music_ && music_->isOpen(name); }
    int tunesInMemory() const { return music_ ? music_->tunesInMemory() : 0; }
    // Returns once the soundfont and every tune opened so far have been read.
    void waitForMusicLoads() { loader_.waitUntilIdle(); }

  private:
    WarnOnce warnings_;
    MixerDevice device_; // opened before the effects and tunes, closed after them
    LoadingWorker loader_;
    EffectChannel effects_;
    std::optional<MusicTracks> music_; // only with a device
};

} // namespace morvane
