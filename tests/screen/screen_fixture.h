// A window on the offscreen platform over a sheet of plain colours, so that what a frame drew can
// be read back pixel by pixel. The sheet is of the scale of the screen's set of pictures, unless a
// test asks for another.
#pragma once

#include "game/game_state.h"
#include "screen/blit.h"
#include "screen/main_window.h"
#include "screen/pictures.h"
#include "screen/qt_screen.h"
#include "startup/scheduler.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>

namespace morvane::testing {

// One application for the whole test program. It is never destroyed: torn down among the
// program's other statics at exit it would outlive parts of Qt it still needs.
inline QApplication& application() {
    static int argc = 1;
    static char name[] = "test_screen";
    static char* argv[] = {name, nullptr};
    static QApplication* app = new QApplication(argc, argv);
    return *app;
}

constexpr QRgb kCloth = qRgb(0, 112, 0);
constexpr QRgb kShadow = qRgb(0, 80, 0);
constexpr QRgb kTrayGrey = qRgb(64, 64, 64);
inline QRgb restingColour(int i) {
    return qRgb(100 + 15 * i, 20, 200);
}
inline QRgb rollingColour(int i) {
    return qRgb(20, 100 + 15 * i, 40);
}

// A disc of 20 pixels across in the cell at (x, y), on the given ground.
inline void paintDisc(QImage& sheet, int x, int y, QRgb disc, QRgb ground) {
    QPainter p(&sheet);
    p.fillRect(x, y, 20, 20, QColor(ground));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(disc));
    p.drawEllipse(x, y, 20, 20);
}

// The layout of the table sheet, each sprite one plain colour.
inline QImage plainSheet(int scale = pictureScale()) {
    QImage sheet = makeSurface(540, 360, Qt::white, scale);
    QPainter(&sheet).fillRect(0, 0, 540, 300, QColor(kCloth));
    for (int i = 0; i < 10; ++i) {
        paintDisc(sheet, 20 * i, 300, restingColour(i), qRgb(0, 0, 0));
        paintDisc(sheet, 20 * i, 320, rollingColour(i), qRgb(0, 0, 0));
    }
    paintDisc(sheet, 200, 300, qRgb(0, 0, 0), qRgb(255, 255, 255));
    paintDisc(sheet, 200, 320, kShadow, qRgb(0, 0, 0));
    return sheet;
}

inline QImage plainPicture(int w, int h, QRgb colour, int scale = pictureScale()) {
    return makeSurface(w, h, QColor(colour), scale);
}

// The colour of a surface at a pixel of the layout: the middle of the pixels it holds there.
inline QRgb layoutPixel(const QImage& surface, int x, int y) {
    const int s = surfaceScale(surface);
    return surface.pixel(x * s + s / 2, y * s + s / 2) | 0xff000000;
}

class ScreenTest : public ::testing::Test {
  protected:
    GameState g;
    std::unique_ptr<QtScreen> screen;
    std::unique_ptr<MainWindow> window;

    void SetUp() override {
        application();
        screen = makeScreen();
        g.ports.screen = screen.get();
        // A message box the test does not look at is closed as soon as it runs.
        screen->onMessageBox = [](QDialog& form) {
            QTimer::singleShot(0, &form, &QDialog::accept);
        };
        screen->onForm = screen->onMessageBox;
        initTimers(g);
        g.gameMode = kModeSolo;
        for (BallType& b : g.Balls)
            b = BallType{};
        window = std::make_unique<MainWindow>(g, *screen);
    }

    // The screen of the window; a test may give one that writes down more.
    virtual std::unique_ptr<QtScreen> makeScreen() {
        return std::make_unique<QtScreen>(g, plainSheet(),
                                          plainPicture(45, 45, qRgb(200, 200, 200)),
                                          plainPicture(66, 34, qRgb(0, 0, 255)));
    }

    // Places ball i with its centre at a pixel of the view.
    void putBallAtPixel(int i, float px, float py) {
        g.Balls[i].onTable = true;
        g.Balls[i].x = (px - 30) / 0.2f;
        g.Balls[i].y = 1200 - (py - 30) / 0.2f;
    }
    // At a whole pixel, as most places in the layout are.
    void putBallAtPixel(int i, int px, int py) { putBallAtPixel(i, float(px), float(py)); }

    QRgb backPixel(int x, int y) { return layoutPixel(screen->surfaces().backBuffer, x, y); }
    QRgb trayPixel(int x, int y) { return layoutPixel(screen->surfaces().tray, x, y); }
    QRgb viewPixel(int x, int y) { return layoutPixel(screen->surfaces().view, x, y); }
};

} // namespace morvane::testing
