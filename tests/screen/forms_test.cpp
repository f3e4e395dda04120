// The message box sized to its text, centred in it, closed by any key; the information bar's next
// ball.
#include "screen_fixture.h"

#include "screen/message_box.h"

#include <QTest>
#include <QTimer>

#include <algorithm>

namespace morvane::testing {
namespace {

class FormsTest : public ScreenTest {};

// Half an em a character and 1.2 times that, or 1.2 x 1.2 the 66 pixels of the OK picture.
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
    screen->showMessage("A");
    EXPECT_EQ(QSize(95, 90), shown);
    EXPECT_EQ(2, screen->modalFormsShown());
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

// The next ball to hit stands in its cell at (290, 1), inside the box's green outline.
TEST_F(FormsTest, TheBarShowsTheNextBall) {
    for (int i = 1; i <= 9; ++i)
        putBallAtPixel(i, 100 + 20 * i, 150);
    g.Balls[1].onTable = false;
    screen->drawInformation();
    const QImage& bar = screen->surfaces().information;
    EXPECT_EQ((std::array{qRgb(0, 255, 0), restingColour(2), qRgb(0, 255, 0)}),
              (std::array{bar.pixel(289, 10) | 0xff000000, bar.pixel(300, 11) | 0xff000000,
                          bar.pixel(310, 10) | 0xff000000}));
}

} // namespace
} // namespace morvane::testing
