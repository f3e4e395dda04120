// Drives the game's timers with real time: one precise Qt timer wakes when the next timer is due
// (and at least every 10 ms) and runs the due ones through the scheduler. Optionally writes down
// every game tick, when it started and what it cost, to the file named by MORVANE_TICK_LOG.
#pragma once

#include "game/game_state.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <cstdio>
#include <functional>

namespace morvane {

class TimerDriver : public QObject {
    Q_OBJECT
  public:
    // `afterTicks` runs after any timer has fired (the window syncs its controls there);
    // `modalCount` tells whether a tick opened a modal form, so that its time is not a frame's.
    TimerDriver(GameState& g, std::function<void()> afterTicks, std::function<int()> modalCount);
    ~TimerDriver() override;
    void start();
    // Milliseconds since start, the clock the game's timers run on.
    int64_t nowMs() const;

  private:
    void poll();
    void sleepUntilNextDue();
    void logTick(double startedMs, double costMs, bool openedForm);

    GameState& g_;
    std::function<void()> afterTicks_;
    std::function<int()> modalCount_;
    QTimer timer_;
    QElapsedTimer clock_;
    std::FILE* tickLog_ = nullptr;
};

} // namespace morvane
