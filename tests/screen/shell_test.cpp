// The program as a whole in the window: start-up to the menu, the menu screen's pictures and
// switches, the moves between the modes through the widgets, the demo on its timer, and the
// record screen after a game that earned a place.
#include "screen_fixture.h"

#include "cpu/cpu_think.h"
#include "cpu/cue_ball_placement.h"
#include "game/table_queries.h"
#include "game/timers.h"
#include "records/score_text.h"
#include "rules/game_over.h"
#include "rules/scenes.h"
#include "screen/forms/match_form.h"
#include "screen/forms/name_form.h"
#include "screen/forms/opening_form.h"
#include "screen/forms/record_form.h"
#include "screen/forms/result_form.h"
#include "screen/qt_startup.h"
#include "startup/form_load.h"
#include "support/temp_home.h"

#include <QKeyEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <optional>

namespace morvane::testing {
namespace {

class HelpCountingScreen : public QtScreen {
  public:
    using QtScreen::QtScreen;
    int helpOpened = 0;
    void openHelp() override { ++helpOpened; }
};

class ShellTest : public ScreenTest {
  protected:
    std::optional<TempHome> home;
    std::unique_ptr<SingleInstanceLock> lock;
    std::unique_ptr<QtStartupPlatform> platform;
    HelpCountingScreen* helpScreen = nullptr;

    std::unique_ptr<QtScreen> makeScreen() override {
        auto made = std::make_unique<HelpCountingScreen>(g, plainSheet(),
                                                         plainPicture(45, 45, qRgb(200, 200, 200)),
                                                         plainPicture(66, 34, qRgb(0, 0, 255)));
        helpScreen = made.get();
        return made;
    }

    void SetUp() override {
        home.emplace();
        ScreenTest::SetUp();
        lock = std::make_unique<SingleInstanceLock>(home->path("test.lock"));
        platform = std::make_unique<QtStartupPlatform>(g, *window, *screen, *lock);
        ASSERT_TRUE(Form_Load(g, "", *platform));
        EXPECT_FALSE(window->isVisible()) << "hidden until the splash is over";
        OpeningForm* splash = shownSplash();
        ASSERT_NE(splash, nullptr);
        QTest::mouseClick(splash, Qt::LeftButton); // a click cuts the splash short
        ASSERT_TRUE(window->isVisible());
        QCoreApplication::processEvents();
        EXPECT_EQ(shownSplash(), nullptr);
    }

    // Solo Play from the menu, and the counters of a game that earns a row when it ends.
    void playSoloGameGoodForTheTable() {
        moveOver(menu().picture(kPicSoloPlay, 0));
        click(menu().picture(kPicSoloPlay, 1));
        g.turnCount = 2;
        g.shotCount = 12;
        g.gameSeconds = 95;
    }

