// Reading the game's own small text files, so that whatever stands in their place can neither
// hang the game nor fill its memory: only regular files are read, never more than a real file
// of the game could hold, and nothing waits on a FIFO or a device.
#pragma once

#include <cstddef>
#include <string>

namespace morvane {

// The most that is read of a file; the largest real file of the game is a few KB.
constexpr size_t kLargestFileRead = size_t(1) << 20;

struct FileRead {
    enum class Problem {
        None,
        Missing,    // no file: the defaults, without a word
        NotAFile,   // a FIFO, a device, a folder or a socket stands in its place
        Unreadable, // it can't be opened or read
        TooLarge,   // only its first kLargestFileRead bytes are read, cut after a whole line
    };
    std::string text;
    Problem problem = Problem::None;
    std::string reason; // what stands in its place, why it can't be read, or the size read
};

FileRead readSmallFile(const std::string& path, size_t limit = kLargestFileRead);

// One line on stderr that names the file and what is wrong with it, once a run for each file
// and problem; nothing for a file that is fine or missing.
void reportReadProblem(const std::string& path, const FileRead& read);

} // namespace morvane
