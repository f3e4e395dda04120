// What the sound tests share: the folder of the generated files, a driver chosen for one test,
// and a bounded wait for the mixer's own thread.
#pragma once

#include <SDL.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace morvane::testing {

inline std::filesystem::path runtimeFolder() {
    return MORVANE_RUNTIME_DIR;
}

// Sets an environment variable for the life of the guard and puts the old value back after.
class ScopedEnv {
  public:
    ScopedEnv(const char* name, const std::string& value) : name_(name) {
        if (const char* old = std::getenv(name))
            old_ = old;
        ::setenv(name, value.c_str(), 1);
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

// The mixer works on its own thread; this waits for what it is to do, up to a generous limit,
// and says whether it came.
template <typename Done> bool waitForMixer(Done done, int limitMs = 20000) {
    for (int waited = 0; waited < limitMs; ++waited) {
        if (done())
            return true;
        SDL_Delay(1);
    }
    return done();
}

} // namespace morvane::testing
