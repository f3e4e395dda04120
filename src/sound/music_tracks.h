// The tunes, driven by name as the game asks: "open NAME" reads the file, "play NAME" plays it
// once from the start, "close NAME" stops it and lets it go. A name that is unknown, unreadable
// or not open makes the command do nothing.
#pragma once

#include "sound/warn_once.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>

typedef struct _Mix_Music Mix_Music;

namespace morvane {

class MusicTracks {
  public:
    MusicTracks(std::filesystem::path folder, WarnOnce& warnings);
    // Freeing a chunk or a tune halts it if it sounds; with no device nothing was ever loaded.
    ~MusicTracks() = default;
    MusicTracks(const MusicTracks&) = delete;
    MusicTracks& operator=(const MusicTracks&) = delete;

    void command(const std::string& text);
    bool isOpen(const std::string& name) const { return tracks_.count(name) != 0; }
    // The track sounding now; empty when the music is silent.
    std::string playing() const;

  private:
    struct FreeMusic {
        void operator()(Mix_Music* music) const;
    };
    void open(const std::string& name);
    void play(const std::string& name);
    void close(const std::string& name);

    std::filesystem::path folder_;
    WarnOnce& warnings_;
    std::map<std::string, std::unique_ptr<Mix_Music, FreeMusic>> tracks_;
    std::string lastPlayed_;
};

} // namespace morvane
