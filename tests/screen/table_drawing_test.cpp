// The frame as the back buffer holds it: balls over shadows over the cloth, the shadow thrown to
// the lower right except in a pocket's mouth, and kept off the rail.
#include "screen_fixture.h"

#include "screen/table_drawing.h"

namespace morvane::testing {
namespace {

class TableDrawingTest : public ScreenTest {};

TEST_F(TableDrawingTest, ShadowFallsTwoPixelsRightAndBelowAtTheCentre) {
    putBallAtPixel(1, 270, 150);
    screen->drawTable();
    EXPECT_EQ(QPoint(262, 142), shadowCellOrigin(g.Balls[1]));
    EXPECT_EQ(QPoint(260, 140), ballCellOrigin(g.Balls[1]));
    // The ball covers 260 to 279; its shadow shows beyond it on the right and below, not left.
    EXPECT_EQ(kShadow, backPixel(280, 150));
    EXPECT_EQ(kShadow, backPixel(270, 160));
    EXPECT_EQ(kCloth, backPixel(259, 150));
    EXPECT_EQ(kCloth, backPixel(270, 139));
    EXPECT_EQ(restingColour(1), backPixel(270, 150));
}

TEST_F(TableDrawingTest, ShadowStaysUnderABallInAPocketsMouth) {
    for (QPoint mouth : {QPoint(45, 45), QPoint(270, 45)}) {
        putBallAtPixel(2, mouth.x(), mouth.y());
        screen->drawTable();
        EXPECT_EQ(QPoint(mouth.x() - 10, mouth.y() - 10), shadowCellOrigin(g.Balls[2]));
        EXPECT_EQ(kCloth, backPixel(mouth.x() + 10, mouth.y())) << mouth.x();
        EXPECT_EQ(kCloth, backPixel(mouth.x(), mouth.y() + 10)) << mouth.x();
    }
    // Along the rail, away from any mouth, the shadow is thrown again.
    putBallAtPixel(2, 100, 45);
    screen->drawTable();
    EXPECT_EQ(QPoint(92, 37), shadowCellOrigin(g.Balls[2]));
    EXPECT_EQ(kShadow, backPixel(110, 45));
}

TEST_F(TableDrawingTest, ShadowIsClampedOffTheRailDeepInACorner) {
    putBallAtPixel(3, 510, 270);
    screen->drawTable();
    EXPECT_EQ(QPoint(490, 250), shadowCellOrigin(g.Balls[3]));
    EXPECT_EQ(kShadow, backPixel(493, 253));
}

TEST_F(TableDrawingTest, BallsOffTheTableAreNotDrawnAndMovingBallsLoseTheirNumber) {
    putBallAtPixel(4, 200, 100);
    putBallAtPixel(5, 300, 200);
    g.Balls[5].onTable = false;
    g.Balls[4].speed = 0.001f;
    screen->drawTable();
    EXPECT_EQ(rollingColour(4), backPixel(200, 100));
    EXPECT_EQ(kCloth, backPixel(300, 200));
    EXPECT_EQ(kCloth, backPixel(303, 203));
    // The view shows the same frame; its last row is the one the 299 rows leave out.
    EXPECT_EQ(screen->surfaces().view.pixel(200, 100),
              screen->surfaces().backBuffer.pixel(200, 100));

    // drawBallNow puts the numbered ball on the view alone, at rest.
    screen->drawBallNow(4);
    EXPECT_EQ(restingColour(4), screen->surfaces().view.pixel(200, 100) | 0xff000000);
    EXPECT_EQ(rollingColour(4), backPixel(200, 100));
}

TEST_F(TableDrawingTest, HigherNumbersLieOverLowerOnes) {
    putBallAtPixel(6, 200, 150);
    putBallAtPixel(7, 205, 150);
    screen->drawTable();
    EXPECT_EQ(restingColour(7), backPixel(200, 150));
    EXPECT_EQ(restingColour(6), backPixel(193, 150));
}

TEST_F(TableDrawingTest, DemoWordsStandUnderTheBalls) {
    const auto demoGreenPixels = [this] {
        int n = 0;
        const QImage& back = screen->surfaces().backBuffer;
        for (int y = 0; y < back.height(); ++y)
            for (int x = 0; x < back.width(); ++x)
                n += (back.pixel(x, y) | 0xff000000) == qRgb(0, 128, 0);
        return n;
    };
    screen->drawTable();
    EXPECT_EQ(0, demoGreenPixels());
    g.gameMode = kModeDemo;
    putBallAtPixel(1, 200, 150);
    screen->drawTable();
    EXPECT_GT(demoGreenPixels(), 1000);
    EXPECT_EQ(restingColour(1), backPixel(200, 150));
}

TEST_F(TableDrawingTest, EachPocketedBallHasItsOwnPlaceInTheTray) {
    for (int i = 1; i <= 9; ++i)
        putBallAtPixel(i, 100 + 20 * i, 150);
    g.Balls[9].onTable = false;
    screen->drawTray();
    EXPECT_EQ(restingColour(9), trayPixel(8 * 20 + 1 + 10, 11));
    for (int slot = 0; slot < 8; ++slot)
        EXPECT_EQ(kTrayGrey, trayPixel(slot * 20 + 11, 11)) << slot;

    g.Balls[1].onTable = false;
    g.Balls[9].onTable = true;
    screen->drawTray();
    EXPECT_EQ(restingColour(1), trayPixel(11, 11));
    EXPECT_EQ(kTrayGrey, trayPixel(171, 11));
}

TEST_F(TableDrawingTest, ADroppingBallIsStampedAtItsPocket) {
    screen->drawTable();
    screen->drawBallDrop(3, 6); // the bottom right pocket: table (2397, 3) is pixel (509.4, 269.4)
    EXPECT_EQ(restingColour(3), screen->surfaces().view.pixel(509, 269) | 0xff000000);
    EXPECT_EQ(kCloth, backPixel(509, 269));
}

TEST_F(TableDrawingTest, TheViewPaintsTheLastFrameWithTheMarkersAboveIt) {
    putBallAtPixel(1, 200, 150);
    screen->drawTable();
    g.controls.target = {300, 100, true}; // the cyan circle's box is 300..319 by 100..119
    g.controls.qBall = {190, 140, false};
    window->syncControlsFromState();
    QImage shown = window->picPool()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(restingColour(1), shown.pixel(200, 150) | 0xff000000);
    EXPECT_EQ(qRgb(0, 255, 255), shown.pixel(300, 110) | 0xff000000);
    EXPECT_EQ(kCloth, shown.pixel(310, 110) | 0xff000000);
    // With the ball in hand the red outline stands over the ball's picture.
    g.controls.qBall.visible = true;
    window->syncControlsFromState();
    shown = window->picPool()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(qRgb(255, 0, 0), shown.pixel(190, 150) | 0xff000000);
}

} // namespace
} // namespace morvane::testing
