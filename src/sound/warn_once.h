// Complaints about sound that can't be played: one line each, and never twice about one thing.
// The tunes are read on a thread of their own, so the complaints may come from two threads.
#pragma once

#include <mutex>
#include <ostream>
#include <set>
#include <string>

namespace morvane {

class WarnOnce {
  public:
    explicit WarnOnce(std::ostream& out) : out_(out) {}

    // Writes "morvane: " and the text, unless something was already said about `subject`.
    void warn(const std::string& subject, const std::string& text) {
        std::lock_guard<std::mutex> lock(mutex_);
        if (said_.insert(subject).second)
            out_ << "morvane: " << text << '\n' << std::flush;
    }

  private:
    std::mutex mutex_;
    std::ostream& out_;
    std::set<std::string> said_;
};

} // namespace morvane
