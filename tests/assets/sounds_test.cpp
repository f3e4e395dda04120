// The five effects are short 16-bit mono PCM WAVs that sound and don't clip, the clicks
// rising in strength from vmin to vmax.
#include "support/asset_files.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace morvane::testing;

struct Wav {
    uint32_t rate = 0;
    std::vector<int16_t> samples;
};

Wav readWav(const std::string& file) {
    const std::vector<uint8_t> b = readBytes(file);
    Wav w;
    EXPECT_GE(b.size(), 44u) << file;
    if (b.size() < 44)
        return w;
    EXPECT_EQ(tag(b, 0, 4), "RIFF");
    EXPECT_EQ(le32(b, 4), b.size() - 8);
    EXPECT_EQ(tag(b, 8, 4), "WAVE");
    EXPECT_EQ(tag(b, 12, 4), "fmt ");
    EXPECT_EQ(le32(b, 16), 16u);
    EXPECT_EQ(le16(b, 20), 1u) << "PCM";
    EXPECT_EQ(le16(b, 22), 1u) << "mono";
    w.rate = le32(b, 24);
    EXPECT_EQ(le32(b, 28), w.rate * 2);
    EXPECT_EQ(le16(b, 32), 2u);
    EXPECT_EQ(le16(b, 34), 16u);
    EXPECT_EQ(tag(b, 36, 4), "data");
    const uint32_t bytes = le32(b, 40);
    EXPECT_EQ(bytes, b.size() - 44);
    for (size_t i = 44; i + 1 < b.size(); i += 2)
        w.samples.push_back(static_cast<int16_t>(le16(b, i)));
    return w;
}

double peakOf(const Wav& w) {
    int peak = 0;
    for (int16_t s : w.samples)
        peak = std::max(peak, std::abs(static_cast<int>(s)));
    return peak / 32768.0;
}

double rmsOf(const Wav& w) {
    double sum = 0;
    for (int16_t s : w.samples)
        sum += (s / 32768.0) * (s / 32768.0);
    return std::sqrt(sum / static_cast<double>(w.samples.size()));
}

TEST(Sounds, EveryEffectIsAShortAudibleUnclippedMonoPcm) {
    for (const char* file : {"vmin.wav", "vmid.wav", "vmax.wav", "drop.wav", "meetwall.wav"}) {
        const Wav w = readWav(file);
        ASSERT_FALSE(w.samples.empty()) << file;
        EXPECT_TRUE(w.rate == 22050 || w.rate == 44100) << file;
        const double seconds = static_cast<double>(w.samples.size()) / w.rate;
        EXPECT_GT(seconds, 0.05) << file;
        EXPECT_LT(seconds, 1.0) << file;
        EXPECT_GT(peakOf(w), 0.2) << file;
        EXPECT_LT(peakOf(w), 0.99) << file << " clips";
        EXPECT_GT(rmsOf(w), 0.01) << file;
        // A sound ends in silence, so that cutting it off makes no click.
        EXPECT_LT(std::abs(w.samples.back()), 64) << file;
    }
}

TEST(Sounds, ClicksRiseInStrengthAndTheDropOutlastsThem) {
    const Wav soft = readWav("vmin.wav"), mid = readWav("vmid.wav"), hard = readWav("vmax.wav");
    EXPECT_LT(peakOf(soft), peakOf(mid));
    EXPECT_LT(peakOf(mid), peakOf(hard));
    EXPECT_LT(rmsOf(soft), rmsOf(hard));
    EXPECT_GT(readWav("drop.wav").samples.size(), 3 * hard.samples.size());
}

// Zero crossings a second: a bright tick crosses far more often than a dull thump.
double crossingsPerSecond(const Wav& w) {
    int crossings = 0;
    for (size_t i = 1; i < w.samples.size(); ++i)
        crossings += (w.samples[i - 1] < 0) != (w.samples[i] < 0);
    return crossings * static_cast<double>(w.rate) / static_cast<double>(w.samples.size());
}

TEST(Sounds, TheClickIsBrightAndTheCushionDull) {
    const Wav click = readWav("vmax.wav");
    const Wav thump = readWav("meetwall.wav");
    // Measured over the first 30 ms, where each sound has its body.
    auto head = [](Wav w) {
        w.samples.resize(std::min(w.samples.size(), static_cast<size_t>(w.rate * 3 / 100)));
        return w;
    };
    EXPECT_GT(crossingsPerSecond(head(click)), 4000);
    EXPECT_LT(crossingsPerSecond(head(thump)), 1500);
}

} // namespace
