#include "sound/music_synth.h"

#include <fluidsynth.h>

#include <cstdlib>
#include <filesystem>

namespace morvane {

namespace {

constexpr int kStereo = 2;
constexpr double kRingOutSeconds = 2.0; // the reverb's tail, after the last voice has ended

// The default-GM alternatives first, which the installed soundfont packages point at, then
// the soundfonts themselves.
constexpr const char* kSoundFontPlaces[] = {
    "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",
};

// FluidSynth would write its own complaints to the terminal; the game says what matters once.
void quietenFluidSynth() {
    for (int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG})
        fluid_set_log_function(level, nullptr, nullptr);
}

} // namespace

std::string findSoundFont() {
    const char* fromEnvironment = std::getenv("SDL_SOUNDFONTS");
    if (fromEnvironment != nullptr && *fromEnvironment != '\0')
        return fromEnvironment;
    std::error_code ignored;
    for (const char* place : kSoundFontPlaces) {
        if (std::filesystem::exists(place, ignored))
            return place;
    }
    return {};
}

MusicSynth::MusicSynth(int sampleRate) : ringOutFrames_(int(kRingOutSeconds * sampleRate)) {
    quietenFluidSynth();
    settings_ = new_fluid_settings();
    fluid_settings_setnum(settings_, "synth.sample-rate", double(sampleRate));
    fluid_settings_setnum(settings_, "synth.gain", double(kMusicGain));
    fluid_settings_setint(settings_, "synth.polyphony", kMusicPolyphony);
    // The tunes are timed by the samples rendered, not by the clock: the player moves on
    // exactly as far as the mixer has taken.
    fluid_settings_setstr(settings_, "player.timing-source", "sample");
    synth_ = new_fluid_synth(settings_);
}

MusicSynth::~MusicSynth() {
    dropPlayer();
    if (synth_ != nullptr)
        delete_fluid_synth(synth_);
    delete_fluid_settings(settings_);
}

bool MusicSynth::loadSoundFont(const std::string& path) {
    // Nothing renders before this has returned.
    const bool loaded =
        synth_ != nullptr && fluid_synth_sfload(synth_, path.c_str(), 1) != FLUID_FAILED;
    hasSoundFont_ = loaded;
    return loaded;
}

void MusicSynth::start(const std::vector<unsigned char>& midi) {
    if (!hasSoundFont())
        return;
    std::lock_guard<std::mutex> lock(requestMutex_);
    request_ = Request{midi};
    playing_ = true;
}

void MusicSynth::stop() {
    std::lock_guard<std::mutex> lock(requestMutex_);
    request_ = Request{};
    playing_ = false;
}

void MusicSynth::carryOut(const Request& request) {
    dropPlayer();
    if (request.midi.empty())
        return;
    player_ = new_fluid_player(synth_);
    if (player_ == nullptr)
        return;
    if (fluid_player_add_mem(player_, request.midi.data(), request.midi.size()) != FLUID_OK ||
        fluid_player_play(player_) != FLUID_OK)
        dropPlayer();
}

void MusicSynth::dropPlayer() {
    if (player_ == nullptr)
        return;
    delete_fluid_player(player_);
    player_ = nullptr;
    fluid_synth_all_notes_off(synth_, -1);
}

void SDLCALL MusicSynth::mix(void* synth, Uint8* stream, int bytes) {
    auto* self = static_cast<MusicSynth*>(synth);
    self->render(reinterpret_cast<Sint16*>(stream), bytes / int(kStereo * sizeof(Sint16)));
}

void MusicSynth::render(Sint16* frames, int count) {
    // The mixer has already filled the stream with silence. While the soundfont loads,
    // FluidSynth keeps its own lock, and nothing may wait for it here.
    if (!hasSoundFont())
        return;
    std::optional<Request> request;
    {
        std::lock_guard<std::mutex> lock(requestMutex_);
        request.swap(request_);
    }
    if (request)
        carryOut(*request);
    const bool tuneGoesOn =
        player_ != nullptr && fluid_player_get_status(player_) == FLUID_PLAYER_PLAYING;
    if (tuneGoesOn || fluid_synth_get_active_voice_count(synth_) > 0)
        ringingFrames_ = ringOutFrames_;
    if (ringingFrames_ > 0) { // else nothing sounds, and the synthesiser costs nothing
        fluid_synth_write_s16(synth_, count, frames, 0, kStereo, frames, 1, kStereo);
        ringingFrames_ -= count;
    }
    std::lock_guard<std::mutex> lock(requestMutex_);
    if (!request_) // a newer word has its own say
        playing_ = tuneGoesOn;
}

} // namespace morvane