    static OpeningForm* shownSplash() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* splash = qobject_cast<OpeningForm*>(w); splash && splash->isVisible())
                return splash;
        }
        return nullptr;
    }

    void TearDown() override {
        window.reset();
        home.reset();
    }

    void moveOver(QWidget* w, QPoint at = {3, 3}) {
        QMouseEvent move(QEvent::MouseMove, QPointF(at), w->mapToGlobal(QPointF(at)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(w, &move);
    }

    void click(QWidget* w, QPoint at = {3, 3}) { QTest::mouseClick(w, Qt::LeftButton, {}, at); }

    // Virtual time, then the controls brought into line as the timer driver does.
    void advanceSeconds(int seconds) {
        advanceVirtualTime(g, g.nowMs + 1000 * int64_t(seconds));
        window->syncControlsFromState();
    }

    MenuScreen& menu() { return *window->picMenu(); }
    bool shown(QWidget* w) { return w->isVisibleTo(window.get()); }
    std::array<bool, 3> labelsShown() {
        return {shown(window->lblMenu(0)), shown(window->lblMenu(1)), shown(window->lblMenu(2))};
    }
};

TEST_F(ShellTest, StartUpEndsOnTheMenuScreenWithTheSwitchesAsStored) {
    EXPECT_EQ(kModeMenu, g.gameMode);
    EXPECT_TRUE(shown(&menu()));
    EXPECT_TRUE(menu().geometry().contains(window->rect())) << "the menu covers the window";
    EXPECT_FALSE(shown(window->picScore()));
    EXPECT_EQ((std::array<bool, 3>{false, false, false}), labelsShown());
    EXPECT_TRUE(shown(menu().switchPicture(kSwitchSound, 0)));
    EXPECT_FALSE(shown(menu().switchPicture(kSwitchSound, 1)));
    EXPECT_EQ(QString("MORVANE Ver.3.02"), window->windowTitle());
    EXPECT_TRUE(window->hiddenMenu()->mnuSound->isChecked());
}

TEST_F(ShellTest, TheWordPicturesLightUnderTheMouseUntilItCrossesTheMenu) {
    HoverPicture* solo0 = menu().picture(kPicSoloPlay, 0);
    HoverPicture* solo1 = menu().picture(kPicSoloPlay, 1);
    EXPECT_FALSE(shown(solo1));
    moveOver(solo0);
    EXPECT_TRUE(shown(solo1));
    EXPECT_FALSE(shown(solo0)) << "Solo Play hides its resting picture";
    EXPECT_EQ(QString("独り撞きモード"), solo1->toolTip());
    EXPECT_TRUE(solo0->toolTip().isEmpty());

    moveOver(menu().picture(kPicRecord, 0));
    EXPECT_FALSE(shown(solo1));
    EXPECT_TRUE(shown(solo0));
    EXPECT_TRUE(shown(menu().picture(kPicRecord, 1)));
    EXPECT_TRUE(shown(menu().picture(kPicRecord, 0))) << "Record leaves its own under the lit one";
    moveOver(menu().picture(kPicRecord, 1));
    EXPECT_TRUE(g.controls.menuPicLit[kPicRecord]);

    moveOver(menu().lblHelp());
    EXPECT_TRUE(menu().lblHelp()->styleSheet().contains("#ff00ff"));
    g.gameMode = kModeRecords;
    moveOver(&menu(), {200, 300});
    EXPECT_EQ((std::array<bool, 5>{}), g.controls.menuPicLit);
    EXPECT_FALSE(shown(menu().picture(kPicRecord, 1)));
    EXPECT_TRUE(menu().lblHelp()->styleSheet().contains("#800080"));
    EXPECT_EQ(kModeMenu, g.gameMode);
}

TEST_F(ShellTest, TheWordPicturesLieAboveTheCreditLinesThatCrossThem) {
    // The credit lines run across the lower part of Exit: a click there is a click on Exit.
    for (QPoint inExit : {QPoint(491, 331), QPoint(491, 350), QPoint(470, 362)})
        EXPECT_EQ(menu().picture(kPicExit, 0), menu().childAt(inExit)) << inExit.y();
    EXPECT_EQ(menu().lblCopyright(0), menu().childAt(QPoint(270, 340)));
}

TEST_F(ShellTest, TheSwitchesTurnOffAndOnAndWriteTheirKeys) {
    click(menu().switchPicture(kSwitchSound, 0));
    EXPECT_EQ(0, g.soundOn);
    EXPECT_TRUE(shown(menu().switchPicture(kSwitchSound, 1)));
    EXPECT_FALSE(shown(menu().switchPicture(kSwitchSound, 0)));
    EXPECT_NE(std::string::npos, home->readFile("MORVANE.INI").find("SOUND= 0"));
    click(menu().switchPicture(kSwitchSound, 1));
    EXPECT_EQ(1, g.soundOn);
    click(menu().switchPicture(kSwitchBgm, 0));
    EXPECT_FALSE(isTimerEnabled(g, kTimBGM));
    EXPECT_NE(std::string::npos, home->readFile("MORVANE.INI").find("BGM= 0"));
}

TEST_F(ShellTest, SoloPlayAndMenuAndTheRecordScreenMoveBetweenTheModes) {
    moveOver(menu().picture(kPicSoloPlay, 0));
    click(menu().picture(kPicSoloPlay, 1));
    EXPECT_EQ(kModeSolo, g.gameMode);
    EXPECT_FALSE(shown(&menu()));
    EXPECT_EQ((std::array<bool, 3>{true, true, true}), labelsShown());
    EXPECT_EQ(kSceneSolo, g.bgmScene);

    click(window->lblMenu(0));
    EXPECT_EQ(kModeMenu, g.gameMode);
    EXPECT_TRUE(shown(&menu()));
    EXPECT_EQ(kSceneMenu, g.bgmScene);

    moveOver(menu().picture(kPicRecord, 0));
    click(menu().picture(kPicRecord, 1));
    EXPECT_EQ(kModeRecords, g.gameMode);
    EXPECT_TRUE(shown(window->picScore()));
    EXPECT_EQ(kSceneRecords, g.bgmScene);
    click(window->picScore()->lblExitScore());
    EXPECT_EQ(kModeMenu, g.gameMode);
    EXPECT_FALSE(shown(window->picScore()));

    click(menu().picture(kPicRecord, 1));
    click(window->picScore(), {200, 200});
    EXPECT_FALSE(shown(window->picScore()));
    EXPECT_EQ(kModeRecords, g.gameMode) << "until the mouse crosses the menu";
    EXPECT_EQ(kSceneMenu, g.bgmScene);
}

// The mouse as the window system delivers it: to whatever control stands on top at that point.
TEST_F(ShellTest, TheWholeExitPictureLightsAndQuitsAndTheCreditLinesAroundItOpenTheHelp) {
    QWindow* screenWindow = window->windowHandle();
    ASSERT_NE(screenWindow, nullptr);
    QSignalSpy quits(window.get(), &MainWindow::exitRequested);
    // Its top row, its middle on the first credit line, its foot on the second.
    const std::array<QPoint, 4> onExit{QPoint(458, 329), QPoint(491, 344), QPoint(462, 360),
                                       QPoint(524, 366)};
    int expectedQuits = 0;
    for (QPoint at : onExit) {
        QTest::mouseMove(screenWindow, QPoint(300, 250));
        QTest::mouseMove(screenWindow, at);
        EXPECT_TRUE(g.controls.menuPicLit[kPicExit]) << "lit at " << at.x() << ", " << at.y();
        QTest::mouseClick(screenWindow, Qt::LeftButton, {}, at);
        EXPECT_EQ(++expectedQuits, quits.count()) << "quit at " << at.x() << ", " << at.y();
    }
    EXPECT_EQ(0, helpScreen->helpOpened);

    for (QPoint at : {QPoint(150, 344), QPoint(268, 360), QPoint(454, 345), QPoint(530, 350)})
        QTest::mouseClick(screenWindow, Qt::LeftButton, {}, at);
    EXPECT_EQ(4, helpScreen->helpOpened);
    EXPECT_EQ(expectedQuits, quits.count());
}

// Right clicks one after another, some while the pop-up is still open: each opens it where it
// fell, on the menu and on the game off the table; on the table the right button aims instead.
TEST_F(ShellTest, EveryRightClickOffTheTableOpensTheGamesMenuWhereItFell) {
    QWindow* screenWindow = window->windowHandle();
    QMenu* popup = window->hiddenMenu()->popup();
    // A menu that holds the caller until it closes would hold this test: close it after a while.
    bool heldTheCaller = false;
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, [&] {
        heldTheCaller = true;
        popup->close();
    });
    const auto rightClickAt = [&](QPoint at) {
        watchdog.start(2000);
        QTest::mouseClick(screenWindow, Qt::RightButton, {}, at);
        QCoreApplication::processEvents();
        const bool open = !heldTheCaller && popup->isVisible() &&
                          popup->geometry().topLeft() == screenWindow->mapToGlobal(at);
        watchdog.stop();
        return open;
    };
    for (QPoint at : {QPoint(100, 250), QPoint(300, 200), QPoint(60, 300), QPoint(420, 40)})
        EXPECT_TRUE(rightClickAt(at)) << "on the menu at " << at.x() << ", " << at.y();
    QTest::keyClick(popup, Qt::Key_Escape);
    EXPECT_FALSE(popup->isVisible());

    moveOver(menu().picture(kPicSoloPlay, 0));
    click(menu().picture(kPicSoloPlay, 1));
    ASSERT_EQ(kModeSolo, g.gameMode);
    EXPECT_TRUE(rightClickAt(QPoint(100, 12))) << "on the information bar";
    EXPECT_TRUE(rightClickAt(QPoint(480, 350))) << "on the tray";
    QTest::mouseClick(screenWindow, Qt::RightButton, {}, QPoint(270, 150));
    QCoreApplication::processEvents();
    EXPECT_FALSE(popup->isVisible()) << "a right click on the table only closes it";
    EXPECT_FALSE(rightClickAt(QPoint(270, 150))) << "on the table the right button aims";
}

