// The modal forms over the window: each closed by its own buttons and keys, with its texts and
// colours, and what each hands back to the game; the message box sized to its text, the text in
// its middle.
#include "screen_fixture.h"

#include "screen/forms/match_form.h"
#include "screen/forms/name_form.h"
#include "screen/forms/record_form.h"
#include "screen/forms/result_form.h"
#include "screen/message_box.h"

#include <QTest>

#include <algorithm>

namespace morvane::testing {
namespace {

class EndOfGameFormsTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        window->show();
    }

    // Runs `act` on the form once its event loop is running, and expects exec to return.
    template <typename Form> void whenShown(std::function<void(Form&)> act) {
        screen->onForm = [act](QDialog& dialog) {
            auto* form = dynamic_cast<Form*>(&dialog);
            ASSERT_NE(nullptr, form);
            QTimer::singleShot(0, form, [form, act] { act(*form); });
        };
    }
};

// Mid-game the record shows the balls down so far: ball 2 and then ball 5, 22 pixels apart, each
// opaque on the black form below the text.
TEST_F(EndOfGameFormsTest, TheRecordMidGameShowsTheBallsDownSoFar) {
    for (int i = 1; i <= 9; ++i)
        g.Balls[i].onTable = i != 2 && i != 5;
    QImage drawn;
    QPoint balls;
    whenShown<RecordForm>([&](RecordForm& form) {
        drawn = form.surface();
        balls = form.ballsOrigin();
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showRecordForm();
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

// Enter, the close box and OK all hand the name over, cut to twelve characters.
TEST_F(EndOfGameFormsTest, TheNameFormTakesTwelveCharactersHoweverItCloses) {
    const std::function<void(NameForm&)> closes[] = {
        [](NameForm& form) { QTest::keyClick(form.txtName(), Qt::Key_Return); },
        [](NameForm& form) { form.close(); },
        [](NameForm& form) { QTest::mouseClick(form.picOK(), Qt::LeftButton); }};
    for (const auto& close : closes) {
        g.players[0].name.clear();
        whenShown<NameForm>([&](NameForm& form) {
            QTest::keyClicks(form.txtName(), "Alexandrinaxyz!");
            close(form);
        });
        screen->showInputBox();
        EXPECT_EQ("Alexandrinax", g.players[0].name);
    }
}

// OK starts the match with the edited names and the length the arrows set, two games a step.
TEST_F(EndOfGameFormsTest, TheMatchFormsOkTakesTheEditedNamesAndTheLength) {
    g.gameMode = kModeVersus;
    g.versusCpu = false;
    g.players[0] = {"You         ", false, 2};
    g.players[1] = {"Player2     ", true, 1};
    g.matchTarget = 1;
    whenShown<MatchForm>([&](MatchForm& form) {
        form.VScroll1()->upArrow()->click();
        QLineEdit* first = form.txtPlayerName(0);
        first->clear();
        QTest::keyClicks(first, "Maximiliano Rex");
        form.txtPlayerName(1)->setText("Ann");
        QTest::mouseClick(form.picOK(), Qt::LeftButton);
    });
    screen->showChangeVsMode();
    EXPECT_TRUE(g.gameMode == kModeVersus && g.matchTarget == 3 && g.players[0].hasBreak);
    EXPECT_EQ("Maximiliano ", g.players[0].name);
    EXPECT_EQ("Ann", g.players[1].name);
    EXPECT_EQ(0, g.players[0].gamesWon + g.players[1].gamesWon);
}

TEST_F(EndOfGameFormsTest, TheResultPutsTheSideThatReachedTheTargetInMagenta) {
    g.matchTarget = 3;
    g.players[0] = {"You", false, 1};
    g.players[1] = {"zeph", true, 3};
    QStringList texts; // each label's text and colour
    whenShown<ResultForm>([&](ResultForm& form) {
        for (QLabel* label : {form.lblWinner(), form.lblPlayerName(0), form.lblWins(0),
                              form.lblPlayerName(1), form.lblWins(1)})
            texts << label->text() + label->palette().color(QPalette::WindowText).name();
        QTest::keyClick(&form, Qt::Key_X); // any key is OK
    });
    screen->showVsResult();
    EXPECT_EQ((QStringList{"zeph defeated You#ff00ff", "You         #00ff00", " 1#00ff00",
                           "zeph        #ff00ff", " 3#ff00ff"}),
              texts);
}

class FormsTest : public ScreenTest {};

// Half an em a character and 1.2 times that.
TEST_F(FormsTest, TheMessageBoxIsModalSizedToItsTextAndClosedByAnyKey) {
    window->show();
    QSize shown;
    screen->onMessageBox = [&](QDialog& form) {
        shown = form.size();
        QTimer::singleShot(0,
                           [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Q); });
    };
    screen->showMessage("You missed !");
    EXPECT_EQ(QSize(qRound(12 * 120 * 1.2 / 15), 90), shown);
    EXPECT_EQ(1, screen->modalFormsShown());
}

TEST_F(FormsTest, TheMessagesTextStandsInTheMiddleOfItsBox) {
    QImage ok(66, 34, QImage::Format_RGB32);
    ok.fill(Qt::black);
    for (const char* text : {"Foul !", "A", "Scratch ! Ball in hand for the other"}) {
        SCOPED_TRACE(text);
        MessageBoxForm form(text, ok, nullptr);
        const QImage drawn = form.grab().toImage();
        const QRect label = form.lblMsg()->geometry();
        int left = drawn.width();
        int right = -1;
        for (int y = label.top(); y <= label.bottom(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                const QRgb pixel = drawn.pixel(x, y);
                if (qGreen(pixel) > 128 && qRed(pixel) < 128) { // the text's green
                    left = std::min(left, x);
                    right = std::max(right, x);
                }
            }
        }
        ASSERT_LT(left, right);
        EXPECT_NEAR((left + right + 1) / 2.0, form.width() / 2.0, 2.0);
    }
}

} // namespace
} // namespace morvane::testing
