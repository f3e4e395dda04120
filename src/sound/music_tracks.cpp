#include "sound/music_tracks.h"

#include <SDL_mixer.h>

namespace morvane {

namespace {

constexpr int kPlayOnce = 1;

} // namespace

void MusicTracks::FreeMusic::operator()(Mix_Music* music) const {
    Mix_FreeMusic(music); // halts it first if it is playing
}

MusicTracks::MusicTracks(std::filesystem::path folder, WarnOnce& warnings)
    : folder_(std::move(folder)), warnings_(warnings) {}

void MusicTracks::command(const std::string& text) {
    const size_t space = text.find(' ');
    if (space == std::string::npos)
        return;
    const std::string verb = text.substr(0, space);
    const std::string name = text.substr(space + 1);
    if (verb == "open")
        open(name);
    else if (verb == "play")
        play(name);
    else if (verb == "close")
        close(name);
}

void MusicTracks::open(const std::string& name) {
    if (isOpen(name))
        return;
    const std::filesystem::path path = folder_ / name;
    Mix_Music* music = Mix_LoadMUS(path.c_str());
    if (music == nullptr) {
        warnings_.warn(name, "can't play " + path.string() + ": " + Mix_GetError());
        return;
    }
    tracks_.emplace(name, music);
}

void MusicTracks::play(const std::string& name) {
    const auto found = tracks_.find(name);
    if (found == tracks_.end())
        return;
    Mix_PlayMusic(found->second.get(), kPlayOnce);
    lastPlayed_ = name;
}

void MusicTracks::close(const std::string& name) {
    const auto found = tracks_.find(name);
    if (found == tracks_.end())
        return;
    if (lastPlayed_ == name) {
        Mix_HaltMusic();
        lastPlayed_.clear();
    }
    tracks_.erase(found);
}

std::string MusicTracks::playing() const {
    return Mix_PlayingMusic() ? lastPlayed_ : std::string();
}

} // namespace morvane
