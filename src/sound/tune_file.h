// A tune as read from its file: the bytes of a Standard MIDI File, or what is wrong with it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace morvane {

struct TuneFile {
    std::vector<unsigned char> bytes;
    std::string problem; // empty when the file is a whole MIDI file
};

// Reads the file and checks its chunks: a header, then tracks that all end inside the file.
TuneFile readTuneFile(const std::filesystem::path& path);

// What is wrong with these bytes as a MIDI file; empty if nothing.
std::string midiProblem(const std::vector<unsigned char>& bytes);

} // namespace morvane
