#include "startup/single_instance.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace morvane {

namespace {
constexpr const char* kLockName = "morvane.lock";
constexpr mode_t kOwnerReadWrite = 0600;
} // namespace

std::string defaultLockPath() {
    if (const char* runtime = std::getenv("XDG_RUNTIME_DIR"); runtime && *runtime)
        return std::string(runtime) + "/" + kLockName;
    return (std::filesystem::temp_directory_path() /
            ("morvane-" + std::to_string(::getuid()) + ".lock"))
        .string();
}

SingleInstanceLock::SingleInstanceLock(std::string path) : path_(std::move(path)) {}

SingleInstanceLock::~SingleInstanceLock() {
    if (fd_ >= 0)
        ::close(fd_);
}

bool SingleInstanceLock::anotherInstanceRunning() {
    if (fd_ >= 0)
        return false;
    const int fd = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kOwnerReadWrite);
    if (fd < 0)
        return false;
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        const bool busy = errno == EWOULDBLOCK;
        ::close(fd);
        return busy;
    }
    fd_ = fd;
    return false;
}

} // namespace morvane
