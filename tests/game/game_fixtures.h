// Stand-ins for the sound and the screen that remember what a shot asked of them.
#pragma once

#include "game/game_state.h"

#include <string>
#include <utility>
#include <vector>

namespace morvane::testing {

struct RecordingSound : SoundPort {
    std::vector<std::pair<std::string, int>> played;
    void playEffect(const std::string& file, int flags) override {
        played.push_back({file, flags});
    }
};

struct ShotScreen : ScreenPort {
    std::vector<std::pair<int, int>> drops; // ball, pocket
    std::vector<int> ballsDrawn;
    int yields = 0;
    int tables = 0;
    void drawBallDrop(int ball, int pocket) override { drops.push_back({ball, pocket}); }
    void drawBallNow(int ball) override { ballsDrawn.push_back(ball); }
    void yieldToPaint() override { ++yields; }
    void drawTable() override { ++tables; }
};

} // namespace morvane::testing
