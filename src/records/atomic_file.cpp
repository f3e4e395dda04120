#include "records/atomic_file.h"

#include "records/file_descriptor.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morvane {

namespace {

// mkstemp's six letters and digits after the file's own name.
constexpr std::string_view kTemporaryMark = "XXXXXX";
constexpr mode_t kNewFileMode = 0666;
// A temporary file that a cleaner removed before its save locked it is made anew this often.
constexpr int kTemporaryAttempts = 3;

SaveStepHook& saveStepHook() {
    static SaveStepHook hook;
    return hook;
}

// 0 to go on, or the error number that the step is to fail with.
int hookAnswer(SaveStep step) {
    return saveStepHook() ? saveStepHook()(step) : 0;
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

// The file that a link points to; the path itself when it is no link or leads nowhere.
std::string followLink(const std::string& path) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode))
        return path;
    std::array<char, PATH_MAX> real{};
    return ::realpath(path.c_str(), real.data()) ? std::string(real.data()) : path;
}

bool isTemporaryNameOf(std::string_view name, const std::string& fileName) {
    const size_t prefix = 1 + fileName.size() + 1;
    if (name.size() != prefix + kTemporaryMark.size() || !name.starts_with('.') ||
        name.substr(1, fileName.size()) != fileName || name[prefix - 1] != '.')
        return false;
    for (char c : name.substr(prefix)) {
        const bool letterOrDigit =
            (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (!letterOrDigit)
            return false;
    }
    return true;
}

// One save's temporary file, held locked from its creation until it is renamed or removed, so
// that removeUnfinishedSaves never takes it from under a running save.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& target)
        : path_(folderOf(target) + "/." + fileNameOf(target) + "." + std::string(kTemporaryMark)) {}
    ~TemporaryFile() {
        if (!renamed_ && fd_.get() >= 0)
            ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // 0, or the error number of the failure.
    int create() {
        const std::string pattern = path_;
        for (int attempt = 0; attempt < kTemporaryAttempts; ++attempt) {
            path_ = pattern;
            fd_ = FileDescriptor(::mkstemp(path_.data()));
            if (fd_.get() < 0)
                return errno;
            ::flock(fd_.get(), LOCK_EX);
            struct stat info {};
            if (::fstat(fd_.get(), &info) == 0 && info.st_nlink > 0)
                return 0;
        }
        return EAGAIN;
    }
    int fd() const { return fd_.get(); }
    int renameTo(const std::string& target) {
        if (::rename(path_.c_str(), target.c_str()) != 0)
            return errno;
        renamed_ = true;
        return 0;
    }

  private:
    std::string path_;
    FileDescriptor fd_;
    bool renamed_ = false;
};

int writeAll(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t n = ::write(fd, text.data(), text.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return errno;
        if (n == 0)
            return ENOSPC;
        text.remove_prefix(size_t(n));
    }
    return 0;
}

// A replaced file keeps its permissions; a new one gets those that the umask leaves.
void setMode(const std::string& target, int fd) {
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0) {
        ::fchmod(fd, old.st_mode & 07777);
        return;
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::fchmod(fd, kNewFileMode & ~mask);
}

int flushFolder(const std::string& folder) {
    const FileDescriptor fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd.get() < 0 || ::fsync(fd.get()) != 0)
        return errno;
    return 0;
}

// Runs the step unless the hook makes it fail; 0 or the error number.
template <class Step> int runStep(SaveStep step, Step&& action) {
    const int forced = hookAnswer(step);
    return forced != 0 ? forced : action();
}

bool reportFailure(const std::string& path, int error) {
    std::fprintf(stderr, "morvane: could not save %s (%s); the change is lost\n", path.c_str(),
                 std::strerror(error));
    return false;
}

} // namespace

bool writeFileAtomically(const std::string& path, const std::string& text) {
    const std::string target = followLink(path);
    TemporaryFile temporary(target);
    int error = runStep(SaveStep::CreateTemporary, [&] { return temporary.create(); });
    if (error == 0) {
        setMode(target, temporary.fd());
        error = runStep(SaveStep::Write, [&] { return writeAll(temporary.fd(), text); });
    }
    if (error == 0)
        error =
            runStep(SaveStep::FlushFile, [&] { return ::fsync(temporary.fd()) == 0 ? 0 : errno; });
    if (error == 0)
        error = runStep(SaveStep::Rename, [&] { return temporary.renameTo(target); });
    if (error != 0)
        return reportFailure(path, error);
    // The new file is in place; a folder that can't be flushed only leaves that to the system.
    runStep(SaveStep::FlushFolder, [&] { return flushFolder(folderOf(target)); });
    return true;
}

void removeUnfinishedSaves(const std::string& folder, const std::vector<std::string>& fileNames) {
    DIR* dir = ::opendir(folder.c_str());
    if (!dir)
        return;
    while (const dirent* entry = ::readdir(dir)) {
        const std::string_view name = entry->d_name;
        bool ours = false;
        for (const std::string& fileName : fileNames)
            ours = ours || isTemporaryNameOf(name, fileName);
        if (!ours)
            continue;
        const FileDescriptor fd(
            ::openat(::dirfd(dir), entry->d_name,
                     O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC));
        struct stat info {};
        if (fd.get() < 0 || ::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode))
            continue;
        // A save that is still running holds the lock.
        if (::flock(fd.get(), LOCK_EX | LOCK_NB) == 0)
            ::unlinkat(::dirfd(dir), entry->d_name, 0);
    }
    ::closedir(dir);
}

void setSaveStepHook(SaveStepHook hook) {
    saveStepHook() = std::move(hook);
}

} // namespace morvane
