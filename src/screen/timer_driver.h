// Drives the game's timers with real time: one precise Qt timer sleeps until the next timer is
// due, or for the break swing until its next frame, and runs the due ones through the scheduler.
// Whenever the event loop is about to wait, the wake is set again, since any handler may have
// switched a timer on or off; with no timer on, the program sleeps until an event comes.
//
// Two opt-in logs: MORVANE_TICK_LOG=file writes down every game tick, when it started and what
// it cost; MORVANE_TIMER_LOG=file writes down when each tick of Timer1 and Timer2 came and, from a
// probe that looks every few milliseconds, every time the event loop was held up.
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
    // Sets the wake for the next due timer, or none when no timer may fire.
    void sleepUntilNextDue();
    // Milliseconds until the driver wakes, or -1 when it sleeps until an event comes.
    int msUntilWake() const;

  protected:
    // Every event keeps the game's clock: a handler it runs switches timers on from that moment.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void keepClock();
    void poll();
    void logTick(double startedMs, double costMs, bool openedForm);
    void logTimerTicks(int64_t nowMs);
    void probeLoop();

    GameState& g_;
    std::function<void()> afterTicks_;
    std::function<int()> modalCount_;
    QTimer timer_;
    int64_t wakeFor_ = -1; // the due time the wake is set for, -1 none
    QElapsedTimer clock_;
    std::FILE* tickLog_ = nullptr;
    std::FILE* timerLog_ = nullptr;
    QTimer loopProbe_;
    qint64 lastProbeNs_ = 0;
};

} // namespace morvane
