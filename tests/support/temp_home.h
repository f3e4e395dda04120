// A fresh folder for the game's files for each test, through MORVANE_HOME, removed afterwards.
// The real home is never touched, and the variables that choose the folder are restored.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace morvane::testing {

// An environment variable set, or only kept, for the life of the guard, its old value put back
// after.
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

// The folder for as long as the object lives; a fixture that has another base holds one.
class TempHome {
    // First, so that they are put back once the folder is gone.
    ScopedEnv morvaneHome_{"MORVANE_HOME"}, xdgConfigHome_{"XDG_CONFIG_HOME"}, userHome_{"HOME"};

  public:
    TempHome() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "morvane-test-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            ADD_FAILURE() << "no temporary folder";
        home_ = pattern + "/";
        ::setenv("MORVANE_HOME", home_.c_str(), 1);
    }
    ~TempHome() {
        std::error_code ignored;
        std::filesystem::remove_all(home_, ignored);
    }
    TempHome(const TempHome&) = delete;
    TempHome& operator=(const TempHome&) = delete;

    std::string path(const std::string& name) const { return home_ + name; }

    void writeFile(const std::string& name, const std::string& text) const {
        std::ofstream(path(name), std::ios::binary) << text;
    }

    std::string readFile(const std::string& name) const {
        std::ifstream in(path(name), std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

    std::vector<std::string> lines(const std::string& name) const {
        std::vector<std::string> result;
        std::istringstream in(readFile(name));
        for (std::string line; std::getline(in, line);)
            result.push_back(line);
        return result;
    }

    std::vector<std::string> folderEntries() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(home_))
            names.push_back(entry.path().filename().string());
        return names;
    }

    std::string home_;
};

class TempHomeTest : public ::testing::Test, public TempHome {};

} // namespace morvane::testing
