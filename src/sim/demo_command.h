// morvane-sim demo: whole demo games through the real tick and timers, in virtual time.
#pragma once

#include "sim/play_watch.h"
#include "sim/played_game.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

// The statistics are those of the game before its last shot: no form shows them at the end of a
// demo game, and the last shot changes none of them but the balls, which aren't kept.
struct DemoGame : PlayedGame {
    std::string nineBy; // the side of the shot that ended the game: "You" or "zeph"
    int rackedAnew = 0; // times the game went 30 shots without a pot and was racked again
};

// Starts the demo from the menu and runs the timers until it is back on the menu. afterShot, when
// given, sees the table at the end of every shot that doesn't end the game (a fresh rack after a
// shot that racked the game anew).
DemoGame playDemoGame(HeadlessSession& session, StrategyTally& tally,
                      const std::function<void(const GameState&)>& afterShot = nullptr);

// Options: --games N, --level L (zeph's level for the run; the level on disk when absent),
// --seed N.
int runDemoCommand(const std::vector<std::string>& options, std::ostream& out, std::ostream& err);

} // namespace morvane::sim
