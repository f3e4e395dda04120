#include "records/file_read.h"

#include "records/file_descriptor.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace morvane {

namespace {

using Problem = FileRead::Problem;

const char* kindOf(mode_t mode) {
    if (S_ISFIFO(mode))
        return "a FIFO";
    if (S_ISDIR(mode))
        return "a folder";
    if (S_ISCHR(mode))
        return "a character device";
    if (S_ISBLK(mode))
        return "a block device";
    if (S_ISSOCK(mode))
        return "a socket";
    return "not a regular file";
}

FileRead problem(Problem kind, std::string reason) {
    return {"", kind, std::move(reason)};
}

FileRead errorOf(int error) {
    return error == ENOENT ? problem(Problem::Missing, "")
                           : problem(Problem::Unreadable, std::strerror(error));
}

std::string sizeText(size_t bytes) {
    constexpr size_t kMiB = size_t(1) << 20;
    return bytes % kMiB == 0 ? std::to_string(bytes / kMiB) + " MiB"
                             : std::to_string(bytes) + " bytes";
}

// Reads up to limit + 1 bytes, to tell a file of exactly the limit from a larger one.
bool readUpTo(int fd, size_t limit, std::string& text) {
    text.resize(limit + 1);
    size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::read(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        if (n == 0)
            break;
        done += size_t(n);
    }
    text.resize(done);
    return true;
}

} // namespace

FileRead readSmallFile(const std::string& path, size_t limit) {
    // Looked at before it is opened: opening a FIFO waits for a writer, and opening a device
    // may do something.
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0)
        return errorOf(errno);
    if (!S_ISREG(info.st_mode))
        return problem(Problem::NotAFile, kindOf(info.st_mode));
    const FileDescriptor fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (fd.get() < 0)
        return errorOf(errno);
    // It may have been swapped for something else since.
    if (::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode))
        return problem(Problem::NotAFile, kindOf(info.st_mode));
    FileRead read;
    if (!readUpTo(fd.get(), limit, read.text))
        return errorOf(errno);
    if (read.text.size() > limit) {
        read.text.resize(limit);
        read.text.resize(read.text.rfind('\n') + 1); // npos + 1 leaves nothing
        read.problem = Problem::TooLarge;
        read.reason = sizeText(limit);
    }
    return read;
}

void reportReadProblem(const std::string& path, const FileRead& read) {
    std::string line;
    switch (read.problem) {
    case Problem::None:
    case Problem::Missing:
        return;
    case Problem::NotAFile:
        line = path + " is " + read.reason + ", not a regular file; the defaults are used";
        break;
    case Problem::Unreadable:
        line = "could not read " + path + " (" + read.reason + "); the defaults are used";
        break;
    case Problem::TooLarge:
        line = path + " is larger than " + read.reason + "; only the whole lines of its first " +
               read.reason + " are read and kept";
        break;
    }
    static std::set<std::string> told;
    if (told.insert(line).second)
        std::fprintf(stderr, "morvane: %s\n", line.c_str());
}

} // namespace morvane
