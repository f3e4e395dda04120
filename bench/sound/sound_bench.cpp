// What sound costs the game: how long after the contact its click reaches the mix, how long
// opening a tune holds up the tick that asks for it, and how much processor a tune takes while
// it plays. The dummy and disk drivers keep the pace of a real device.
#include "game/sounds.h"
#include "sound/sdl_sound.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>

namespace {

using morvane::SdlSound;
using Clock = std::chrono::steady_clock;

const char* const kFolder = MORVANE_RUNTIME_DIR;

// The moment the mixer first mixes a sound after it was armed.
std::atomic<bool> armed{false};
std::atomic<int64_t> heardAtNs{0};

void SDLCALL listen(void*, Uint8* stream, int length) {
    if (!armed.load())
        return;
    for (int i = 0; i < length; ++i) {
        if (stream[i] != 0) {
            heardAtNs = Clock::now().time_since_epoch().count();
            armed = false;
            return;
        }
    }
}

template <typename Done> void waitFor(Done done) {
    while (!done())
        SDL_Delay(1);
}

double processorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// From the call that plays a click to the mixer callback that first mixes it, with the buffer
// of the range argument (in samples at 44.1 kHz). A real device then needs up to one more buffer
// to sound it.
void BM_ClickReachesTheMix(benchmark::State& state) {
    ::setenv("SDL_AUDIODRIVER", "dummy", 1);
    SdlSound sound(kFolder, std::cerr, int(state.range(0)));
    Mix_SetPostMix(listen, nullptr);
    double longest = 0;
    for (auto _ : state) {
        waitFor([&] { return sound.effectPlaying().empty(); });
        SDL_Delay(unsigned(std::rand() % 7)); // any phase of the device's period
        armed = true;
        const Clock::time_point start = Clock::now();
        sound.playEffect(morvane::kSoundSoftClick, morvane::kSoundCutOff);
        waitFor([] { return !armed.load(); });
        const double seconds = double(heardAtNs.load() - start.time_since_epoch().count()) / 1e9;
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds);
    }
    Mix_SetPostMix(nullptr, nullptr);
    state.counters["longest_ms"] = 1000.0 * longest;
    state.counters["buffer_ms"] = 1000.0 * double(state.range(0)) / morvane::kMixRate;
}
BENCHMARK(BM_ClickReachesTheMix)
    ->Arg(512)
    ->Arg(1024)
    ->Iterations(60)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// Opening a tune reads it and, for the soundfont synthesiser, the soundfont: the music tick
// that starts a track waits for this.
void BM_OpenAndCloseATune(benchmark::State& state) {
    ::setenv("SDL_AUDIODRIVER", "dummy", 1);
    SdlSound sound(kFolder);
    for (auto _ : state) {
        sound.sendMusic("open menu.mid");
        sound.sendMusic("play menu.mid");
        sound.sendMusic("close menu.mid");
    }
}
BENCHMARK(BM_OpenAndCloseATune)->Iterations(10)->Unit(benchmark::kMillisecond);

// Ten seconds of the mixer at a device's pace, playing the menu tune (argument 1) or nothing
// (argument 0); the share of one processor it took.
void BM_ProcessorWhileMusicPlays(benchmark::State& state) {
    constexpr Uint32 kListenMs = 10000;
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    ::setenv("SDL_DISKAUDIOFILE", "/dev/null", 1);
    SdlSound sound(kFolder);
    if (state.range(0) != 0) {
        sound.sendMusic("open menu.mid");
        sound.sendMusic("play menu.mid");
    }
    double share = 0;
    for (auto _ : state) {
        const double before = processorSeconds();
        SDL_Delay(kListenMs);
        share = (processorSeconds() - before) / (kListenMs / 1000.0);
    }
    state.counters["cpu_percent"] = 100.0 * share;
}
BENCHMARK(BM_ProcessorWhileMusicPlays)->Arg(0)->Arg(1)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

BENCHMARK_MAIN();
