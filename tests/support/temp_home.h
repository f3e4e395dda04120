// A fresh folder for the game's files for each test, through MORVANE_HOME, removed afterwards.
// The real home is never touched, and the variables that choose the folder are restored.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace morvane::testing {

// The folder for as long as the object lives; a fixture that has another base holds one.
class TempHome {
  public:
    TempHome() {
        for (const char* name : {"MORVANE_HOME", "XDG_CONFIG_HOME", "HOME"}) {
            const char* value = std::getenv(name);
            saved_[name] = value ? std::optional<std::string>(value) : std::nullopt;
        }
        std::string pattern =
            (std::filesystem::temp_directory_path() / "morvane-test-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            ADD_FAILURE() << "no temporary folder";
        home = pattern + "/";
        ::setenv("MORVANE_HOME", home.c_str(), 1);
    }

    ~TempHome() {
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
        for (const auto& [name, value] : saved_) {
            if (value)
                ::setenv(name.c_str(), value->c_str(), 1);
            else
                ::unsetenv(name.c_str());
        }
    }

    TempHome(const TempHome&) = delete;
    TempHome& operator=(const TempHome&) = delete;

    std::string path(const std::string& name) const { return home + name; }

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
        for (const auto& entry : std::filesystem::directory_iterator(home))
            names.push_back(entry.path().filename().string());
        return names;
    }

    std::string home;

  private:
    std::map<std::string, std::optional<std::string>> saved_;
};

class TempHomeTest : public ::testing::Test {
  protected:
    void SetUp() override {
        temp_.emplace();
        home_ = temp_->home;
    }

    void TearDown() override { temp_.reset(); }

    std::string path(const std::string& name) const { return temp_->path(name); }
    void writeFile(const std::string& name, const std::string& text) const {
        temp_->writeFile(name, text);
    }
    std::string readFile(const std::string& name) const { return temp_->readFile(name); }
    std::vector<std::string> lines(const std::string& name) const { return temp_->lines(name); }
    std::vector<std::string> folderEntries() const { return temp_->folderEntries(); }

    std::string home_;

  private:
    std::optional<TempHome> temp_;
};

} // namespace morvane::testing
