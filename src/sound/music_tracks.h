// The tunes, driven by name as the game asks: "open NAME" has the loading thread read the file,
// "play NAME" plays it once from the start (as soon as it is read, if it isn't yet), "close
// NAME" stops it and lets it go. A name that is unknown, unreadable or not open makes the
// command do nothing. No command waits for a file: the window never stalls on the music.
#pragma once

#include "sound/loading_worker.h"
#include "sound/music_synth.h"
#include "sound/warn_once.h"

#include <atomic>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace morvane {

class MusicTracks {
  public:
    // Needs the mixer open at `sampleRate`; `loader` reads the soundfont and the tunes.
    MusicTracks(std::filesystem::path folder, WarnOnce& warnings, LoadingWorker& loader,
                int sampleRate);
    // Leaves the mixer's music stream, then lets the loading thread finish with the tunes.
    ~MusicTracks();
    MusicTracks(const MusicTracks&) = delete;
    MusicTracks& operator=(const MusicTracks&) = delete;

    void command(const std::string& text);
    bool isOpen(const std::string& name) const { return tracks_.count(name) != 0; }
    // The track playing, or asked to play and still being read; empty when the music is silent.
    std::string playing();
    // Whether the synthesiser plays a tune at all, whatever was asked.
    bool isSounding() const { return synth_.isPlaying(); }
    // Tunes held in memory: the open ones, and closed ones the loading thread still reads.
    int tunesInMemory() const { return tunesInMemory_.load(); }

  private:
    struct Tune;
    void open(const std::string& name);
    void play(const std::string& name);
    void close(const std::string& name);
    void read(const std::shared_ptr<Tune>& tune);
    void readSoundFontOnce();

    std::filesystem::path folder_;
    WarnOnce& warnings_;
    LoadingWorker& loader_;
    MusicSynth synth_;
    bool soundFontAsked_ = false;
    std::atomic<int> tunesInMemory_{0};
    std::map<std::string, std::shared_ptr<Tune>> tracks_; // the open tunes; the game's thread only
    std::mutex mutex_; // between the game's thread and the loading thread: the tunes' state
    std::shared_ptr<Tune> wanted_; // the tune last played and not closed since
};

} // namespace morvane
