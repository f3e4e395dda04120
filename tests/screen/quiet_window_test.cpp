// The window does no work while nothing it shows changes: the timer driver sleeps while the break
// swing rests, and the table view repaints only what moved by a pixel or more.
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
    // Solo Play takes the menu away: the swing goes on within a frame.
    EXPECT_LE(wakeWhenIdle(driver, [&] { g.controls.menuVisible = false; }), 20);
    // Down in the task bar it rests again, and brought back it swings within a frame.
    window->show();
    EXPECT_GT(wakeWhenIdle(driver, [&] { window->showMinimized(); }), 900);
    EXPECT_LE(wakeWhenIdle(driver, [&] { window->showNormal(); }), 20);
    window->hide();
}

TEST_F(QuietWindowTest, NothingChangedRepaintsNothingAndAMarkerMovedByAPixelIsDrawnThere) {
    screen->drawTable();
    window->show();
    g.controls.target = {300, 100, true};
    window->syncControlsFromState();
    settle();
    PaintCounter view(window->picPool());
    PaintCounter whole(window.get());
    window->syncControlsFromState(); // as after a tick of the idle count
    // The swing moves the marker by less than half a pixel: nothing shows, nothing paints.
    g.controls.target.top = 100.4f;
    window->syncControlsFromState();
    settle();
    EXPECT_EQ(view.paints, 0);
    // A pixel or more shows, and the view alone paints it.
    g.controls.target = {300.4f, 102.6f, true}; // drawn from (300, 103)
    window->syncControlsFromState();
    settle();
    EXPECT_TRUE(view.paints == 1 && whole.paints == 0);
    const QImage shown = window->picPool()->grab().toImage();
    EXPECT_EQ(qRgb(0, 255, 255), shown.pixel(300, 113) | 0xff000000);
    EXPECT_EQ(kCloth, shown.pixel(300, 101) | 0xff000000);
    window->hide();
}

} // namespace
} // namespace morvane::testing
