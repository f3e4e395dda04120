// One copy of the game at a time: a lock on a file that the kernel lets go of when the process
// ends, however it ends, so a crashed run never keeps the next one out.
#pragma once

#include <string>

namespace morvane {

// $XDG_RUNTIME_DIR/morvane.lock, or morvane-<uid>.lock in the temporary folder without it. It
// lies apart from the settings and the records, which a refused copy must not touch.
std::string defaultLockPath();

class SingleInstanceLock {
  public:
    explicit SingleInstanceLock(std::string path = defaultLockPath());
    ~SingleInstanceLock();
    SingleInstanceLock(const SingleInstanceLock&) = delete;
    SingleInstanceLock& operator=(const SingleInstanceLock&) = delete;

    // Takes the lock if nobody holds it; true when another holder has it. A lock file that can't
    // be opened at all lets the game start: it is no proof of another copy.
    bool anotherInstanceRunning();
    bool held() const { return fd_ >= 0; }

  private:
    std::string path_;
    int fd_ = -1;
};

} // namespace morvane
