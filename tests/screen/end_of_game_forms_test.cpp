// The modal forms over the window: each at its size and place, with its texts and colours, closed
// by its own buttons and keys, and what each hands back to the game.
#include "screen_fixture.h"

#include "picture_names.h"
#include "screen/forms/match_form.h"
#include "screen/forms/name_form.h"
#include "screen/forms/opening_form.h"
#include "screen/forms/record_form.h"
#include "screen/forms/result_form.h"
#include "screen/forms/version_form.h"
#include "screen/surfaces.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

namespace morvane::testing {
namespace {

const QColor kGreen(0, 255, 0);
const QColor kMagenta(255, 0, 255);

QColor textColour(const QLabel* label) {
    return label->palette().color(QPalette::WindowText);
}

QRect screenRect() {
    return QGuiApplication::primaryScreen()->geometry();
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
            formSize = dialog.size();
            formPlace = dialog.pos();
            auto* form = dynamic_cast<Form*>(&dialog);
            ASSERT_NE(nullptr, form);
            QTimer::singleShot(0, form, [form, act] { act(*form); });
        };
    }

    QPoint centredOverWindow() const {
        const QRect main = window->geometry();
        return {main.left() + (main.width() - formSize.width()) / 2,
                main.top() + (main.height() - formSize.height()) / 2};
    }

    QSize formSize;
    QPoint formPlace;
};

