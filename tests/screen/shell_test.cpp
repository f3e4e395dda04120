// The program as a whole in the window: start-up to the menu, the moves between the modes through
// the widgets, Exit and the help, the pop-up menu, and the record screen and the name form after
// a game that earned a place.
#include "screen_fixture.h"

#include "records/score_text.h"
#include "rules/game_over.h"
#include "screen/forms/name_form.h"
#include "screen/forms/opening_form.h"
#include "screen/forms/record_form.h"
#include "screen/qt_startup.h"
#include "startup/form_load.h"
#include "support/temp_home.h"

#include <QKeyEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <optional>

namespace morvane::testing {
namespace {

class ShellTest : public ScreenTest {
  protected:
    std::optional<TempHome> home;
    std::unique_ptr<SingleInstanceLock> lock;
    std::unique_ptr<QtStartupPlatform> platform;
    int helpOpened = 0;

    void SetUp() override {
        home.emplace();
        ScreenTest::SetUp();
        screen->helpOpener = [this](const QUrl&, const std::function<void()>&) { ++helpOpened; };
        lock = std::make_unique<SingleInstanceLock>(home->path("test.lock"));
        platform = std::make_unique<QtStartupPlatform>(g, *window, *screen, *lock);
        ASSERT_TRUE(Form_Load(g, "", *platform));
        EXPECT_FALSE(window->isVisible()) << "hidden until the splash is over";
        OpeningForm* splash = shownSplash();
        ASSERT_NE(splash, nullptr);
        QTest::mouseClick(splash, Qt::LeftButton); // a click cuts the splash short, before its time
        ASSERT_TRUE(window->isVisible());
        QCoreApplication::processEvents();
        EXPECT_EQ(shownSplash(), nullptr);
    }

    // Solo Play from the menu, and the counters of a game that earns a row when it ends.
    void playSoloGameGoodForTheTable() {
        playSolo();
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

    MenuScreen& menu() { return *window->picMenu(); }
    bool shown(QWidget* w) { return w->isVisibleTo(window.get()); }
    // Solo Play through the menu's lit picture.
    void playSolo() {
        moveOver(menu().picture(kPicSoloPlay, 0));
        click(menu().picture(kPicSoloPlay, 1));
    }
};

// Solo Play and back by the menu label; the record screen and back by its label.
TEST_F(ShellTest, SoloPlayAndMenuAndTheRecordScreenMoveBetweenTheModes) {
    playSolo();
    EXPECT_TRUE(g.gameMode == kModeSolo && !shown(&menu()) && shown(window->lblMenu(0)));
    click(window->lblMenu(0));
    EXPECT_TRUE(g.gameMode == kModeMenu && shown(&menu()));

    moveOver(menu().picture(kPicRecord, 0));
    click(menu().picture(kPicRecord, 1));
    EXPECT_TRUE(g.gameMode == kModeRecords && shown(window->picScore()));
    click(window->picScore()->lblExitScore());
    EXPECT_TRUE(g.gameMode == kModeMenu && !shown(window->picScore()));
}

// The mouse as the window system delivers it, to whatever control stands on top at that point:
// the credit lines run across the lower part of Exit, and a click there is a click on Exit.
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
    EXPECT_EQ(0, helpOpened);

    for (QPoint at : {QPoint(150, 344), QPoint(268, 360), QPoint(454, 345), QPoint(530, 350)})
        QTest::mouseClick(screenWindow, Qt::LeftButton, {}, at);
    EXPECT_EQ(4, helpOpened);
    EXPECT_EQ(expectedQuits, quits.count());
}

// A right click opens the game's menu where it fell, on the menu screen and on the game off the
// table; on the table the right button aims instead. A person closes the pop-up with Escape and
// at once right-clicks the same spot again: the second press comes within the double-click time
// of the first, and the pop-up it opens must stay open, not read the double click as a press
// outside itself.
TEST_F(ShellTest, ThePopUpReopensAtOnceAfterEscape) {
    QWindow* screenWindow = window->windowHandle();
    QMenu* popup = window->hiddenMenu()->popup();
    int time = 100000;
    const auto rightClick = [&](QPoint at, bool thenEscape = true) {
        const QPointF global = screenWindow->mapToGlobal(QPointF(at));
        qt_handleMouseEvent(screenWindow, at, global, Qt::RightButton, Qt::RightButton,
                            QEvent::MouseButtonPress, {}, time += 40);
        qt_handleMouseEvent(screenWindow, at, global, Qt::NoButton, Qt::RightButton,
                            QEvent::MouseButtonRelease, {}, time += 40);
        QCoreApplication::processEvents();
        const bool open = popup->isVisible() && popup->geometry().topLeft() == global.toPoint();
        if (thenEscape) {
            QTest::keyClick(popup, Qt::Key_Escape);
            EXPECT_FALSE(popup->isVisible());
        }
        return open;
    };
    for (int attempt = 1; attempt <= 3; ++attempt)
        EXPECT_TRUE(rightClick(QPoint(300, 250))) << "right click " << attempt;
    EXPECT_TRUE(rightClick(QPoint(420, 40), false));
    EXPECT_TRUE(rightClick(QPoint(60, 300))) << "over the pop-up still open";

    playSolo();
    ASSERT_EQ(kModeSolo, g.gameMode);
    EXPECT_TRUE(rightClick(QPoint(100, 12))) << "on the information bar";
    EXPECT_TRUE(rightClick(QPoint(480, 350))) << "on the tray";
    EXPECT_FALSE(rightClick(QPoint(270, 150))) << "on the table the right button aims";
}

TEST_F(ShellTest, F1OpensTheHelpThoughNoMenuShows) {
    window->activateWindow();
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_EQ(1, helpOpened);
}

TEST_F(ShellTest, ASoloGameThatEarnsAPlaceOpensTheRecordScreenWithItsRowInMagenta) {
    playSoloGameGoodForTheTable();
    endGame(g);
    window->syncControlsFromState();
    ASSERT_TRUE(shown(window->picScore()));
    ASSERT_EQ(11, g.soloRecords[1].place);

    const QImage shot = window->picScore()->grab().toImage();
    // Whether the middle of a line holds magenta: a letter may reach a pixel into the next row.
    const auto magentaIn = [&](int top) {
        for (int y = top + 3; y < top + 12; ++y)
            for (int x = 0; x < 460; ++x)
                if ((shot.pixel(x, y) | 0xff000000) == qRgb(255, 0, 255))
                    return true;
        return false;
    };
    EXPECT_TRUE(magentaIn(soloRowY(1)) && !magentaIn(soloRowY(2)));
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
    EXPECT_TRUE(waited && focusInBox) << "the name form closed by itself or lost its box";
    EXPECT_EQ(QString("A"), afterBackspace);
    EXPECT_EQ("Ae                  ", g.soloRecords[1].Name);
    EXPECT_EQ(11, g.soloRecords[1].place);
}

} // namespace
} // namespace morvane::testing
