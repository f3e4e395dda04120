// The game: the window, the timers, and a solo game ready for the break.
#include "cpu/pocket_table.h"
#include "rules/modes.h"
#include "screen/main_window.h"
#include "screen/pictures.h"
#include "screen/qt_screen.h"
#include "screen/timer_driver.h"
#include "startup/scheduler.h"
#include "table/rack.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QScreen>
#include <chrono>
#include <memory>

using namespace morvane;

namespace {

constexpr const char* kVersion = "3.02";

void centreOnScreen(QWidget& window) {
    const QRect screen = window.screen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    window.move(screen.left() + (screen.width() - frame.width()) / 2,
                screen.top() + (screen.height() - frame.height()) / 2);
}

uint64_t clockSeed() {
    return uint64_t(std::chrono::steady_clock::now().time_since_epoch().count());
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    auto g = std::make_unique<GameState>();
    SeededRandom random(clockSeed());
    g->ports.random = &random;

    QtScreen screen(*g, tablePicture(), cueBallPicture(), okPicture());
    g->ports.screen = &screen;
    initTimers(*g);
    initPocketTable(*g);
    g->controls.windowCaption = std::string("MORVANE Ver.") + kVersion;

    MainWindow window(*g, screen);
    window.setWindowIcon(QIcon(QPixmap::fromImage(windowIcon())));
    TimerDriver driver(
        *g, [&window] { window.syncControlsFromState(); },
        [&screen] { return screen.modalFormsShown(); });

    g->breakPending = true;
    rackBalls(*g);
    picSoloPlay_Click(*g, 0);
    window.syncControlsFromState();

    window.show();
    centreOnScreen(window);
    driver.start();
    return app.exec();
}
