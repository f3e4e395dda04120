// The modal forms over the window: each at its size and place, with its texts and colours, closed
// by its own buttons and keys, and what each hands back to the game.
#include "screen_fixture.h"

#include "picture_names.h"
#include "rules/game_over.h"
#include "screen/forms/match_form.h"
#include "screen/forms/name_form.h"
#include "screen/forms/opening_form.h"
#include "screen/forms/record_form.h"
#include "screen/forms/result_form.h"
#include "screen/forms/version_form.h"
#include "screen/surfaces.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace morvane::testing {
namespace {

// Where a form of a size stands centred on the screen, `high` of the way down the space left.
QPoint centredOnScreen(QSize size, double high = 0.5) {
    const QSize space = QGuiApplication::primaryScreen()->geometry().size() - size;
    return {space.width() / 2, qRound(space.height() * 2 * high) / 2};
}

class EndOfGameFormsTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        window->move(40, 30);
        window->show();
    }

    // Runs `act` on the form once its event loop is running, and expects exec to return.
    template <typename Form> void whenShown(std::function<void(Form&)> act) {
        screen->onForm = [this, act](QDialog& dialog) {
            formPlace = dialog.pos();
            auto* form = dynamic_cast<Form*>(&dialog);
            ASSERT_NE(nullptr, form);
            QTimer::singleShot(0, form, [form, act] { act(*form); });
        };
    }

    QPoint centredOverWindow(QSize size) const {
        return window->geometry().topLeft() +
               QPoint((window->width() - size.width()) / 2, (window->height() - size.height()) / 2);
    }

    QPoint formPlace;
};

