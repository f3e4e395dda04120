// An effect and a tune go through the real mixer into a file (the disk driver, at full speed)
// and come out as sound, the effect at the level it was written with.
#include "game/sounds.h"
#include "sound/sdl_sound.h"
#include "sound_setup.h"

#include <SDL_mixer.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

using namespace morvane;
using namespace morvane::testing;

namespace {

constexpr int kBytesPerFrame = 4; // 16-bit stereo
constexpr double kFullScale = 32768.0;

// The loudest of the samples, as a part of full scale.
double peakOf(const std::vector<int16_t>& samples) {
    double peak = 0;
    for (int16_t s : samples)
        peak = std::max(peak, std::abs(s / kFullScale));
    return peak;
}

std::vector<int16_t> samplesOf(const std::filesystem::path& file, size_t fromByte = 0) {
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in),
                                  std::istreambuf_iterator<char>()};
    std::vector<int16_t> samples;
    for (size_t i = fromByte; i + 1 < bytes.size(); i += 2)
        samples.push_back(int16_t(uint8_t(bytes[i]) | (uint8_t(bytes[i + 1]) << 8)));
    return samples;
}

// The peak of an effect's own file.
double peakOfWav(const char* effect) {
    SDL_AudioSpec format;
    Uint8* buffer = nullptr;
    Uint32 length = 0;
    if (SDL_LoadWAV((runtimeFolder() / effect).c_str(), &format, &buffer, &length) == nullptr)
        return 0;
    std::vector<int16_t> samples(length / 2);
    std::memcpy(samples.data(), buffer, samples.size() * 2);
    SDL_FreeWAV(buffer);
    return peakOf(samples);
}

class Rendering : public ::testing::Test {
  protected:
    const std::filesystem::path output = std::filesystem::temp_directory_path() /
                                         ("morvane-mix-" + std::to_string(getpid()) + ".raw");
    const ScopedEnv driver{"SDL_AUDIODRIVER", "disk"}, file{"SDL_DISKAUDIOFILE", output.string()};
    const ScopedEnv delay{"SDL_DISKAUDIODELAY", "0"}; // as fast as the mixer can go

    void TearDown() override { std::filesystem::remove(output); }

    void expectSixteenBitStereo() {
        int rate = 0, channels = 0;
        Uint16 format = 0;
        ASSERT_TRUE(Mix_QuerySpec(&rate, &format, &channels));
        EXPECT_EQ(format, AUDIO_S16SYS);
        EXPECT_EQ(channels, 2);
    }
    size_t bytesWritten() const {
        std::error_code ignored;
        const auto size = std::filesystem::file_size(output, ignored);
        return ignored ? 0 : size_t(size);
    }
};

TEST_F(Rendering, AHardClickComesOutAtTheLevelOfItsFile) {
    std::ostringstream warnings;
    {
        SdlSound sound(runtimeFolder(), warnings);
        ASSERT_TRUE(sound.hasDevice()) << warnings.str();
        expectSixteenBitStereo();
        sound.playEffect(kSoundHardClick, kSoundCutOff);
        ASSERT_TRUE(waitForMixer([&] { return sound.effectPlaying().empty(); }));
    }
    const double written = peakOfWav(kSoundHardClick);
    ASSERT_GT(written, 0.1);
    EXPECT_NEAR(peakOf(samplesOf(output)), written, 0.02 * written);
    EXPECT_EQ(warnings.str(), "");
}

// Each tune played whole through the General MIDI soundfont sounds, and leaves the loudest effect
// room below full scale.
TEST_F(Rendering, EveryTuneSoundsAndLeavesTheLoudestEffectRoomBelowFullScale) {
    constexpr double kTuneSeconds = 30.5; // the music timer closes each tune then
    double loudestEffect = 0;
    for (const char* effect :
         {kSoundSoftClick, kSoundMediumClick, kSoundHardClick, kSoundDrop, kSoundCushion})
        loudestEffect = std::max(loudestEffect, peakOfWav(effect));
    ASSERT_GT(loudestEffect, 0.3);
    std::ostringstream warnings;
    for (const char* tune : {"menu.mid", "record.mid", "game1.mid", "game2.mid", "game3.mid"}) {
        size_t startedAt = 0;
        {
            SdlSound sound(runtimeFolder(), warnings);
            ASSERT_TRUE(sound.hasDevice()) << warnings.str();
            expectSixteenBitStereo();
            sound.sendMusic(std::string("open ") + tune);
            // The mixer runs at full speed: let it have the soundfont and the tune first.
            sound.waitForMusicLoads();
            startedAt = bytesWritten();
            sound.sendMusic(std::string("play ") + tune);
            const auto bytes = size_t(kTuneSeconds * kMixRate) * kBytesPerFrame;
            ASSERT_TRUE(waitForMixer([&] { return bytesWritten() >= startedAt + bytes; }));
        }
        const double music = peakOf(samplesOf(output, startedAt));
        EXPECT_GT(music, 0.2) << tune << " sounds";
        EXPECT_LT(music + loudestEffect, 0.99) << tune << " with the loudest effect clips";
    }
    EXPECT_EQ(warnings.str(), "");
}

} // namespace
