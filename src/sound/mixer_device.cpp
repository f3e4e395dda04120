#include "sound/mixer_device.h"

#include <SDL.h>
#include <SDL_mixer.h>

namespace morvane {

namespace {

constexpr int kEffectChannelCount = 1;

} // namespace

MixerDevice::MixerDevice(WarnOnce& warnings, int bufferSamples) {
    // SDL would otherwise take SIGINT and SIGTERM for events that nobody reads, and the game
    // could no longer be ended by the session or by Ctrl+C.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        warnings.warn("device", std::string("no sound: ") + SDL_GetError());
        return;
    }
    audioStarted_ = true;
    if (Mix_OpenAudio(kMixRate, MIX_DEFAULT_FORMAT, kMixChannels, bufferSamples) != 0) {
        warnings.warn("device", std::string("no sound: ") + Mix_GetError());
        return;
    }
    open_ = true;
    Mix_AllocateChannels(kEffectChannelCount);
    Uint16 format = 0;
    int channels = 0;
    Mix_QuerySpec(&rate_, &format, &channels);
}

MixerDevice::~MixerDevice() {
    if (open_)
        Mix_CloseAudio();
    if (audioStarted_)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

} // namespace morvane