// A person closes the pop-up with Escape and at once right-clicks the same spot again: the
// second press comes within the double-click time of the first, and the pop-up it opens must
// stay open, not read the double click as a press outside itself.
TEST_F(ShellTest, ThePopUpReopensAtOnceAfterEscape) {
    QWindow* screenWindow = window->windowHandle();
    QMenu* popup = window->hiddenMenu()->popup();
    const QPoint at(300, 250);
    const QPointF global = screenWindow->mapToGlobal(QPointF(at));
    int time = 100000;
    const auto rightClick = [&] {
        qt_handleMouseEvent(screenWindow, at, global, Qt::RightButton, Qt::RightButton,
                            QEvent::MouseButtonPress, {}, time += 40);
        qt_handleMouseEvent(screenWindow, at, global, Qt::NoButton, Qt::RightButton,
                            QEvent::MouseButtonRelease, {}, time += 40);
        QCoreApplication::processEvents();
    };
    for (int attempt = 1; attempt <= 3; ++attempt) {
        rightClick();
        ASSERT_TRUE(popup->isVisible()) << "right click " << attempt;
        QTest::keyClick(popup, Qt::Key_Escape);
        ASSERT_FALSE(popup->isVisible());
    }
}

TEST_F(ShellTest, F2StartsAGameAndF1OpensTheHelpThoughNoMenuShows) {
    window->activateWindow();
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_EQ(1, helpScreen->helpOpened);
    click(menu().lblHelp());
    click(menu().lblCopyright(1));
    EXPECT_EQ(3, helpScreen->helpOpened);
    g.breakPending = false;
    QTest::keyClick(window.get(), Qt::Key_F2);
    EXPECT_TRUE(g.breakPending) << "mnuStart racked a new game";
}

