#include "screen/timer_driver.h"

#include "startup/scheduler.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <algorithm>
#include <cstdlib>

namespace morvane {

namespace {
constexpr double kNanosPerMilli = 1e6;
// The loop probe looks this often and writes down every look that came later than this.
constexpr int kProbeMs = 2;
constexpr double kProbeSlackMs = 1;

std::FILE* openLog(const char* variable, const char* header) {
    const char* path = std::getenv(variable);
    if (!path || !*path)
        return nullptr;
    std::FILE* log = std::fopen(path, "w");
    if (log)
        std::fputs(header, log);
    else
        std::fprintf(stderr, "morvane: cannot write the log %s\n", path);
    return log;
}

} // namespace

TimerDriver::TimerDriver(GameState& g, std::function<void()> afterTicks,
                         std::function<int()> modalCount)
    : g_(g), afterTicks_(std::move(afterTicks)), modalCount_(std::move(modalCount)) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &TimerDriver::poll);
    QCoreApplication::instance()->installEventFilter(this);
    // Modal forms run their own event loops on the same dispatcher: this covers them too.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &TimerDriver::sleepUntilNextDue);
    tickLog_ = openLog("MORVANE_TICK_LOG", "start_ms cost_ms opened_form\n");
    timerLog_ = openLog("MORVANE_TIMER_LOG", "what at_ms late_ms\n");
    if (timerLog_) {
        loopProbe_.setTimerType(Qt::PreciseTimer);
        connect(&loopProbe_, &QTimer::timeout, this, &TimerDriver::probeLoop);
    }
}

TimerDriver::~TimerDriver() {
    for (std::FILE* log : {tickLog_, timerLog_}) {
        if (log)
            std::fclose(log);
    }
}

void TimerDriver::start() {
    clock_.start();
    g_.nowMs = 0;
    sleepUntilNextDue();
    if (timerLog_) {
        lastProbeNs_ = clock_.nsecsElapsed();
        loopProbe_.start(kProbeMs);
    }
}

void TimerDriver::sleepUntilNextDue() {
    if (!clock_.isValid())
        return; // not started
    const int64_t due = nextFrameWakeTime(g_);
    if (due == wakeFor_ && (due < 0 || timer_.isActive()))
        return;
    wakeFor_ = due;
    if (due < 0) {
        timer_.stop();
        return;
    }
    timer_.start(int(std::max<int64_t>(due - nowMs(), 0)));
}

int TimerDriver::msUntilWake() const {
    return timer_.isActive() ? timer_.remainingTime() : -1;
}

int64_t TimerDriver::nowMs() const {
    return clock_.elapsed();
}

void TimerDriver::keepClock() {
    if (clock_.isValid() && g_.nowMs < nowMs())
        g_.nowMs = nowMs();
}

bool TimerDriver::eventFilter(QObject*, QEvent*) {
    keepClock();
    return false;
}

// Runs the due timers. Under a modal form this is called again from the form's own event loop,
// and the scheduler then fires the others but never the one whose handler is still running.
void TimerDriver::poll() {
    struct SleepAfter {
        TimerDriver& driver;
        ~SleepAfter() { driver.sleepUntilNextDue(); }
    } sleepAfter{*this};
    wakeFor_ = -1; // the wake has come; a form opened by a handler sets the next one
    keepClock();
    const int64_t now = g_.nowMs;
    const int64_t due = nextDueTime(g_);
    if (due < 0 || due > now)
        return;
    const bool gameTickDue = isTimerDue(g_, kTimer1, now);
    if (timerLog_)
        logTimerTicks(now);
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

// The ticks of the game and of the break swing about to fire, with how late each comes.
void TimerDriver::logTimerTicks(int64_t nowMs) {
    const double atMs = double(clock_.nsecsElapsed()) / kNanosPerMilli;
    for (TimerId id : {kTimer1, kTimer2}) {
        if (isTimerDue(g_, id, nowMs))
            std::fprintf(timerLog_, "%s %.3f %.3f\n", id == kTimer1 ? "Timer1" : "Timer2", atMs,
                         atMs - double(g_.timers[id].dueAt));
    }
    std::fflush(timerLog_);
}

// Looks every few milliseconds; a look that comes late means the event loop was held that long.
void TimerDriver::probeLoop() {
    const qint64 ns = clock_.nsecsElapsed();
    const double lateMs = double(ns - lastProbeNs_) / kNanosPerMilli - kProbeMs;
    lastProbeNs_ = ns;
    if (lateMs > kProbeSlackMs) {
        std::fprintf(timerLog_, "loop %.3f %.3f\n", double(ns) / kNanosPerMilli, lateMs);
        std::fflush(timerLog_);
    }
}

} // namespace morvane
