#include "wav_writer.h"

#include "byte_writer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace morvane::assets {

namespace {
constexpr uint16_t kPcm = 1;
constexpr uint16_t kChannels = 1;
constexpr uint16_t kBitsPerSample = 16;
constexpr uint32_t kFormatChunkSize = 16;
constexpr double kFullScale = 32767.0;
} // namespace

bool writeWav(const std::vector<double>& samples, const std::string& path) {
    const uint32_t dataBytes = static_cast<uint32_t>(samples.size()) * 2u;
    const uint16_t blockAlign = kChannels * kBitsPerSample / 8;
    ByteWriter out;
    out.text("RIFF");
    out.le32(4 + 8 + kFormatChunkSize + 8 + dataBytes);
    out.text("WAVE");
    out.text("fmt ");
    out.le32(kFormatChunkSize);
    out.le16(kPcm);
    out.le16(kChannels);
    out.le32(kSampleRate);
    out.le32(kSampleRate * blockAlign);
    out.le16(blockAlign);
    out.le16(kBitsPerSample);
    out.text("data");
    out.le32(dataBytes);
    for (double s : samples) {
        const auto v = static_cast<int16_t>(std::lround(std::clamp(s, -1.0, 1.0) * kFullScale));
        out.le16(static_cast<uint16_t>(v));
    }
    return out.save(path);
}

} // namespace morvane::assets
