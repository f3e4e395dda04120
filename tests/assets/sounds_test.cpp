// The five effects are short 16-bit mono PCM WAVs that sound and don't clip, the clicks rising in
// strength from vmin to vmax, the click bright and the cushion dull.
#include "support/asset_files.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace morvane::testing;

struct Wav {
    uint32_t rate = 0;
    std::vector<int16_t> samples;

    double peak() const {
        int p = 0;
        for (int16_t s : samples)
            p = std::max(p, std::abs(int(s)));
        return p / 32768.0;
    }
    double rms() const {
        double sum = 0;
        for (int16_t s : samples)
            sum += (s / 32768.0) * (s / 32768.0);
        return std::sqrt(sum / double(samples.size()));
    }
    // Zero crossings a second over the first 30 ms, where each sound has its body.
    double crossingsPerSecond() const {
        const size_t n = std::min(samples.size(), size_t(rate * 3 / 100));
        int crossings = 0;
        for (size_t i = 1; i < n; ++i)
            crossings += (samples[i - 1] < 0) != (samples[i] < 0);
        return crossings * double(rate) / double(n);
    }
};

Wav readWav(const std::string& file) {
    const std::vector<uint8_t> b = readBytes(file);
    Wav w;
    if (b.size() < 44 || tag(b, 0, 4) != "RIFF" || tag(b, 8, 8) != "WAVEfmt " ||
        tag(b, 36, 4) != "data") {
        ADD_FAILURE() << file << " is no WAV";
        return w;
    }
    w.rate = le32(b, 24);
    // RIFF size, fmt size, PCM and mono, bytes a second, bytes a sample and bits, data size.
    const uint32_t size = uint32_t(b.size());
    EXPECT_EQ(
        (std::array{size - 8, 16u, 0x10001u, 2 * w.rate, 0x100002u, size - 44}),
        (std::array{le32(b, 4), le32(b, 16), le32(b, 20), le32(b, 28), le32(b, 32), le32(b, 40)}))
        << file;
    for (size_t i = 44; i + 1 < b.size(); i += 2)
        w.samples.push_back(int16_t(le16(b, i)));
    return w;
}

TEST(Sounds, EveryEffectIsAShortAudibleUnclippedMonoPcm) {
    for (const char* file : {"vmin.wav", "vmid.wav", "vmax.wav", "drop.wav", "meetwall.wav"}) {
        SCOPED_TRACE(file);
        const Wav w = readWav(file);
        ASSERT_FALSE(w.samples.empty());
        EXPECT_TRUE(w.rate == 22050 || w.rate == 44100);
        const double seconds = double(w.samples.size()) / w.rate;
        EXPECT_GT(seconds, 0.05);
        EXPECT_LT(seconds, 1.0);
        EXPECT_GT(w.peak(), 0.2);
        EXPECT_LT(w.peak(), 0.99) << "clips";
        EXPECT_GT(w.rms(), 0.01);
        EXPECT_LT(std::abs(w.samples.back()), 64) << "cut off with a click";
    }
}

TEST(Sounds, ClicksRiseInStrengthTheDropOutlastsThemAndTheCushionIsDull) {
    const Wav soft = readWav("vmin.wav"), mid = readWav("vmid.wav"), hard = readWav("vmax.wav");
    EXPECT_LT(soft.peak(), mid.peak());
    EXPECT_LT(mid.peak(), hard.peak());
    EXPECT_LT(soft.rms(), hard.rms());
    EXPECT_GT(readWav("drop.wav").samples.size(), 3 * hard.samples.size());
    EXPECT_GT(hard.crossingsPerSecond(), 4000);
    EXPECT_LT(readWav("meetwall.wav").crossingsPerSecond(), 1500);
}

} // namespace
