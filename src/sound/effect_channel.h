// The one channel of the effects: a new effect either cuts off the one sounding or, with the
// no-stop flag, gives up while one sounds. Each file is read once and kept.
#pragma once

#include "sound/warn_once.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>

struct Mix_Chunk;

namespace morvane {

class EffectChannel {
  public:
    EffectChannel(std::filesystem::path folder, WarnOnce& warnings);
    // Freeing a chunk or a tune halts it if it sounds; with no device nothing was ever loaded.
    ~EffectChannel() = default;
    EffectChannel(const EffectChannel&) = delete;
    EffectChannel& operator=(const EffectChannel&) = delete;

    void play(const std::string& file, int flags);
    // The file sounding now; empty when the channel is quiet.
    std::string playing() const;

  private:
    struct FreeChunk {
        void operator()(Mix_Chunk* chunk) const;
    };
    Mix_Chunk* chunkFor(const std::string& file);

    std::filesystem::path folder_;
    WarnOnce& warnings_;
    std::map<std::string, std::unique_ptr<Mix_Chunk, FreeChunk>> chunks_; // null: unreadable
    std::string lastPlayed_;
};

} // namespace morvane
