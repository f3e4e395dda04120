// The window on a screen of twice the pixels, as a HiDPI laptop's at a scale of 2: it takes the
// pictures of scale 2 and shows every pixel of them, while its layout and every place a click
// lands stay those of scale 1. (The window's input tests run in this program too.)
#include "screen/screen_fixture.h"

#include "game/racking.h"
#include "picture_names.h"
#include "rules/modes.h"

#include <QTest>

namespace morvane::testing {
namespace {

// Set before the test program's one application starts, which reads it.
[[maybe_unused]] const bool kTwiceThePixels = qputenv("QT_SCALE_FACTOR", "2");

TEST(PictureScale, AFractionalRatioTakesTheNextSetUpToTheFinest) {
    const std::pair<double, int> cases[] = {{0.75, 1},      {1.0, 1}, {1.25, 2}, {2.0, 2},
                                            {2.0000001, 2}, {2.5, 3}, {4.0, 3}};
    for (const auto& [ratio, scale] : cases)
        EXPECT_EQ(scale, pictureScaleFor(ratio)) << ratio;
}

class TwiceThePixelsTest : public ScreenTest {
  protected:
    // The game's own pictures, as the program loads them.
    std::unique_ptr<QtScreen> makeScreen() override {
        return std::make_unique<QtScreen>(g, tablePicture(), cueBallPicture(), okPicture());
    }

    void showMenu() {
        backToMenu(g);
        window->syncControlsFromState();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    static QImage shown(QWidget* w) {
        return w->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    // How many 2 by 2 blocks of a picture hold more than one colour: none in a picture of scale 1
    // blown up to twice its size.
    static int mixedBlocks(const QImage& picture) {
        int n = 0;
        for (int y = 0; y + 1 < picture.height(); y += 2)
            for (int x = 0; x + 1 < picture.width(); x += 2) {
                const QRgb c = picture.pixel(x, y);
                n += picture.pixel(x + 1, y) != c || picture.pixel(x, y + 1) != c ||
                     picture.pixel(x + 1, y + 1) != c;
            }
        return n;
    }
};

// The menu and the table view show every pixel of their pictures, not a picture of scale 1 blown
// up, while the window keeps the size of its layout.
TEST_F(TwiceThePixelsTest, TheWindowTakesTheSetOfScaleTwoAndShowsEveryPixelOfIt) {
    EXPECT_EQ(2, pictureScale());
    const Surfaces& s = screen->surfaces();
    for (const QImage* surface :
         {&s.picTable, &s.picBalls, &s.backBuffer, &s.view, &s.tray, &s.information, &s.setPoint})
        EXPECT_EQ(2, surfaceScale(*surface));
    showMenu();
    EXPECT_EQ(QSize(540, 378), window->size());
    const QImage menu = scaledPicture(pictures::kMenu, 2).convertToFormat(QImage::Format_RGB32);
    // The table in perspective, where no word, switch or label lies over the picture.
    const QRect table(200, 340, 680, 300);
    EXPECT_TRUE(shown(window->picMenu()).copy(table) == menu.copy(table));

    rackBalls(g);
    picSoloPlay_Click(g, 0);
    g.controls.target.visible = false;
    g.controls.qBall.visible = false;
    window->syncControlsFromState();
    screen->drawTable();
    const QImage view = shown(window->picPool());
    EXPECT_TRUE(view == s.view.copy(0, 0, 1080, 598));
    EXPECT_GT(mixedBlocks(view), 5000);
}

// Clicks at places of the window's layout, through the window as the desktop sends them.
TEST_F(TwiceThePixelsTest, AClickLandsOnWhatLiesAtItsPlaceInTheLayout) {
    showMenu();
    QWindow* desktopWindow = window->windowHandle();
    QTest::mouseClick(desktopWindow, Qt::LeftButton, {}, QPoint(16 + 80, 56 + 20)); // Solo Play
    EXPECT_EQ(kModeSolo, g.gameMode);
    window->syncControlsFromState();
    ASSERT_FALSE(window->picMenu()->isVisible());

    g.breakPending = false;
    QTest::mousePress(desktopWindow, Qt::LeftButton, {}, QPoint(300, 25 + 150));
    EXPECT_FLOAT_EQ(290, g.controls.target.left); // the aim's circle centred on the press
    EXPECT_FLOAT_EQ(140, g.controls.target.top);
    QTest::mouseRelease(desktopWindow, Qt::LeftButton, {}, QPoint(300, 25 + 150));
}

} // namespace
} // namespace morvane::testing
