// An environment variable set, or only kept, for the life of the guard, its old value put back
// after.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace morvane::testing {

class ScopedEnv {
  public:
    explicit ScopedEnv(const char* name, const std::optional<std::string>& value = std::nullopt)
        : name_(name) {
        if (const char* old = std::getenv(name))
            old_ = old;
        if (value)
            ::setenv(name, value->c_str(), 1);
    }
    ~ScopedEnv() {
        if (old_)
            ::setenv(name_, old_->c_str(), 1);
        else
            ::unsetenv(name_);
    }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

  private:
    const char* name_;
    std::optional<std::string> old_;
};

} // namespace morvane::testing
