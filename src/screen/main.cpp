// The game: the window, the timers, start-up in its fixed order, and the way out.
#include "game/timers.h"
#include "rules/nearly_cleared_table.h"
#include "screen/main_window.h"
#include "screen/pictures.h"
#include "screen/qt_screen.h"
#include "screen/qt_startup.h"
#include "screen/termination_signals.h"
#include "screen/timer_driver.h"
#include "sound/sdl_sound.h"
#include "startup/command_line.h"
#include "startup/form_load.h"
#include "startup/local_clock.h"
#include "startup/program_files.h"
#include "startup/single_instance.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <chrono>
#include <cstdlib>
#include <memory>

using namespace morvane;

namespace {

uint64_t clockSeed() {
    return uint64_t(std::chrono::steady_clock::now().time_since_epoch().count());
}

// For measuring the window through a whole solo game: with MORVANE_SELF_PLAY set, zeph takes the
// player's turn whenever a solo game waits for a shot and no form is open.
void letZephTakeTheSoloShot(GameState& g) {
    const bool waiting = g.gameMode == kModeSolo && !isTimerEnabled(g, kTimer1) &&
                         !isTimerEnabled(g, kTimCom) && !QApplication::activeModalWidget();
    if (waiting)
        setTimerEnabled(g, kTimCom, true);
}

// Under X11 the window's frames go to the server over its socket rather than through shared
// memory: after each shared-memory frame Qt waits on a round trip to the server, which wakes the
// program a second time for every frame of the break swing, and a window this small costs less
// to copy. Set by the player, the variable is left as it is.
void sendFramesOverTheSocket() {
    if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"))
        qputenv("QT_XCB_NO_MITSHM", "1");
}

} // namespace

int main(int argc, char* argv[]) {
    sendFramesOverTheSocket();
    // On a HiDPI screen the 540 by 378 window grows by the screen's own factor, fractions
    // included: its pictures come from the set drawn for that factor or the next one up, and are
    // smoothed down to a fraction (screen/pictures.h).
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(argc, argv);
    QApplication::setApplicationName("morvane");
    QGuiApplication::setDesktopFileName("morvane");

    auto g = std::make_unique<GameState>();
    SeededRandom random(clockSeed());
    g->ports.random = &random;
    LocalClock clock;
    g->ports.clock = &clock;

    // The sounds and tunes lie together: wherever the first effect is found.
    SdlSound sound(findDataFile("vmin.wav", gameDataFolders()).parent_path());
    g->ports.sound = &sound;

    QtScreen screen(*g, tablePicture(), cueBallPicture(), okPicture());
    g->ports.screen = &screen;
    MainWindow window(*g, screen);
    window.setWindowIcon(QIcon(QPixmap::fromImage(windowIcon())));

    SingleInstanceLock lock;
    QtStartupPlatform platform(*g, window, screen, lock);
    if (!Form_Load(*g, joinArguments(argc, argv), platform))
        return 0;
    // Exit, the close box and the session's signals all leave through Form_Unload.
    const auto unload = [&] { Form_Unload(*g, platform); };
    QObject::connect(&window, &MainWindow::exitRequested, &app, unload);
    endOnTerminationSignals(&app, unload);

    const bool selfPlay = std::getenv("MORVANE_SELF_PLAY") != nullptr;
    // For the journey test: a solo game jumps to its last ball once the break is at rest.
    const bool nearlyCleared = std::getenv("MORVANE_NEARLY_CLEARED") != nullptr;
    TimerDriver driver(
        *g,
        [&window, &g, selfPlay, nearlyCleared] {
            if (selfPlay)
                letZephTakeTheSoloShot(*g);
            if (nearlyCleared && wantsNearlyClearedTable(*g))
                clearAllButTheNine(*g);
            window.syncControlsFromState();
        },
        [&screen] { return screen.modalFormsShown(); });
    driver.start();
    return app.exec();
}
