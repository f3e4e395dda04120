// 16-bit mono PCM WAV files.
#pragma once

#include <string>
#include <vector>

namespace morvane::assets {

inline constexpr int kSampleRate = 44100;

// Writes samples in -1..1 (clipped to that range) as 16-bit mono PCM at kSampleRate.
bool writeWav(const std::vector<double>& samples, const std::string& path);

} // namespace morvane::assets
