// morvane-sim demo: whole demo games through the real tick and timers, in virtual time.
#pragma once

#include "sim/play_watch.h"
#include "sim/played_game.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

struct DemoGame {
    bool ended = false;
    int16_t shots = 0;
    int16_t turns = 0;
    int16_t fouls = 0;
    int32_t gameSeconds = 0;     // the game clock
    double simulatedSeconds = 0; // virtual time from the start of the demo to the menu
    std::string nineBy;          // the side of the shot that ended the game: "You" or "zeph"
};

// Starts the demo from the menu and runs the timers until it is back on the menu. afterShot, when
// given, sees the table at the end of every shot that doesn't end the game.
DemoGame playDemoGame(HeadlessSession& session, StrategyTally& tally,
                      const std::function<void(const GameState&)>& afterShot = nullptr);

// Options: --games N, --level L (zeph's level for the run; the level on disk when absent),
// --seed N.
int runDemoCommand(const std::vector<std::string>& options, std::ostream& out, std::ostream& err);

} // namespace morvane::sim
