// The message box sized to its text, centred in it, closed by any key; the information bar's line
// by mode.
#include "screen_fixture.h"

#include "screen/information_bar.h"
#include "screen/message_box.h"

#include <QTest>
#include <QTimer>

#include <algorithm>

namespace morvane::testing {
namespace {

class FormsTest : public ScreenTest {};

TEST_F(FormsTest, TheMessageBoxIsModalSizedToItsTextAndClosedByAnyKey) {
    window->show();
    QSize shown;
    QString title;
    screen->onMessageBox = [&](QDialog& form) {
        shown = form.size();
        title = form.windowTitle();
        QTimer::singleShot(0,
                           [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Q); });
    };
    // Half an em a character, and 1.2 times that.
    screen->showMessage("You missed !");
    EXPECT_EQ(QString("Massage from Morvane"), title);
    EXPECT_EQ(QSize(qRound(12 * 120 * 1.2 / 15), 90), shown);
    EXPECT_EQ(1, screen->modalFormsShown());
    screen->showMessage("A");
    EXPECT_EQ(QSize(95, 90), shown); // 1.2 x 1.2 the 66 pixels of the OK picture
    // A Japanese character counts as one.
    EXPECT_DOUBLE_EQ(layoutMessageBox("ab", 12, 990).formWidth,
                     layoutMessageBox("あい", 12, 990).formWidth);
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
    // Ball 2 in its cell at (290, 1), inside the box's green outline.
    EXPECT_EQ((std::array{qRgb(0, 255, 0), restingColour(2), qRgb(0, 255, 0)}),
              (std::array{bar.pixel(289, 10) | 0xff000000, bar.pixel(300, 11) | 0xff000000,
                          bar.pixel(310, 10) | 0xff000000}));

    const QImage before = bar.copy();
    g.gameMode = kModeMenu;
    g.Balls[2].onTable = false;
    screen->drawInformation();
    EXPECT_EQ(before, screen->surfaces().information);
}

} // namespace
} // namespace morvane::testing