TEST_F(EndOfGameFormsTest, TheRecordMidGameIsABreakWithTheBallsDownSoFar) {
    for (int i = 1; i <= 9; ++i)
        g.Balls[i].onTable = i != 2 && i != 5;
    g.shotCount = 12;
    g.turnCount = 4;
    g.foulCount = 1;
    g.gameSeconds = 6000; // the minutes grow to three places
    EXPECT_EQ("Now, Break Time!", recordTitle(g));
    EXPECT_EQ("100:00", recordLines(g)[3].value);
    EXPECT_EQ("00012", recordLines(g)[0].value);

    QImage drawn;
    QPoint balls;
    whenShown<RecordForm>([&](RecordForm& form) {
        EXPECT_EQ(QString("Your Record"), form.windowTitle());
        drawn = form.surface();
        balls = form.ballsOrigin();
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showRecordForm();
    EXPECT_EQ(centredOnScreen(QSize(217, 238)), formPlace);
    // Ball 2 and then ball 5, 22 pixels apart, each opaque on the black form below the text.
    ASSERT_FALSE(drawn.isNull());
    EXPECT_TRUE(balls.x() == 10 && balls.y() > 100 && balls.y() + 20 < 238);
    const auto at = [&](int x) { return drawn.pixel(balls + QPoint(x, 10)) | 0xff000000; };
    EXPECT_EQ((std::array{restingColour(2), qRgb(0, 0, 0), restingColour(5), qRgb(0, 0, 0)}),
              (std::array{at(10), at(21), at(32), at(54)}));
}

// "GAME FINISHED!!" in Arial of 20 points is wider than the 217-pixel form: the caption shrinks
// until all of its ink lies inside the form, in either language and at either scale.
TEST_F(EndOfGameFormsTest, TheRecordsCaptionFitsTheFormAtEitherLanguageAndScale) {
    for (int i = 1; i <= 9; ++i)
        g.Balls[i].onTable = false;
    EXPECT_EQ("GAME FINISHED!!", recordTitle(g));
    for (const bool japanese : {false, true}) {
        for (const int scale : {1, 2}) {
            SCOPED_TRACE(::testing::Message() << "japanese " << japanese << ", scale " << scale);
            g.isJapanese = japanese;
            QImage balls(600 * scale, 300 * scale, QImage::Format_RGB32);
            balls.fill(Qt::black);
            balls.setDevicePixelRatio(scale);
            RecordForm form(g, balls, balls.copy(0, 0, 60 * scale, 20 * scale));
            const QRect ink =
                QFontMetrics(form.titleFont()).boundingRect(QString::fromStdString(recordTitle(g)));
            EXPECT_GE(form.titleLeft() + ink.left(), 0);
            EXPECT_LE(form.titleLeft() + ink.right(), form.width() - 1);
            EXPECT_GE(form.titleFont().pixelSize(), 20); // still a caption, not small print
        }
    }
}

// Enter, the close box and OK all hand the name over, cut or padded to twelve characters.
TEST_F(EndOfGameFormsTest, TheNameFormGreetsTakesTwelveCharactersHoweverItCloses) {
    const std::function<void(NameForm&)> closes[] = {
        [](NameForm& form) { QTest::keyClick(form.txtName(), Qt::Key_Return); },
        [](NameForm& form) { form.close(); },
        [](NameForm& form) { QTest::mouseClick(form.picOK(), Qt::LeftButton); }};
    const char* typed[] = {"Alexandrinaxyz!", "Bo", "Cy"};
    const char* names[] = {"Alexandrinax", "Bo          ", "Cy          "};
    const char* greetings[] = {"Perfect Game !", "Good Game !", "Good Game !"};
    for (int i = 0; i < 3; ++i) {
        g.turnCount = i == 0 ? 1 : 2;
        QString greeting;
        whenShown<NameForm>([&](NameForm& form) {
            greeting = form.lblMsg()->text();
            EXPECT_TRUE(form.txtName()->text().isEmpty());
            QTest::keyClicks(form.txtName(), typed[i]);
            closes[i](form);
        });
        screen->showInputBox();
        EXPECT_EQ(QString(greetings[i]), greeting);
        EXPECT_EQ(names[i], g.players[0].name);
    }
    EXPECT_EQ(centredOverWindow(QSize(279, 154)), formPlace);
}

TEST_F(EndOfGameFormsTest, TheMatchFormsOkTakesTheEditedNamesAndTheLengthAndEscapeNeither) {
    g.gameMode = kModeVersus;
    g.versusCpu = false;
    g.players[0] = {"You         ", false, 2};
    g.players[1] = {"Player2     ", true, 1};
    g.matchTarget = 1;
    QStringList captions;
    whenShown<MatchForm>([&](MatchForm& form) {
        QLineEdit* first = form.txtPlayerName(0);
        captions << (form.focusWidget() == first ? first->selectedText() : "");
        // Two steps an arrow, between 1 and 15.
        form.VScroll1()->upArrow()->click();
        form.VScroll1()->downArrow()->click();
        captions << form.lblXwins()->text();
        for (int i = 0; i < 10; ++i)
            form.VScroll1()->upArrow()->click();
        captions << form.lblXwins()->text();
        form.VScroll1()->downArrow()->click();
        first->clear();
        QTest::keyClicks(first, "Maximiliano Rex");
        form.txtPlayerName(1)->setText("Ann");
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showChangeVsMode();
    EXPECT_EQ((QStringList{"You", "1 Win Match", "15Wins Match"}), captions);
    EXPECT_TRUE(g.gameMode == kModeVersus && g.matchTarget == 13 && g.players[0].hasBreak);
    EXPECT_EQ("Maximiliano ", g.players[0].name);
    EXPECT_EQ("Ann", g.players[1].name);
    EXPECT_EQ(0, g.players[0].gamesWon + g.players[1].gamesWon);

    // Escape starts the match at the length shown and with the names as they stood.
    g.matchTarget = 3;
    whenShown<MatchForm>([](MatchForm& form) {
        form.VScroll1()->upArrow()->click();
        form.txtPlayerName(0)->setText("Nobody");
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    screen->showChangeVsMode();
    EXPECT_TRUE(g.gameMode == kModeVersus && g.matchTarget == 5);
    EXPECT_EQ("Maximiliano ", g.players[0].name);
}

TEST_F(EndOfGameFormsTest, TheResultPutsTheSideThatReachedTheTargetInMagenta) {
    g.matchTarget = 3;
    g.players[0] = {"You", false, 1};
    g.players[1] = {"zeph", true, 3};
    QStringList texts; // each label's text and colour
    const auto read = [&](ResultForm& form) {
        texts.clear();
        for (QLabel* label : {form.lblWinner(), form.lblPlayerName(0), form.lblWins(0),
                              form.lblPlayerName(1), form.lblWins(1)})
            texts << label->text() + label->palette().color(QPalette::WindowText).name();
    };
    whenShown<ResultForm>([&](ResultForm& form) {
        read(form);
        QTest::keyClick(&form, Qt::Key_X); // any key is OK
    });
    screen->showVsResult();
    EXPECT_EQ((QStringList{"zeph defeated You#ff00ff", "You         #00ff00", " 1#00ff00",
                           "zeph        #ff00ff", " 3#ff00ff"}),
              texts);
    EXPECT_EQ(centredOverWindow(QSize(299, 176)), formPlace);

    // Between games nobody is in magenta; in the middle of one it is a break.
    g.players[1].gamesWon = 1;
    g.Balls[9].onTable = false;
    EXPECT_EQ("zeph got this game.", resultHeadline(g).text);
    g.Balls[9].onTable = true;
    whenShown<ResultForm>([&](ResultForm& form) {
        read(form);
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showVsResult();
    EXPECT_EQ(QString("Now, Break Time!#00ff00"), texts[0]);
    EXPECT_EQ(5, texts.filter("#00ff00").size()) << "nobody in magenta";
}

// A match to three through its forms: each game won is credited to the side at the table, and
// only the third ends the match, the next one starting from nothing.
TEST_F(EndOfGameFormsTest, AMatchEndsWhenASideReachesItsTargetAndNotBefore) {
    g.gameMode = kModeVersus;
    g.versusCpu = false;
    g.players[0] = {"Ann", true, 0};
    g.players[1] = {"Bo", false, 0};
    for (int won : {1, 2, 0}) {
        g.turnCount = 0; // Ann's turn
        endGame(g);
        EXPECT_EQ(won, g.players[0].gamesWon);
        EXPECT_EQ(kModeVersus, g.gameMode);
    }
}

TEST_F(EndOfGameFormsTest, TheSplashGoesOnItsSixthTick) {
    int mainShown = 0;
    OpeningForm splash(g, [&] { ++mainShown; });
    splash.show();
    EXPECT_EQ(centredOnScreen(QSize(229, 168)), splash.pos());
    EXPECT_EQ(1000, splash.Timer1()->interval());
    for (int tick = 1; tick <= 6; ++tick) {
        EXPECT_TRUE(splash.isVisible() && splash.Timer1()->isActive() && mainShown == 0);
        splash.Timer1_Timer();
    }
    EXPECT_FALSE(splash.isVisible() || splash.Timer1()->isActive());
    EXPECT_EQ(1, mainShown);
}

// High on the screen, the version form states the master; zeph's face blinks twice on a click,
// and a click midway changes nothing.
TEST_F(EndOfGameFormsTest, TheVersionFormStatesTheMasterAndZephBlinksTwice) {
    EXPECT_EQ(" Ver.3.02\n zeph's Level is 10.", versionCaption(10));
    g.zephLevel = 11;
    QString caption;
    whenShown<VersionForm>([&](VersionForm& shown) {
        caption = shown.Label1()->text();
        shown.Command1()->click();
    });
    screen->showVersion();
    EXPECT_EQ(QString(" Ver.3.02\n zeph is a Master!"), caption);
    EXPECT_EQ(centredOnScreen(QSize(332, 127), 0.2), formPlace);

    VersionForm form(g, window.get());
    form.show();
    const QImage frames = QImage(pictures::kZephFrames).convertToFormat(QImage::Format_RGB32);
    auto frame = [&](int n) { return frames.copy(32 * n, 0, 32, 32); };
    EXPECT_EQ(50, form.Timer1()->interval());
    QTest::mouseClick(form.picZeph(), Qt::LeftButton);
    // Closing over frames 0 to 4, opening 4 to 0, twice, then frame 0 again and the timer off.
    const int expected[21] = {0, 1, 2, 3, 4, 4, 3, 2, 1, 0, 0, 1, 2, 3, 4, 4, 3, 2, 1, 0, 0};
    for (int c = 0; c < 21; ++c) {
        EXPECT_TRUE(form.Timer1()->isActive()) << c;
        form.Timer1_Timer();
        EXPECT_EQ(frame(expected[c]), form.face().convertToFormat(QImage::Format_RGB32)) << c;
        if (c == 6)
            QTest::mouseClick(form.picZeph(), Qt::LeftButton);
    }
    EXPECT_FALSE(form.Timer1()->isActive());
    EXPECT_NE(frame(0), frame(4));
}

} // namespace
} // namespace morvane::testing
