#include "screen/timer_driver.h"

#include "startup/scheduler.h"

#include <algorithm>
#include <cstdlib>

namespace morvane {

namespace {
constexpr int kPollMs = 1;
// The longest sleep between two looks: a timer a handler switches on is seen this soon.
constexpr int64_t kLongestSleepMs = 10;
constexpr double kNanosPerMilli = 1e6;
} // namespace

TimerDriver::TimerDriver(GameState& g, std::function<void()> afterTicks,
                         std::function<int()> modalCount)
    : g_(g), afterTicks_(std::move(afterTicks)), modalCount_(std::move(modalCount)) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &TimerDriver::poll);
    if (const char* path = std::getenv("MORVANE_TICK_LOG"); path && *path) {
        tickLog_ = std::fopen(path, "w");
        if (tickLog_)
            std::fputs("start_ms cost_ms opened_form\n", tickLog_);
        else
            std::fprintf(stderr, "morvane: cannot write the tick log %s\n", path);
    }
}

TimerDriver::~TimerDriver() {
    if (tickLog_)
        std::fclose(tickLog_);
}

void TimerDriver::start() {
    clock_.start();
    g_.nowMs = 0;
    timer_.start(kPollMs);
}

// Sleeps until the next timer is due, but never long, since handlers switch timers on too.
void TimerDriver::sleepUntilNextDue() {
    const int64_t due = nextDueTime(g_);
    const int64_t wait = due < 0 ? kLongestSleepMs : due - nowMs();
    timer_.start(int(std::clamp<int64_t>(wait, kPollMs, kLongestSleepMs)));
}

int64_t TimerDriver::nowMs() const {
    return clock_.elapsed();
}

// Runs the due timers. Under a modal form this is called again from the form's own event loop,
// and the scheduler then fires the others but never the one whose handler is still running.
void TimerDriver::poll() {
    struct SleepAfter {
        TimerDriver& driver;
        ~SleepAfter() { driver.sleepUntilNextDue(); }
    } sleepAfter{*this};
    // Until this look is over, look again soon: a handler that opens a modal form runs the
    // form's own event loop, and the other timers must go on ticking under it.
    timer_.start(kPollMs);
    const int64_t now = nowMs();
    // Handlers run between polls switch timers on from this moment.
    if (g_.nowMs < now)
        g_.nowMs = now;
    const int64_t due = nextDueTime(g_);
    if (due < 0 || due > now)
        return;
    const TimerState& tick = g_.timers[kTimer1];
    const bool gameTickDue = tick.enabled && !tick.running && tick.dueAt <= now;
    const int formsBefore = modalCount_ ? modalCount_() : 0;
    const qint64 startedNs = clock_.nsecsElapsed();
    runDueTimers(g_, now);
    if (afterTicks_)
        afterTicks_();
    if (gameTickDue && tickLog_) {
        const bool openedForm = modalCount_ && modalCount_() != formsBefore;
        logTick(double(startedNs) / kNanosPerMilli,
                double(clock_.nsecsElapsed() - startedNs) / kNanosPerMilli, openedForm);
    }
}

void TimerDriver::logTick(double startedMs, double costMs, bool openedForm) {
    std::fprintf(tickLog_, "%.3f %.3f %d\n", startedMs, costMs, openedForm ? 1 : 0);
    std::fflush(tickLog_);
}

} // namespace morvane
