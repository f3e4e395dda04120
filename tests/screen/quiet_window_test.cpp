// The window does no work while nothing it shows changes: the timer driver sleeps while the break
// swing rests, and the table view repaints only what moved by a pixel or more, at most once a
// frame.
#include "screen_fixture.h"

#include "game/timers.h"
#include "screen/timer_driver.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>

namespace morvane::testing {
namespace {

// Counts the paint events a widget gets.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    int paints = 0;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

class QuietWindowTest : public ScreenTest {
  protected:
    // Runs `handler` as the event loop would run a click's, then the loop until it is about to
    // wait, the driver having set its wake first, and gives how far off that wake is.
    int wakeWhenIdle(
        TimerDriver& driver, const std::function<void()>& handler = [] {}) {
        QEventLoop loop;
        int wake = -2;
        QTimer::singleShot(0, &loop, [&] {
            handler();
            QObject::connect(QAbstractEventDispatcher::instance(),
                             &QAbstractEventDispatcher::aboutToBlock, &loop, [&] {
                                 wake = driver.msUntilWake();
                                 loop.quit();
                             });
        });
        loop.exec();
        return wake;
    }

    void settle() {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
};

TEST_F(QuietWindowTest, UnderTheMenuOrMinimisedTheRestingSwingWakesNobody) {
    setTimerEnabled(g, kTimDemo, true);
    setTimerEnabled(g, kTimer2, true);
    g.controls.menuVisible = true;
    TimerDriver driver(g, nullptr, nullptr);
    driver.start();
    EXPECT_GT(wakeWhenIdle(driver), 900);
    // Solo Play takes the menu away: the swing goes on at once.
    EXPECT_LE(wakeWhenIdle(driver, [&] { g.controls.menuVisible = false; }), 10);
    // Down in the task bar it rests again, and brought back it swings at once.
    window->show();
    EXPECT_GT(wakeWhenIdle(driver, [&] { window->showMinimized(); }), 900);
    EXPECT_LE(wakeWhenIdle(driver, [&] { window->showNormal(); }), 10);
    window->hide();
}

TEST_F(QuietWindowTest, TheSwingDrawsItsMarkerAtMostOnceAFrame) {
    window->show();
    window->syncControlsFromState();
    settle();
    PaintCounter view(window->picPool());
    PaintCounter whole(window.get());
    setTimerEnabled(g, kTimer2, true);
    const auto tick = [&](float top) {
        g.nowMs += 10;
        g.controls.target = {300, top, true};
        window->syncControlsFromState();
        settle();
    };
    for (int i = 0; i < 10; ++i)
        tick(100.0f + 2 * float(i));
    EXPECT_EQ(view.paints, 5) << "ten ticks of 10 ms, a frame every 16 ms or more";

    // The mouse moves the cue ball between two frames: it shows at once.
    view.paints = 0;
    g.controls.qBall = {100, 100, true};
    tick(130);
    EXPECT_EQ(view.paints, 1);
    // The shot stops the swing: its last place shows, though a frame hasn't passed. Then a move of
    // less than half a pixel shows nothing and paints nothing.
    view.paints = 0;
    setTimerEnabled(g, kTimer2, false);
    tick(140);
    tick(140.4f);
    EXPECT_EQ(view.paints, 1);
    EXPECT_EQ(whole.paints, 0) << "the view alone paints";
    window->hide();
}

} // namespace
} // namespace morvane::testing
