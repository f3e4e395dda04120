// The message box sized to its text, closed by any key; the information bar's line by mode.
#include "screen_fixture.h"

#include "screen/information_bar.h"
#include "screen/message_box.h"

#include <QTest>
#include <QTimer>

namespace morvane::testing {
namespace {

class FormsTest : public ScreenTest {};

TEST_F(FormsTest, AOneLetterMessageTakesOnePointTwoSquaredTheOkWidth) {
    const MessageBoxLayout one = layoutMessageBox("A", kMsgFontPoints, kOkWidthTwips);
    EXPECT_DOUBLE_EQ(990 * 1.2 * 1.2, one.formWidth);
    EXPECT_EQ(1188, one.labelWidth);
    EXPECT_EQ((1426 - 990) / 2, one.okLeft);

    // A long text widens the form with it: half an em a character, and 1.2 times that.
    const std::string longText(60, 'x');
    const MessageBoxLayout wide = layoutMessageBox(longText, 12, kOkWidthTwips);
    EXPECT_DOUBLE_EQ(60 * 120 * 1.2, wide.formWidth);
    EXPECT_EQ(0, wide.labelWidth);
    // A Japanese character counts as one.
    EXPECT_DOUBLE_EQ(layoutMessageBox("ab", 12, 990).formWidth,
                     layoutMessageBox("あい", 12, 990).formWidth);
}

TEST_F(FormsTest, TheMessageBoxIsModalSizedAndClosedByAnyKey) {
    window->show();
    QSize shown;
    QString title;
    screen->onMessageBox = [&](QDialog& form) {
        shown = form.size();
        title = form.windowTitle();
        QTimer::singleShot(0,
                           [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Q); });
    };
    screen->showMessage("You missed !");
    EXPECT_EQ(QString("Massage from Morvane"), title);
    EXPECT_EQ(QSize(qRound(12 * 120 * 1.2 / 15), 90), shown);
    EXPECT_EQ(1, screen->modalFormsShown());

    screen->showMessage("A");
    EXPECT_EQ(QSize(95, 90), shown); // 1.2 x 1.2 the 66 pixels of the OK picture
}

// The columns of a picture's rows top to bottom - 1 that hold a green pixel of the text.
std::pair<int, int> greenColumns(const QImage& picture, int top, int bottom) {
    int left = picture.width();
    int right = -1;
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGreen(picture.pixel(x, y)) > 128 && qRed(picture.pixel(x, y)) < 128) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    return {left, right};
}

TEST_F(FormsTest, TheMessagesTextStandsInTheMiddleOfItsBox) {
    QImage ok(66, 34, QImage::Format_RGB32);
    ok.fill(Qt::black);
    for (const char* text :
         {"Foul !", "You missed !", "A", "Scratch ! Ball in hand for the other"}) {
        SCOPED_TRACE(text);
        MessageBoxForm form(text, ok, nullptr);
        const QImage drawn = form.grab().toImage();
        const QRect label = form.lblMsg()->geometry();
        const auto [left, right] = greenColumns(drawn, label.top(), label.bottom() + 1);
        ASSERT_LT(left, right);
        EXPECT_NEAR((left + right + 1) / 2.0, form.width() / 2.0, 2.0);
        EXPECT_GE(left, 0);
        EXPECT_LT(right, form.width());
    }
}

TEST_F(FormsTest, TheInformationLineFollowsTheMode) {
    g.turnCount = 3;
    g.shotCount = 12;
    g.foulCount = 1;
    EXPECT_EQ(" Turn:3  Shot:12  Foul:1", informationText(g));

    g.gameMode = kModeVersus;
    g.versusCpu = true;
    g.players[0] = {"You      ", true, 2};
    g.players[1].gamesWon = 1;
    g.zephLevel = 10;
    EXPECT_EQ(" You  2 - 1 Lv.10 zeph ", informationText(g));
    g.zephLevel = 11;
    EXPECT_EQ(" You  2 - 1 Master  zeph ", informationText(g));
    g.versusCpu = false;
    g.players[1].name = " Player2 ";
    EXPECT_EQ(" You  2 - 1  Player2", informationText(g));

    g.gameMode = kModeDemo;
    EXPECT_EQ(" Lv.11 zeph is demonstrating!!", informationText(g));
}

TEST_F(FormsTest, TheBarShowsTheNextBallAndKeepsItsPictureOnTheMenu) {
    for (int i = 1; i <= 9; ++i)
        putBallAtPixel(i, 100 + 20 * i, 150);
    g.Balls[1].onTable = false;
    screen->drawInformation();
    const QImage& bar = screen->surfaces().information;
    EXPECT_EQ(restingColour(2), bar.pixel(300, 11) | 0xff000000); // cell at (290, 1)
    EXPECT_EQ(qRgb(0, 255, 0), bar.pixel(289, 10) | 0xff000000);  // the box's outline
    EXPECT_EQ(qRgb(0, 255, 0), bar.pixel(310, 10) | 0xff000000);

    const QImage before = bar.copy();
    g.gameMode = kModeMenu;
    g.Balls[2].onTable = false;
    screen->drawInformation();
    EXPECT_EQ(before, screen->surfaces().information);
}

} // namespace
} // namespace morvane::testing
