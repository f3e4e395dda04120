// A screen for tests: it draws nothing and writes down what the logic asked of it.
#pragma once

#include "game/game_state.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace morvane::testing {

class RecordingScreen : public ScreenPort {
  public:
    std::vector<std::string> messages;
    std::vector<std::string> forms;
    std::vector<std::string> calls;         // drawTable and refreshPool, in order
    std::vector<std::pair<int, int>> drops; // ball, pocket
    std::vector<int> ballsDrawn;
    int yields = 0;
    // Called when the match set-up form opens; by default the player presses OK as it stands.
    std::function<void()> onChangeVsMode;
    std::function<void()> onInputBox;

    void drawTable() override { calls.push_back("drawTable"); }
    void refreshPool() override { calls.push_back("refreshPool"); }
    void drawBallDrop(int ball, int pocket) override { drops.push_back({ball, pocket}); }
    void drawBallNow(int ball) override { ballsDrawn.push_back(ball); }
    void yieldToPaint() override { ++yields; }
    void showMessage(const std::string& text) override { messages.push_back(text); }
    void showPlainMessage(const std::string& text) override { messages.push_back(text); }
    void showRecordForm() override { forms.push_back("frmRecord"); }
    void showInputBox() override {
        forms.push_back("frmInputBox");
        if (onInputBox)
            onInputBox();
    }
    void showChangeVsMode() override {
        forms.push_back("frmChangeVsMode");
        if (onChangeVsMode)
            onChangeVsMode();
    }
    void showVsResult() override { forms.push_back("frmVsResult"); }
    void showVersion() override { forms.push_back("frmVersion"); }
};

} // namespace morvane::testing
