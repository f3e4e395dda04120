// The modal forms over the window: each at its size and place, with its texts and colours, closed
// by its own buttons and keys, and what each hands back to the game.
#include "screen_fixture.h"

#include "screen/forms/match_form.h"
#include "screen/forms/name_form.h"
#include "screen/forms/record_form.h"
#include "screen/forms/result_form.h"
#include "screen/surfaces.h"

#include <QGuiApplication>
#include <QScreen>
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

TEST_F(EndOfGameFormsTest, TheMatchFormsCancelGoesToTheMenuWithoutZeph) {
    g.gameMode = kModeVersus;
    g.versusCpu = true;
    g.players[0].name = "You";
    g.players[1].name = "zeph";
    bool secondEditable = true;
    whenShown<MatchForm>([&](MatchForm& form) {
        secondEditable = form.txtPlayerName(1)->isEnabled();
        QTest::mouseClick(form.picCancel(), Qt::LeftButton);
    });
    screen->showChangeVsMode();
    EXPECT_FALSE(secondEditable);
    EXPECT_EQ(kModeMenu, g.gameMode);
    EXPECT_FALSE(g.versusCpu);
    EXPECT_EQ(QSize(201, 187), formSize);
    EXPECT_EQ(centredOverWindow(), formPlace);
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

} // namespace
} // namespace morvane::testing
