// A sound device for tests: it plays nothing and writes down the effects and the music commands.
#pragma once

#include "game/game_state.h"

#include <string>
#include <utility>
#include <vector>

namespace morvane::testing {

class RecordingSound : public SoundPort {
  public:
    std::vector<std::pair<std::string, int>> played; // effect file, flags
    std::vector<std::string> music;
    // Where given, the music commands go to this log too, among the other calls of a test.
    std::vector<std::string>* log = nullptr;

    void playEffect(const std::string& file, int flags) override {
        played.push_back({file, flags});
    }
    void sendMusic(const std::string& command) override {
        music.push_back(command);
        if (log)
            log->push_back("music " + command);
    }
};

} // namespace morvane::testing