TEST_F(EndOfGameFormsTest, TheRecordMidGameIsABreakWithTheBallsDownSoFar) {
    for (int i = 1; i <= 9; ++i)
        g.Balls[i].onTable = true;
    g.Balls[2].onTable = false;
    g.Balls[5].onTable = false;
    g.shotCount = 12;
    g.turnCount = 4;
    g.foulCount = 1;
    g.gameSeconds = 75;

    EXPECT_EQ("Now, Break Time!", recordTitle(g));
    const auto lines = recordLines(g);
    EXPECT_EQ("Shots", lines[0].word);
    EXPECT_EQ("00012", lines[0].value);
    EXPECT_EQ("00004", lines[1].value);
    EXPECT_EQ("00001", lines[2].value);
    EXPECT_EQ("Time", lines[3].word);
    EXPECT_EQ("01:15", lines[3].value);
    g.gameSeconds = 6000; // the minutes grow to three places
    EXPECT_EQ("100:00", recordLines(g)[3].value);

    QImage drawn;
    QPoint balls;
    whenShown<RecordForm>([&](RecordForm& form) {
        EXPECT_EQ(QString("Your Record"), form.windowTitle());
        drawn = form.surface();
        balls = form.ballsOrigin();
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showRecordForm();
    EXPECT_EQ(QSize(217, 238), formSize);
    const QRect whole = screenRect();
    EXPECT_EQ(QPoint((whole.width() - 217) / 2, (whole.height() - 238) / 2), formPlace);

    // Ball 2 and then ball 5, 22 pixels apart, each opaque on the black form.
    ASSERT_FALSE(drawn.isNull());
    EXPECT_EQ(10, balls.x());
    const QPoint centre = balls + QPoint(10, 10);
    EXPECT_EQ(restingColour(2), drawn.pixel(centre) | 0xff000000);
    EXPECT_EQ(restingColour(5), drawn.pixel(centre + QPoint(22, 0)) | 0xff000000);
    EXPECT_EQ(qRgb(0, 0, 0), drawn.pixel(balls + QPoint(21, 10)) | 0xff000000);
    EXPECT_EQ(qRgb(0, 0, 0), drawn.pixel(centre + QPoint(44, 0)) | 0xff000000);
    // The text stands above the balls.
    EXPECT_GT(balls.y(), 100);
    EXPECT_LT(balls.y() + 20, 238);

    g.Balls[9].onTable = false;
    EXPECT_EQ("GAME FINISHED!!", recordTitle(g));
}

// "GAME FINISHED!!" in Arial of 20 points is wider than the 217-pixel form: the caption shrinks
// until all of its ink lies inside the form, in either language and at either scale.
TEST_F(EndOfGameFormsTest, TheRecordsCaptionFitsTheFormAtEitherLanguageAndScale) {
    for (int i = 1; i <= 9; ++i)
        g.Balls[i].onTable = i != 9;
    for (const bool japanese : {false, true}) {
        for (const int scale : {1, 2}) {
            SCOPED_TRACE(::testing::Message() << "japanese " << japanese << ", scale " << scale);
            g.isJapanese = japanese;
            QImage balls(600 * scale, 300 * scale, QImage::Format_RGB32);
            balls.fill(Qt::black);
            balls.setDevicePixelRatio(scale);
            RecordForm form(g, balls, balls.copy(0, 0, 60 * scale, 20 * scale));
            const QString title = QString::fromStdString(recordTitle(g));
            const QRect ink = QFontMetrics(form.titleFont()).boundingRect(title);
            EXPECT_GE(form.titleLeft() + ink.left(), 0);
            EXPECT_LE(form.titleLeft() + ink.right(), form.width() - 1);
            EXPECT_GE(form.titleFont().pixelSize(), 20); // still a caption, not small print
        }
    }
}

TEST_F(EndOfGameFormsTest, TheNameFormGreetsTakesTwelveCharactersAndClosesOnEnter) {
    g.turnCount = 1;
    QString greeting;
    whenShown<NameForm>([&](NameForm& form) {
        greeting = form.lblMsg()->text();
        EXPECT_TRUE(form.txtName()->text().isEmpty());
        QTest::keyClicks(form.txtName(), "Alexandrinaxyz!");
        QTest::keyClick(form.txtName(), Qt::Key_Return);
    });
    screen->showInputBox();
    EXPECT_EQ(QString("Perfect Game !"), greeting);
    EXPECT_EQ("Alexandrinax", g.players[0].name);
    EXPECT_EQ(QSize(279, 154), formSize);
    EXPECT_EQ(centredOverWindow(), formPlace);

    // Closed without OK, the name counts all the same, padded to twelve.
    g.turnCount = 2;
    whenShown<NameForm>([&](NameForm& form) {
        greeting = form.lblMsg()->text();
        QTest::keyClicks(form.txtName(), "Bo");
        form.close();
    });
    screen->showInputBox();
    EXPECT_EQ(QString("Good Game !"), greeting);
    EXPECT_EQ("Bo          ", g.players[0].name);

    whenShown<NameForm>([](NameForm& form) {
        QTest::keyClicks(form.txtName(), "Cy");
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showInputBox();
    EXPECT_EQ("Cy          ", g.players[0].name);
}

TEST_F(EndOfGameFormsTest, TheMatchFormsOkTakesTheEditedNamesAndTheLength) {
    g.gameMode = kModeVersus;
    g.versusCpu = false;
    g.players[0] = {"You         ", false, 2};
    g.players[1] = {"Player2     ", true, 1};
    g.matchTarget = 1;
    QStringList captions;
    QString selected;
    bool focused = false;
    whenShown<MatchForm>([&](MatchForm& form) {
        QLineEdit* first = form.txtPlayerName(0);
        focused = form.focusWidget() == first;
        selected = first->selectedText();
        EXPECT_TRUE(form.txtPlayerName(1)->isEnabled());
        captions << form.lblXwins()->text();
        form.VScroll1()->upArrow()->click();
        captions << form.lblXwins()->text();
        form.VScroll1()->downArrow()->click();
        captions << form.lblXwins()->text();
        form.VScroll1()->downArrow()->click(); // 1 is the lower end
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
    EXPECT_TRUE(focused);
    EXPECT_EQ(QString("You"), selected);
    EXPECT_EQ((QStringList{"1Wins Match", "3Wins Match", "1 Win Match", "15Wins Match"}), captions);
    EXPECT_EQ(kModeVersus, g.gameMode);
    EXPECT_EQ(13, g.matchTarget);
    EXPECT_EQ("Maximiliano ", g.players[0].name);
    EXPECT_EQ("Ann", g.players[1].name);
    EXPECT_TRUE(g.players[0].hasBreak);
    EXPECT_EQ(0, g.players[0].gamesWon + g.players[1].gamesWon);
    EXPECT_EQ("Maximiliano's Shot", g.controls.shotCaption);
}

TEST_F(EndOfGameFormsTest, AMatchFormClosedByEscapeStartsTheMatchAsItStands) {
    g.gameMode = kModeVersus;
    g.players[0].name = "You";
    g.players[1].name = "zeph";
    g.matchTarget = 3;
    whenShown<MatchForm>([](MatchForm& form) {
        form.VScroll1()->upArrow()->click();
        form.txtPlayerName(0)->setText("Nobody");
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    screen->showChangeVsMode();
    EXPECT_EQ(kModeVersus, g.gameMode);
    EXPECT_EQ(5, g.matchTarget);
    EXPECT_EQ("You", g.players[0].name);
}

TEST_F(EndOfGameFormsTest, TheResultPutsTheSideThatReachedTheTargetInMagenta) {
    g.matchTarget = 3;
    g.players[0] = {"You", false, 1};
    g.players[1] = {"zeph", true, 3};
    QString headline;
    std::array<QString, 4> lines;
    std::array<QColor, 5> colours;
    whenShown<ResultForm>([&](ResultForm& form) {
        headline = form.lblWinner()->text();
        colours[4] = textColour(form.lblWinner());
        for (int i = 0; i < 2; ++i) {
            lines[2 * i] = form.lblPlayerName(i)->text();
            lines[2 * i + 1] = form.lblWins(i)->text();
            colours[2 * i] = textColour(form.lblPlayerName(i));
            colours[2 * i + 1] = textColour(form.lblWins(i));
        }
        QTest::keyClick(&form, Qt::Key_X); // any key is OK
    });
    screen->showVsResult();
    EXPECT_EQ(QString("zeph defeated You"), headline);
    EXPECT_EQ(kMagenta, colours[4]);
    EXPECT_EQ((std::array<QString, 4>{"You         ", " 1", "zeph        ", " 3"}), lines);
    EXPECT_EQ((std::array<QColor, 5>{kGreen, kGreen, kMagenta, kMagenta, kMagenta}), colours);
    EXPECT_EQ(QSize(299, 176), formSize);
    EXPECT_EQ(centredOverWindow(), formPlace);

    // Between games nobody is in magenta; in the middle of one it is a break.
    g.players[1].gamesWon = 1;
    g.Balls[9].onTable = false;
    EXPECT_EQ("zeph got this game.", resultHeadline(g).text);
    g.Balls[9].onTable = true;
    whenShown<ResultForm>([&](ResultForm& form) {
        headline = form.lblWinner()->text();
        colours = {textColour(form.lblWinner()), textColour(form.lblPlayerName(0)),
                   textColour(form.lblPlayerName(1)), textColour(form.lblWins(0)),
                   textColour(form.lblWins(1))};
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showVsResult();
    EXPECT_EQ(QString("Now, Break Time!"), headline);
    EXPECT_EQ((std::array<QColor, 5>{kGreen, kGreen, kGreen, kGreen, kGreen}), colours);
}

TEST_F(EndOfGameFormsTest, TheSplashGoesOnItsSixthTickOrAtAClick) {
    int mainShown = 0;
    OpeningForm splash(g, [&] { ++mainShown; });
    splash.show();
    EXPECT_EQ(QSize(229, 168), splash.size());
    const QRect whole = screenRect();
    EXPECT_EQ(QPoint((whole.width() - 229) / 2, (whole.height() - 168) / 2), splash.pos());
    EXPECT_TRUE(splash.Timer1()->isActive());
    EXPECT_EQ(1000, splash.Timer1()->interval());
    EXPECT_EQ(QSize(229, 168), splash.picture().size());

    for (int tick = 1; tick <= 5; ++tick)
        splash.Timer1_Timer();
    EXPECT_TRUE(splash.isVisible());
    EXPECT_EQ(0, mainShown);
    splash.Timer1_Timer();
    EXPECT_FALSE(splash.isVisible());
    EXPECT_FALSE(splash.Timer1()->isActive());
    EXPECT_EQ(1, mainShown);

    OpeningForm clicked(g, [&] { ++mainShown; });
    clicked.show();
    QTest::mouseClick(&clicked, Qt::LeftButton);
    EXPECT_FALSE(clicked.isVisible());
    EXPECT_FALSE(clicked.Timer1()->isActive());
    EXPECT_EQ(2, mainShown);
}

TEST_F(EndOfGameFormsTest, TheSplashOfThe256ColourSetComesFromItsFile) {
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    QImage file(229, 168, QImage::Format_RGB32);
    file.fill(qRgb(10, 20, 30));
    ASSERT_TRUE(file.save(folder.filePath(kOpeningFile256), "BMP"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    g.hiColor = 0;
    OpeningForm fromFile(g, nullptr);
    g.hiColor = -1;
    OpeningForm inner(g, nullptr);
    QDir::setCurrent(before);

    EXPECT_EQ(qRgb(10, 20, 30), fromFile.picture().pixel(100, 100) | 0xff000000);
    EXPECT_EQ(QImage(pictures::kOpening).convertToFormat(QImage::Format_RGB32),
              inner.picture().convertToFormat(QImage::Format_RGB32));
}

TEST_F(EndOfGameFormsTest, TheVersionFormStatesTheLevelOrTheMaster) {
    EXPECT_EQ(" Ver.3.02\n zeph's Level is 10.", versionCaption(10));
    EXPECT_EQ(" Ver.3.02\n zeph's Level is 1.", versionCaption(1));
    EXPECT_EQ(" Ver.3.02\n zeph is a Master!", versionCaption(11));

    g.zephLevel = 11;
    QString caption;
    whenShown<VersionForm>([&](VersionForm& form) {
        caption = form.Label1()->text();
        form.Command1()->click();
    });
    screen->showVersion();
    EXPECT_EQ(QString(" Ver.3.02\n zeph is a Master!"), caption);
    EXPECT_EQ(QSize(332, 127), formSize);
    const QRect whole = screenRect();
    EXPECT_EQ(QPoint((whole.width() - 332) / 2, qRound((whole.height() - 127) * 0.4) / 2),
              formPlace);
}

TEST_F(EndOfGameFormsTest, ZephsFaceBlinksTwiceAndAClickMidwayChangesNothing) {
    VersionForm form(g, window.get());
    form.show();
    const QImage frames = QImage(pictures::kZephFrames).convertToFormat(QImage::Format_RGB32);
    auto frame = [&](int n) { return frames.copy(32 * n, 0, 32, 32); };
    EXPECT_FALSE(form.Timer1()->isActive());
    EXPECT_EQ(50, form.Timer1()->interval());

    QTest::mouseClick(form.picZeph(), Qt::LeftButton);
    EXPECT_TRUE(form.Timer1()->isActive());
    // Closing over frames 0 to 4, opening 4 to 0, twice.
    const int expected[20] = {0, 1, 2, 3, 4, 4, 3, 2, 1, 0, 0, 1, 2, 3, 4, 4, 3, 2, 1, 0};
    for (int c = 0; c < 20; ++c) {
        form.Timer1_Timer();
        EXPECT_EQ(frame(expected[c]), form.face().convertToFormat(QImage::Format_RGB32))
            << "counter " << c;
        if (c == 6) {
            QTest::mouseClick(form.picZeph(), Qt::LeftButton);
            EXPECT_EQ(7, form.frameCounter());
        }
    }
    EXPECT_TRUE(form.Timer1()->isActive());
    form.Timer1_Timer(); // the end: frame 0, the timer off, and the counter left at 1
    EXPECT_FALSE(form.Timer1()->isActive());
    EXPECT_EQ(1, form.frameCounter());
    EXPECT_EQ(frame(0), form.face().convertToFormat(QImage::Format_RGB32));
    EXPECT_NE(frame(0), frame(4));
}

} // namespace
} // namespace morvane::testing