TEST_F(ShellTest, TheDemoStartsOnThe31stTickAndAClickOnTheTableEndsItWhileBallsRoll) {
    advanceSeconds(30);
    EXPECT_EQ(kModeMenu, g.gameMode);
    advanceSeconds(1);
    EXPECT_EQ(kModeDemo, g.gameMode);
    EXPECT_FALSE(shown(&menu()));
    EXPECT_EQ((std::array<bool, 3>{false, false, false}), labelsShown());
    EXPECT_EQ(QString("DEMO"), window->cmdShot()->text());

    ASSERT_TRUE(advanceUntil(g, g.nowMs + 60000, [&] { return isTimerEnabled(g, kTimer1); }))
        << "zeph breaks";
    window->syncControlsFromState();
    click(window->picPool(), {270, 150});
    EXPECT_EQ(kModeMenu, g.gameMode);
    EXPECT_FALSE(isTimerEnabled(g, kTimer1));
    EXPECT_FALSE(isTimerEnabled(g, kTimCom));
    EXPECT_TRUE(shown(&menu()));
}

TEST_F(ShellTest, ASoloGameThatEarnsAPlaceOpensTheRecordScreenWithItsRowInMagenta) {
    playSoloGameGoodForTheTable();
    endGame(g);
    window->syncControlsFromState();
    ASSERT_TRUE(shown(window->picScore()));
    EXPECT_EQ(11, g.soloRecords[1].place);

    const QImage shot = window->picScore()->grab().toImage();
    const auto hasColour = [&](int top, int bottom, QRgb colour) {
        for (int y = top; y < bottom; ++y)
            for (int x = 0; x < 460; ++x)
                if ((shot.pixel(x, y) | 0xff000000) == colour)
                    return true;
        return false;
    };
    constexpr QRgb magenta = qRgb(255, 0, 255);
    constexpr QRgb green = qRgb(0, 255, 0);
    // The middle of each line: a letter may reach a pixel into the next row.
    const auto rowHas = [&](int y, QRgb colour) { return hasColour(y + 3, y + 12, colour); };
    EXPECT_TRUE(rowHas(soloRowY(1), magenta));
    EXPECT_FALSE(rowHas(soloRowY(1), green));
    for (int row = 2; row <= 10; ++row) {
        EXPECT_FALSE(rowHas(soloRowY(row), magenta)) << "solo row " << row;
        EXPECT_TRUE(rowHas(soloRowY(row), green)) << "solo row " << row;
        EXPECT_FALSE(rowHas(vsCpuRowY(row), magenta)) << "match row " << row;
    }
    EXPECT_TRUE(rowHas(vsCpuTitleY(), green)) << "the lower title after a green row";

    click(window->picScore(), {200, 200});
    EXPECT_FALSE(shown(window->picScore()));
    EXPECT_EQ(kModeSolo, g.gameMode) << "the fresh table behind it shows again";
}

