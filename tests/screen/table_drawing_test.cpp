// The frame as the back buffer holds it: balls over shadows over the cloth, the shadow thrown to
// the lower right except in a pocket's mouth, and kept off the rail; the tray and the information
// bar. Most cases run on surfaces of scale 1 and of scale 2, with every place in the layout's
// pixels.
#include "picture_names.h"
#include "screen_fixture.h"

#include "screen/table_drawing.h"

#include <cstring>

namespace morvane::testing {
namespace {

class TableDrawingTest : public ScreenTest, public ::testing::WithParamInterface<int> {
  protected:
    std::unique_ptr<QtScreen> makeScreen() override {
        const int scale = GetParam();
        return std::make_unique<QtScreen>(g, plainSheet(scale),
                                          plainPicture(45, 45, qRgb(200, 200, 200), scale),
                                          plainPicture(66, 34, qRgb(0, 0, 255), scale));
    }
};

TEST_P(TableDrawingTest, ShadowFallsTwoPixelsRightAndBelowButNotInAPocketsMouthNorOnTheRail) {
    putBallAtPixel(1, 270, 150);
    putBallAtPixel(2, 45, 45);
    putBallAtPixel(3, 510, 270);
    putBallAtPixel(4, 100, 45);
    screen->drawTable();
    // Ball 1 covers 260 to 279, its shadow beyond it on the right and below; in a pocket's mouth
    // (ball 2) the shadow stays under the ball; deep in a corner (3) it is kept off the rail;
    // along the rail, away from any mouth (4), it is thrown.
    const QPoint shadows[] = {{262, 142}, {35, 35}, {490, 250}, {92, 37}};
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(shadows[i - 1], shadowCellOrigin(g.Balls[i])) << i;
    for (QPoint p : {QPoint(280, 150), QPoint(270, 160), QPoint(493, 253), QPoint(110, 45)})
        EXPECT_EQ(kShadow, backPixel(p.x(), p.y())) << p.x() << "," << p.y();
    for (QPoint p : {QPoint(259, 150), QPoint(270, 139), QPoint(55, 45), QPoint(45, 55)})
        EXPECT_EQ(kCloth, backPixel(p.x(), p.y())) << p.x() << "," << p.y();
    EXPECT_EQ(restingColour(1), backPixel(270, 150));
}

// A ball drawn at once, or dropping into its pocket, goes on the view alone and at rest, while the
// frame keeps what it held.
TEST_P(TableDrawingTest, ABallDrawnNowOrDroppingGoesOnTheViewAloneAtRest) {
    putBallAtPixel(4, 200, 100);
    g.Balls[4].speed = 0.001f;
    screen->drawTable();
    screen->drawBallNow(4);
    EXPECT_EQ(restingColour(4), viewPixel(200, 100));
    EXPECT_EQ(rollingColour(4), backPixel(200, 100));
    screen->drawBallDrop(3, 6); // the bottom right pocket: table (2397, 3) is pixel (509.4, 269.4)
    EXPECT_EQ(restingColour(3), viewPixel(509, 269));
    EXPECT_EQ(kCloth, backPixel(509, 269));
}

TEST_P(TableDrawingTest, EachPocketedBallHasItsOwnPlaceInTheTray) {
    for (int i = 1; i <= 9; ++i)
        putBallAtPixel(i, 100 + 20 * i, 150);
    g.Balls[9].onTable = false;
    screen->drawTray();
    EXPECT_EQ(restingColour(9), trayPixel(8 * 20 + 1 + 10, 11));
    for (int slot = 0; slot < 8; ++slot)
        EXPECT_EQ(kTrayGrey, trayPixel(slot * 20 + 11, 11)) << slot;
}

// The view shows the last frame, and the markers' outlines over it are the pixels of ellipses
// drawn in their places, the ball in hand's red one over the ball's picture.
TEST_P(TableDrawingTest, TheViewPaintsTheLastFrameWithTheMarkersOutlinedAboveIt) {
    putBallAtPixel(1, 200, 150);
    screen->drawTable();
    g.controls.target.visible = false;
    g.controls.qBall.visible = false;
    window->syncControlsFromState();
    QImage expected = window->picPool()->grab().toImage();
    EXPECT_EQ(restingColour(1), expected.pixel(200, 150) | 0xff000000);
    QPainter painter(&expected);
    painter.setPen(QColor(255, 0, 0));
    painter.drawEllipse(QRect(190, 140, 19, 19));
    painter.setPen(QColor(0, 255, 255));
    painter.drawEllipse(QRect(300, 103, 19, 19));
    painter.end();
    g.controls.qBall = {190, 140, true};
    g.controls.target = {300.4f, 102.6f, true};
    window->syncControlsFromState();
    EXPECT_EQ(expected, window->picPool()->grab().toImage());
}

// At scale 1, on the game's own sheet, a sprite is a mask ANDed and a ball XORed straight onto
// the 32-bit surface, one raster operation each, so the frame is the same to the bit as it has
// always been.
TEST_F(ScreenTest, AtScaleOneEachSpriteIsOneAndAndOneXorOnTheSheetsSurface) {
    putBallAtPixel(0, 140, 150);
    putBallAtPixel(1, 390, 150);
    putBallAtPixel(5, 45, 45); // in a corner pocket's mouth: the shadow falls straight under
    putBallAtPixel(9, 403.3f, 141.6f);
    g.Balls[9].speed = 2;
    putBallAtPixel(7, 510, 270);
    Surfaces s =
        makeSurfaces(scaledPicture(pictures::kTable, 1), scaledPicture(pictures::kSetPoint, 1));
    drawTableFrame(g, s);

    QImage expected = s.picTable.copy(0, 0, kSheetWidth, kTableBlockHeight);
    QPainter p(&expected);
    const auto stamp = [&](QPoint at, QPoint cell) {
        p.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
        p.drawImage(at, s.picBalls, QRect(kMaskX, kMaskY, kCell, kCell));
        p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
        p.drawImage(at, s.picBalls, QRect(cell, QSize(kCell, kCell)));
    };
    for (const BallType& ball : g.Balls)
        if (ball.onTable)
            stamp(shadowCellOrigin(ball), QPoint(kShadowX, kShadowY));
    for (int i = 0; i < kBallCount; ++i)
        if (g.Balls[i].onTable)
            stamp(ballCellOrigin(g.Balls[i]),
                  QPoint(kCell * i, g.Balls[i].speed != 0 ? kRollingRow : kRestingRow));
    p.end();
    ASSERT_EQ(expected.size(), s.backBuffer.size());
    ASSERT_EQ(expected.bytesPerLine(), s.backBuffer.bytesPerLine());
    EXPECT_EQ(0, std::memcmp(expected.constBits(), s.backBuffer.constBits(),
                             size_t(expected.sizeInBytes())));
}

// The next ball to hit stands in its cell at (290, 1), inside the box's green outline.
TEST_F(ScreenTest, TheInformationBarShowsTheNextBall) {
    for (int i = 1; i <= 9; ++i)
        putBallAtPixel(i, 100 + 20 * i, 150);
    g.Balls[1].onTable = false;
    screen->drawInformation();
    const QImage& bar = screen->surfaces().information;
    EXPECT_EQ((std::array{qRgb(0, 255, 0), restingColour(2), qRgb(0, 255, 0)}),
              (std::array{bar.pixel(289, 10) | 0xff000000, bar.pixel(300, 11) | 0xff000000,
                          bar.pixel(310, 10) | 0xff000000}));
}

INSTANTIATE_TEST_SUITE_P(AtEachScale, TableDrawingTest, ::testing::Values(1, 2),
                         [](const auto& scale) { return std::to_string(scale.param) + "x"; });

} // namespace
} // namespace morvane::testing
