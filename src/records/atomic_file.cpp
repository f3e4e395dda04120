#include "records/atomic_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace morvane {

namespace {

BeforeRenameHook& beforeRenameHook() {
    static BeforeRenameHook hook;
    return hook;
}

std::string folderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string fileNameOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool writeAll(int fd, const std::string& text) {
    size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += size_t(n);
    }
    return true;
}

// A replaced file keeps the permissions it had.
void keepModeOf(const std::string& path, int fd) {
    struct stat old {};
    if (::stat(path.c_str(), &old) == 0)
        ::fchmod(fd, old.st_mode & 07777);
}

bool fail(const std::string& path, const std::string& tempPath, const char* reason) {
    if (!tempPath.empty())
        ::unlink(tempPath.c_str());
    std::fprintf(stderr, "morvane: could not save %s (%s); the change is lost\n", path.c_str(),
                 reason);
    return false;
}

} // namespace

std::optional<std::string> readWholeFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

bool writeFileAtomically(const std::string& path, const std::string& text) {
    std::string tempPath = folderOf(path) + "/." + fileNameOf(path) + ".XXXXXX";
    const int fd = ::mkstemp(tempPath.data());
    if (fd < 0)
        return fail(path, "", std::strerror(errno));
    keepModeOf(path, fd);
    const bool written = writeAll(fd, text) && ::fsync(fd) == 0;
    const int writeError = errno;
    if (::close(fd) != 0 || !written)
        return fail(path, tempPath, std::strerror(written ? errno : writeError));
    if (beforeRenameHook() && !beforeRenameHook()(tempPath))
        return fail(path, tempPath, "interrupted before the rename");
    if (::rename(tempPath.c_str(), path.c_str()) != 0)
        return fail(path, tempPath, std::strerror(errno));
    return true;
}

void setBeforeRenameHook(BeforeRenameHook hook) {
    beforeRenameHook() = std::move(hook);
}

} // namespace morvane
