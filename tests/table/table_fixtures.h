// Stand-ins for the outside world that remember what the table asked of them, and small tables.
#pragma once

#include "table/game_state.h"

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

struct RecordingScreen : ScreenPort {
    std::vector<std::pair<int, int>> drops; // ball, pocket
    int yields = 0;
    int tables = 0;
    void drawBallDrop(int ball, int pocket) override { drops.push_back({ball, pocket}); }
    void yieldToPaint() override { ++yields; }
    void drawTable() override { ++tables; }
};

struct Contact {
    float time;
    int ball;
    int partner;
    int pocket;
};

struct RecordingContacts : ContactObserver {
    std::vector<Contact> seen;
    void onContact(float time, int ball, int partner, int pocket) override {
        seen.push_back({time, ball, partner, pocket});
    }
};

// A table with every ball off it; balls are then put on one by one.
inline GameState emptyTable() {
    GameState g;
    for (BallType& b : g.Balls)
        b.onTable = false;
    return g;
}

// The frame saw one contact only: this ball taken by this pocket from this cushion.
void expectOnlyCapture(const RecordingContacts& contacts, int cushion, int pocket);

void putBall(GameState& g, int n, float x, float y, float speed = 0, float angle = 0);

} // namespace morvane::testing
