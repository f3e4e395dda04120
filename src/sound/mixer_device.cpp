#include "sound/mixer_device.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <cstdlib>
#include <filesystem>

namespace morvane {

namespace {

constexpr int kEffectChannelCount = 1;

// The default-GM alternatives first, which the installed soundfont packages point at, then
// the soundfonts themselves.
constexpr const char* kSoundFontPlaces[] = {
    "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",
};

void useSoundFont(WarnOnce& warnings) {
    const std::string font = findSoundFont();
    if (font.empty())
        warnings.warn("soundfont", "no General MIDI soundfont found; the music will be silent");
    else
        Mix_SetSoundFonts(font.c_str());
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

MixerDevice::MixerDevice(WarnOnce& warnings, int bufferSamples) {
    // SDL would otherwise take SIGINT and SIGTERM for events that nobody reads, and the game
    // could no longer be ended by the session or by Ctrl+C.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        warnings.warn("device", std::string("no sound: ") + SDL_GetError());
        return;
    }
    audioStarted_ = true;
    useSoundFont(warnings);
    if (Mix_OpenAudio(kMixRate, MIX_DEFAULT_FORMAT, kMixChannels, bufferSamples) != 0) {
        warnings.warn("device", std::string("no sound: ") + Mix_GetError());
        return;
    }
    open_ = true;
    Mix_AllocateChannels(kEffectChannelCount);
}

MixerDevice::~MixerDevice() {
    if (open_)
        Mix_CloseAudio();
    if (audioStarted_)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

} // namespace morvane
