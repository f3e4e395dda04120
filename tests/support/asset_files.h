// Reading the files the generator left beside the programs.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace morvane::testing {

inline std::filesystem::path runtimeFolder() {
    return MORVANE_RUNTIME_DIR;
}
inline std::string runtimePath(const std::string& name) {
    return (runtimeFolder() / name).string();
}

inline std::vector<uint8_t> readBytes(const std::string& name) {
    std::ifstream in(runtimePath(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline uint32_t be16(const std::vector<uint8_t>& b, size_t at) {
    return (b.at(at) << 8) | b.at(at + 1);
}
inline uint32_t be32(const std::vector<uint8_t>& b, size_t at) {
    return (be16(b, at) << 16) | be16(b, at + 2);
}
inline std::string tag(const std::vector<uint8_t>& b, size_t at, size_t n) {
    return std::string(b.begin() + static_cast<long>(at), b.begin() + static_cast<long>(at + n));
}

} // namespace morvane::testing
