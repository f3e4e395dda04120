#include "sound/effect_channel.h"

#include "game/sounds.h"

#include <SDL_mixer.h>

namespace morvane {

namespace {

constexpr int kEffectChannel = 0;
constexpr int kPlayOnce = 0; // no repeats
// The bit that, beside the cut-off bit, asks to leave a sounding effect alone.
constexpr int kNoStopBit = kSoundNoStop & ~kSoundCutOff;

} // namespace

void EffectChannel::FreeChunk::operator()(Mix_Chunk* chunk) const {
    Mix_FreeChunk(chunk);
}

EffectChannel::EffectChannel(std::filesystem::path folder, WarnOnce& warnings)
    : folder_(std::move(folder)), warnings_(warnings) {}

Mix_Chunk* EffectChannel::chunkFor(const std::string& file) {
    auto found = chunks_.find(file);
    if (found == chunks_.end()) {
        const std::filesystem::path path = folder_ / file;
        Mix_Chunk* chunk = Mix_LoadWAV(path.c_str());
        if (chunk == nullptr)
            warnings_.warn(file, "can't play " + path.string() + ": " + Mix_GetError());
        found = chunks_.emplace(file, chunk).first;
    }
    return found->second.get();
}

void EffectChannel::play(const std::string& file, int flags) {
    if ((flags & kNoStopBit) != 0 && Mix_Playing(kEffectChannel))
        return;
    Mix_Chunk* chunk = chunkFor(file);
    if (chunk == nullptr)
        return;
    Mix_HaltChannel(kEffectChannel);
    Mix_PlayChannel(kEffectChannel, chunk, kPlayOnce);
    lastPlayed_ = file;
}

std::string EffectChannel::playing() const {
    return Mix_Playing(kEffectChannel) ? lastPlayed_ : std::string();
}

} // namespace morvane
