// The window with real mouse events: the hit point, the aim, the cue ball in hand, the power bar,
// the labels at the top and the shot button, and the colours the bar and the button wear.
#include "screen_fixture.h"

#include "game/controls.h"
#include "game/racking.h"
#include "game/timers.h"
#include "game/view_coords.h"
#include "rules/modes.h"
#include "screen/strip_style.h"

#include <QTest>

namespace morvane::testing {
namespace {

class WindowInputTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        rackBalls(g);
        picSoloPlay_Click(g, 0);
        window->syncControlsFromState();
        window->show();
    }

    // A press at a point between pixels, as a real mouse event to the widget.
    void pressAt(QWidget* w, QPointF at) {
        QMouseEvent press(QEvent::MouseButtonPress, at, w->mapToGlobal(at), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(w, &press);
        QMouseEvent release(QEvent::MouseButtonRelease, at, w->mapToGlobal(at), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(w, &release);
    }

    QPoint cueBallPixel() const {
        return QPoint(qRound(tableToPixelX(g.Balls[0].x)), qRound(tableToPixelY(g.Balls[0].y)));
    }
};

TEST_F(WindowInputTest, AClickOnTheBallPictureSetsTheHitPoint) {
    QWidget* ball = window->picSetPoint();
    g.Balls[0].spinSide = 0.7f;
    QTest::mouseClick(ball, Qt::LeftButton, {}, QPoint(22, 23)); // within the dot's own circle
    EXPECT_TRUE(g.Balls[0].spinSide == 0 && g.Balls[0].spinFollow == 0);
    EXPECT_EQ(20.0f, g.controls.pointLeft);
    pressAt(ball, QPointF(32.5, 22.5)); // half the offset, to the half pixel: a quarter of the spin
    EXPECT_NEAR(0.25, g.Balls[0].spinSide, 1e-6);
    EXPECT_NEAR(0.0, g.Balls[0].spinFollow, 1e-6);
}

// The right button aims on the table as the left does, the aim following the mouse while it is
// held and going where it is let go.
TEST_F(WindowInputTest, TheRightButtonAimsOnTheTableAsTheLeftDoes) {
    g.breakPending = false;
    QWidget* view = window->picPool();
    QTest::mousePress(view, Qt::RightButton, {}, QPoint(400, 100));
    const QPointF to(420, 200);
    QMouseEvent drag(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::RightButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view, &drag);
    EXPECT_FLOAT_EQ(410, g.controls.target.left);
    EXPECT_FLOAT_EQ(190, g.controls.target.top);
    QTest::mouseRelease(view, Qt::RightButton, {}, QPoint(450, 250));
    EXPECT_FLOAT_EQ(440, g.controls.target.left);
}

// The cue ball in hand is taken by a press inside its grab circle, dragged off the table and let
// go there: it comes back inside the limits, and the table is redrawn with it there.
TEST_F(WindowInputTest, TheCueBallDraggedOffTheTableComesBackInsideAndIsDrawnThere) {
    QWidget* view = window->picPool();
    QTest::mousePress(view, Qt::LeftButton, {}, cueBallPixel() + QPoint(3, 3));
    EXPECT_TRUE(g.draggingCueBall);
    QTest::mouseMove(view, QPoint(535, 20));
    QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(535, 20));
    EXPECT_EQ(QPoint(500, 40), cueBallPixel());
    EXPECT_EQ(restingColour(0), backPixel(500, 40));
}

TEST_F(WindowInputTest, ThePowerBarMovesThePowerAndItsCaption) {
    QScrollBar* bar = window->HScroll1();
    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(90, g.controls.power);
    EXPECT_EQ(QString("POWER  90%"), window->lblPower()->text());
    // A value set by the game shows on the bar without coming back as a change of the user's,
    // even one the bar has to bring into its range.
    g.controls.power = 20;
    window->syncControlsFromState();
    EXPECT_EQ(35, bar->value());
    EXPECT_EQ(20, g.controls.power);
}

TEST_F(WindowInputTest, TheMenuLabelsLightUnderTheMouseExceptDuringAShot) {
    QTest::mouseMove(window->lblMenu(2), QPoint(5, 5));
    EXPECT_TRUE(g.controls.lblMenuHover[2]);
    EXPECT_TRUE(window->lblMenu(2)->styleSheet().contains("#ff00ff"));
    QTest::mouseMove(window->picPool(), QPoint(100, 100));
    EXPECT_FALSE(g.controls.lblMenuHover[2]);
    EXPECT_TRUE(window->lblMenu(2)->styleSheet().contains("#c000c0"));

    setTimerEnabled(g, kTimer1, true);
    QTest::mouseMove(window->lblMenu(2), QPoint(6, 6));
    EXPECT_FALSE(g.controls.lblMenuHover[2]);
}

TEST_F(WindowInputTest, TheShotButtonFiresAndRestsWhileTheBallsRoll) {
    advanceVirtualTime(g, g.nowMs + 330); // the break's aim swings meanwhile
    QTest::mouseClick(window->cmdShot(), Qt::LeftButton);
    EXPECT_TRUE(isTimerEnabled(g, kTimer1));
    EXPECT_FALSE(window->cmdShot()->isEnabled());
}

// The share of a widget's picture close to a colour.
double shareNear(QWidget* w, const QColor& colour) {
    const QImage picture = w->grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb c = picture.pixel(x, y);
            count += std::abs(qRed(c) - colour.red()) + std::abs(qGreen(c) - colour.green()) +
                         std::abs(qBlue(c) - colour.blue()) <
                     24;
        }
    }
    return count / double(picture.width() * picture.height());
}

// The bar and the button wear the felt and the wood of the table where the toolkit's grey stood;
// while balls roll the caption is cream on darker wood, still plain.
TEST_F(WindowInputTest, ThePowerBarAndShotWearTheTablesColours) {
    QPushButton* shot = window->cmdShot();
    QScrollBar* bar = window->HScroll1();
    EXPECT_GT(shareNear(shot, kRailWood), 0.5);
    EXPECT_GT(shareNear(shot, kDarkWood), 0.03); // the caption and the border
    EXPECT_GT(shareNear(bar, kFeltGreen), 0.25);
    EXPECT_GT(shareNear(bar, kRailWood), 0.03); // the handle and the end buttons
    g.controls.shotEnabled = false;
    g.controls.powerEnabled = false;
    window->syncControlsFromState();
    EXPECT_GT(shareNear(shot, kRailWoodDim), 0.5);
    EXPECT_GT(shareNear(shot, kCreamCaption), 0.03);
    EXPECT_GT(shareNear(bar, kRailWoodDim), 0.03);
}

} // namespace
} // namespace morvane::testing
