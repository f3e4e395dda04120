// The effects sound, the clicks rising in strength, and an effect and a tune go through the real
// mixer into a file (the disk driver, at full speed) and come out as sound, the effect at the level
// it was written with.
#include "game/sounds.h"
#include "sound/sdl_sound.h"
#include "sound_setup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <vector>

using namespace morvane;
using namespace morvane::testing;

namespace {

constexpr int kBytesPerFrame = 4; // 16-bit stereo

// The loudest of the samples between two bytes, as a part of full scale.
double peakOf(const Uint8* bytes, size_t from, size_t to) {
    double peak = 0;
    for (size_t i = from; i + 1 < to; i += 2)
        peak = std::max(peak, std::abs(int16_t(bytes[i] | (bytes[i + 1] << 8)) / 32768.0));
    return peak;
}

// The peak of an effect's own file.
double peakOfWav(const char* effect) {
    SDL_AudioSpec format;
    Uint8* buffer = nullptr;
    Uint32 length = 0;
    if (SDL_LoadWAV((runtimeFolder() / effect).c_str(), &format, &buffer, &length) == nullptr)
        return 0;
    const double peak = peakOf(buffer, 0, length);
    SDL_FreeWAV(buffer);
    return peak;
}

// Each tune played whole through the General MIDI soundfont sounds, and leaves the loudest effect
// room below full scale; a hard click before it comes out at the level of its file.
TEST(Rendering, EffectsKeepTheirLevelAndEveryTuneSoundsWithRoomForTheLoudestEffect) {
    const auto output = std::filesystem::temp_directory_path() /
                        ("morvane-mix-" + std::to_string(getpid()) + ".raw");
    const ScopedEnv driver{"SDL_AUDIODRIVER", "disk"}, file{"SDL_DISKAUDIOFILE", output.string()};
    const ScopedEnv delay{"SDL_DISKAUDIODELAY", "0"}; // as fast as the mixer can go
    const auto bytesWritten = [&] {
        std::error_code ignored;
        const auto size = std::filesystem::file_size(output, ignored);
        return ignored ? 0 : size_t(size);
    };
    constexpr double kTuneSeconds = 30.5; // the music timer closes each tune then
    std::vector<double> peaks;
    for (const char* effect :
         {kSoundSoftClick, kSoundMediumClick, kSoundHardClick, kSoundDrop, kSoundCushion})
        peaks.push_back(peakOfWav(effect));
    ASSERT_GT(std::ranges::min(peaks), 0.1) << "every effect sounds";
    EXPECT_TRUE(peaks[0] < peaks[1] && peaks[1] < peaks[2]) << "the clicks rise in strength";
    const double click = peaks[2], loudestEffect = std::ranges::max(peaks);
    std::ostringstream warnings;
    for (const char* tune : {"menu.mid", "record.mid", "game1.mid", "game2.mid", "game3.mid"}) {
        size_t startedAt = 0;
        {
            SdlSound sound(runtimeFolder(), warnings);
            ASSERT_TRUE(sound.hasDevice()) << warnings.str();
            sound.playEffect(kSoundHardClick, kSoundCutOff);
            ASSERT_TRUE(waitForMixer([&] { return sound.effectPlaying().empty(); }));
            sound.sendMusic(std::string("open ") + tune);
            // The mixer runs at full speed: let it have the soundfont and the tune first.
            sound.waitForMusicLoads();
            startedAt = bytesWritten();
            sound.sendMusic(std::string("play ") + tune);
            const auto bytes = size_t(kTuneSeconds * kMixRate) * kBytesPerFrame;
            ASSERT_TRUE(waitForMixer([&] { return bytesWritten() >= startedAt + bytes; }));
        }
        std::ifstream in(output, std::ios::binary);
        const std::vector<Uint8> mix{std::istreambuf_iterator<char>(in), {}};
        EXPECT_NEAR(peakOf(mix.data(), 0, startedAt), click, 0.02 * click) << tune;
        const double music = peakOf(mix.data(), startedAt, mix.size());
        EXPECT_GT(music, 0.2) << tune << " sounds";
        EXPECT_LT(music + loudestEffect, 0.99) << tune << " with the loudest effect clips";
    }
    std::filesystem::remove(output);
    EXPECT_EQ(warnings.str(), "");
}

} // namespace