// The X server repeats a held key as a release and a press that share one time stamp, to the
// window that has the focus; Qt flags some of them as repeats and not others.
void repeatHeldKey(QWidget* receiver, Qt::Key key, quint64 stamp) {
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    release.setTimestamp(stamp);
    QApplication::sendEvent(receiver, &release);
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    press.setTimestamp(stamp);
    QApplication::sendEvent(receiver, &press);
    qt_handleKeyEvent(receiver->window()->windowHandle(), QEvent::KeyPress, key, Qt::NoModifier,
                      QString(), true);
}

// "Your Record" closed by Escape held a little too long, or by a click whose release reaches the
// form after it: the name form that follows waits, its focus in the box, for the typed name.
TEST_F(ShellTest, TheNameFormAfterTheRecordFormWaitsForTheNameHoweverTheRecordFormClosed) {
    playSoloGameGoodForTheTable();
    bool waited = false;
    bool focusInBox = false;
    QString afterBackspace;
    screen->onForm = [&](QDialog& form) {
        if (auto* record = qobject_cast<RecordForm*>(&form)) {
            QTimer::singleShot(
                0, record, [record] { QTest::keyPress(record->windowHandle(), Qt::Key_Escape); });
            return;
        }
        auto* name = qobject_cast<NameForm*>(&form);
        ASSERT_NE(name, nullptr);
        QTimer::singleShot(0, name, [&, name] {
            for (quint64 stamp : {700u, 740u, 780u})
                repeatHeldKey(name->focusWidget(), Qt::Key_Escape, stamp);
            QTest::keyRelease(name->windowHandle(), Qt::Key_Escape);
            QTest::mouseRelease(name->picOK(), Qt::LeftButton); // its press was on "Your Record"
            waited = name->isVisible();
            focusInBox = name->focusWidget() == name->txtName();
            if (!waited)
                return;
            QTest::keyClicks(name->txtName(), "Annx");
            // A key pressed in the form repeats as ever.
            QTest::keyPress(name->windowHandle(), Qt::Key_Backspace);
            repeatHeldKey(name->txtName(), Qt::Key_Backspace, 900);
            afterBackspace = name->txtName()->text();
            QTest::keyClicks(name->txtName(), "e");
            QTest::keyClick(name->windowHandle(), Qt::Key_Return);
        });
    };
    endGame(g);
    EXPECT_TRUE(waited) << "the name form closed by itself";
    EXPECT_TRUE(focusInBox);
    EXPECT_EQ(QString("A"), afterBackspace);
    EXPECT_EQ("Ae                  ", g.soloRecords[1].Name);
    EXPECT_EQ(11, g.soloRecords[1].place);
}

