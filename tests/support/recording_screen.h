// A screen for tests: it draws nothing and writes down the messages and forms the logic shows.
#pragma once

#include "game/game_state.h"

#include <functional>
#include <string>
#include <vector>

namespace morvane::testing {

class RecordingScreen : public ScreenPort {
  public:
    std::vector<std::string> messages;
    std::vector<std::string> forms;
    // Called when the match set-up form opens; by default the player presses OK as it stands.
    std::function<void()> onChangeVsMode;
    std::function<void()> onInputBox;

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
