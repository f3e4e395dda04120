#include "sound/tune_file.h"

#include <cstring>
#include <fstream>
#include <iterator>

namespace morvane {

namespace {

constexpr size_t kChunkHeaderBytes = 8; // four letters, then a 32-bit big-endian length
constexpr size_t kFileHeaderLength = 6; // format, track count, division

size_t bigEndian32(const unsigned char* p) {
    return size_t(p[0]) << 24 | size_t(p[1]) << 16 | size_t(p[2]) << 8 | size_t(p[3]);
}

bool chunkIs(const std::vector<unsigned char>& bytes, size_t at, const char* name) {
    return std::memcmp(bytes.data() + at, name, 4) == 0;
}

} // namespace

std::string midiProblem(const std::vector<unsigned char>& bytes) {
    if (bytes.size() < kChunkHeaderBytes + kFileHeaderLength || !chunkIs(bytes, 0, "MThd"))
        return "not a MIDI file";
    if (bigEndian32(bytes.data() + 4) < kFileHeaderLength)
        return "a broken MIDI header";
    size_t tracks = 0;
    for (size_t at = kChunkHeaderBytes + bigEndian32(bytes.data() + 4); at < bytes.size();) {
        if (bytes.size() - at < kChunkHeaderBytes)
            return "a MIDI file cut short";
        const size_t length = bigEndian32(bytes.data() + at + 4);
        if (length > bytes.size() - at - kChunkHeaderBytes)
            return "a MIDI file cut short";
        if (chunkIs(bytes, at, "MTrk"))
            ++tracks;
        at += kChunkHeaderBytes + length;
    }
    return tracks == 0 ? "a MIDI file without tracks" : "";
}

TuneFile readTuneFile(const std::filesystem::path& path) {
    TuneFile tune;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        tune.problem = "no such file, or it can't be read";
    else
        tune.bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    if (tune.problem.empty())
        tune.problem = midiProblem(tune.bytes);
    if (!tune.problem.empty())
        tune.bytes.clear();
    return tune;
}

} // namespace morvane
