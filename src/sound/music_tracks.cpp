#include "sound/music_tracks.h"

#include "sound/tune_file.h"

#include <SDL_mixer.h>

namespace morvane {

struct MusicTracks::Tune {
    Tune(std::string tuneName, std::atomic<int>& count) : name(std::move(tuneName)), held(count) {
        ++held;
    }
    ~Tune() { --held; }
    Tune(const Tune&) = delete;
    Tune& operator=(const Tune&) = delete;

    const std::string name;
    std::atomic<int>& held;
    // Written by the loading thread, under the tracks' mutex.
    bool read = false;
    TuneFile file;
};

MusicTracks::MusicTracks(std::filesystem::path folder, WarnOnce& warnings, LoadingWorker& loader,
                         int sampleRate)
    : folder_(std::move(folder)), warnings_(warnings), loader_(loader), synth_(sampleRate) {
    Mix_HookMusic(MusicSynth::mix, &synth_);
}

// With the first tune opened, not before: with the music switched off the soundfont is never
// read and takes no memory. The loading thread reads it ahead of that first tune.
void MusicTracks::readSoundFontOnce() {
    if (soundFontAsked_)
        return;
    soundFontAsked_ = true;
    const std::string font = findSoundFont();
    if (font.empty()) {
        warnings_.warn("soundfont", "no General MIDI soundfont found; the music will be silent");
        return;
    }
    loader_.post([this, font] {
        if (!synth_.loadSoundFont(font))
            warnings_.warn("soundfont",
                           "can't read the soundfont " + font + "; the music will be silent");
    });
}

MusicTracks::~MusicTracks() {
    Mix_HookMusic(nullptr, nullptr); // returns once the mixer no longer renders through us
    loader_.waitUntilIdle();
}

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
    readSoundFontOnce();
    auto tune = std::make_shared<Tune>(name, tunesInMemory_);
    tracks_.emplace(name, tune);
    loader_.post([this, tune] { read(tune); });
}

// On the loading thread. A tune closed meanwhile is still read, so that a broken file is
// reported however quickly it was closed, and is then let go.
void MusicTracks::read(const std::shared_ptr<Tune>& tune) {
    TuneFile file = readTuneFile(folder_ / tune->name);
    if (!file.problem.empty())
        warnings_.warn(tune->name,
                       "can't play " + (folder_ / tune->name).string() + ": " + file.problem);
    std::lock_guard<std::mutex> lock(mutex_);
    tune->file = std::move(file);
    tune->read = true;
    if (wanted_ == tune && tune->file.problem.empty())
        synth_.start(tune->file.bytes);
}

void MusicTracks::play(const std::string& name) {
    const auto found = tracks_.find(name);
    if (found == tracks_.end())
        return;
    std::lock_guard<std::mutex> lock(mutex_);
    wanted_ = found->second;
    if (wanted_->read && wanted_->file.problem.empty())
        synth_.start(wanted_->file.bytes);
}

void MusicTracks::close(const std::string& name) {
    const auto found = tracks_.find(name);
    if (found == tracks_.end())
        return;
    std::lock_guard<std::mutex> lock(mutex_);
    if (wanted_ == found->second) {
        wanted_.reset();
        synth_.stop();
    }
    tracks_.erase(found);
}

std::string MusicTracks::playing() {
    std::lock_guard<std::mutex> lock(mutex_);
    if (wanted_ == nullptr)
        return {};
    const bool stillReading = !wanted_->read;
    return stillReading || synth_.isPlaying() ? wanted_->name : std::string();
}

} // namespace morvane