// A whole match against zeph at level 1, the person's shots chosen by zeph's own logic at level 1
// and fired through the shot button, every form answered through its own controls.
TEST_F(ShellTest, AMatchAgainstZephPlayedThroughTheWindowEndsAndTheNextMatchBegins) {
    std::vector<std::pair<int, int>> scores; // games won after each game, as the result form shows
    screen->onForm = [this, &scores](QDialog& form) {
        if (auto* setUp = qobject_cast<MatchForm*>(&form)) {
            QTimer::singleShot(0, setUp,
                               [setUp] { QTest::mouseClick(setUp->picOK(), Qt::LeftButton); });
            return;
        }
        if (qobject_cast<ResultForm*>(&form))
            scores.emplace_back(g.players[0].gamesWon, g.players[1].gamesWon);
        QTimer::singleShot(0, &form, &QDialog::accept);
    };
    moveOver(menu().picture(kPicVsCpu, 0));
    click(menu().picture(kPicVsCpu, 1));
    ASSERT_EQ(kModeVersus, g.gameMode);
    ASSERT_EQ(1, g.zephLevel);

    const auto personToShoot = [this] {
        return !isTimerEnabled(g, kTimer1) && !isTimerEnabled(g, kTimCom) &&
               g.controls.shotEnabled && getShooterIndex(g, g.turnCount) == 0;
    };
    const auto matchDecided = [&scores, this] {
        return !scores.empty() &&
               std::max(scores.back().first, scores.back().second) >= g.matchTarget;
    };
    int personShots = 0;
    int allShots = 0; // the person's shots start rolling before the timers run: not counted here
    const int64_t start = g.nowMs;
    while (!matchDecided() && g.nowMs - start < 4 * 3600 * 1000) {
        if (personToShoot()) {
            if (!g.breakPending) {
                placeCueBall(g);
                cpuThink(g);
            }
            window->syncControlsFromState();
            QTest::mouseClick(window->cmdShot(), Qt::LeftButton);
            ASSERT_TRUE(isTimerEnabled(g, kTimer1)) << "the shot button fired the shot";
            ++personShots;
        }
        const bool rollingBefore = isTimerEnabled(g, kTimer1);
        runDueTimers(g, nextDueTime(g));
        window->syncControlsFromState();
        if (!rollingBefore && isTimerEnabled(g, kTimer1))
            ++allShots;
    }
    ASSERT_TRUE(matchDecided()) << "the match never ended";
    const bool personWon = scores.back().first >= 3;
    std::printf("match against zeph at level 1: %d - %d after %zu games, %d shots of the person, "
                "%d of zeph, %.1f simulated minutes\n",
                scores.back().first, scores.back().second, scores.size(), personShots, allShots,
                double(g.nowMs - start) / 60000.0);
    EXPECT_EQ(personWon ? 1 : 0, g.zephProgress);
    EXPECT_EQ(kModeVersus, g.gameMode) << "the next match follows at once";
    EXPECT_EQ(0, g.players[0].gamesWon);
    EXPECT_EQ(0, g.players[1].gamesWon);
    EXPECT_TRUE(g.players[0].hasBreak);
    EXPECT_EQ(QString("Your Shot"), window->cmdShot()->text());
}

} // namespace
} // namespace morvane::testing
