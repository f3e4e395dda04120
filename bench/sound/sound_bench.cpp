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
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <random>

namespace {

using morvane::SdlSound;
using Clock = std::chrono::steady_clock;

// The effects and tunes: MORVANE_SOUND_DIR if set (to weigh another build's files), else the
// ones generated beside the programs.
const char* const kFolder =
    std::getenv("MORVANE_SOUND_DIR") ? std::getenv("MORVANE_SOUND_DIR") : MORVANE_RUNTIME_DIR;

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

double peakResidentMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024.0;
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

// What the music tick that starts a track waits for: opening, playing and closing a tune. The
// files are read on the loading thread; the soundfont once a run.
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

// Ten seconds of the mixer at a device's pace, playing the menu tune (first argument 1) or
// nothing (0), with a device buffer of the second argument's samples; the share of one processor
// it took.
void BM_ProcessorWhileMusicPlays(benchmark::State& state) {
    constexpr Uint32 kListenMs = 10000;
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    ::setenv("SDL_DISKAUDIOFILE", "/dev/null", 1);
    SdlSound sound(kFolder, std::cerr, int(state.range(1)));
    if (state.range(0) != 0) {
        sound.sendMusic("open menu.mid");
        sound.sendMusic("play menu.mid");
    }
    sound.waitForMusicLoads(); // the soundfont, read once a run, is not the music's cost
    double share = 0;
    for (auto _ : state) {
        const double before = processorSeconds();
        SDL_Delay(kListenMs);
        share = (processorSeconds() - before) / (kListenMs / 1000.0);
    }
    state.counters["cpu_percent"] = 100.0 * share;
    state.counters["peak_resident_mb"] = peakResidentMegabytes();
}
BENCHMARK(BM_ProcessorWhileMusicPlays)
    ->ArgsProduct({{0, 1}, {512, 1024}})
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

// The mixed output as it leaves the mixer: how many frames went by and how many samples of
// each channel sat at full scale, where the sum of music and effect was cut off.
struct MixWatch {
    std::mutex mutex;
    std::condition_variable advanced;
    int64_t frames = 0;
    int64_t clipped[2] = {0, 0};
    int peak = 0;
};
MixWatch watch;

void SDLCALL countClipped(void*, Uint8* stream, int length) {
    const auto* samples = reinterpret_cast<const Sint16*>(stream);
    const int count = length / int(sizeof(Sint16));
    std::lock_guard<std::mutex> lock(watch.mutex);
    for (int i = 0; i < count; ++i) {
        if (samples[i] == 32767 || samples[i] == -32768)
            ++watch.clipped[i % 2];
        watch.peak = std::max(watch.peak, std::abs(int(samples[i])));
    }
    watch.frames += count / 2;
    watch.advanced.notify_all();
}

void waitForMixedSeconds(double seconds) {
    const auto frames = int64_t(seconds * morvane::kMixRate);
    std::unique_lock<std::mutex> lock(watch.mutex);
    watch.advanced.wait(lock, [&] { return watch.frames >= frames; });
}

// Five minutes of play into the disk driver as fast as the mixer goes: the tune of the scene
// (argument: 0 the menu, 2 a solo game) started again every 30.5 s as the music timer does, and
// every few seconds a shot's effects at their loudest, a hard click, a cushion and a pocket,
// at moments that fall anywhere in the tune. Counts the samples each channel held at full scale.
void BM_ClippedSamplesOverFiveMinutes(benchmark::State& state) {
    constexpr double kPlaySeconds = 300;
    constexpr double kTuneSeconds = 30.5;
    const char* tunes[] = {"menu.mid", "record.mid", "game1.mid", "game2.mid", "game3.mid"};
    const std::string tune = tunes[state.range(0)];
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    ::setenv("SDL_DISKAUDIOFILE", "/dev/null", 1);
    ::setenv("SDL_DISKAUDIODELAY", "0", 1);
    for (auto _ : state) {
        watch.frames = 0;
        watch.clipped[0] = watch.clipped[1] = 0;
        watch.peak = 0;
        SdlSound sound(kFolder);
        sound.waitForMusicLoads();
        Mix_SetPostMix(countClipped, nullptr);
        std::mt19937 random(7);
        std::uniform_real_distribution<double> gap(1.0, 4.0);
        const char* loudest[] = {morvane::kSoundHardClick, morvane::kSoundCushion,
                                 morvane::kSoundDrop};
        double nextTune = 0;
        for (double t = 0; t < kPlaySeconds; t += gap(random)) {
            if (t >= nextTune) {
                waitForMixedSeconds(nextTune);
                sound.sendMusic("close " + tune);
                sound.sendMusic("open " + tune);
                sound.sendMusic("play " + tune);
                // At full speed the mixer would run on while the tune is read.
                sound.waitForMusicLoads();
                nextTune += kTuneSeconds;
            }
            for (const char* effect : loudest) {
                waitForMixedSeconds(t);
                sound.playEffect(effect, morvane::kSoundCutOff);
                t += 0.12;
            }
        }
        waitForMixedSeconds(kPlaySeconds);
        Mix_SetPostMix(nullptr, nullptr);
    }
    state.counters["clipped_left"] = double(watch.clipped[0]);
    state.counters["clipped_right"] = double(watch.clipped[1]);
    state.counters["peak"] = watch.peak / 32768.0;
    state.counters["mixed_seconds"] = double(watch.frames) / morvane::kMixRate;
}
BENCHMARK(BM_ClippedSamplesOverFiveMinutes)
    ->DenseRange(0, 4)
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

} // namespace

BENCHMARK_MAIN();
