#include "screen/surfaces.h"

#include "screen/blit.h"

namespace morvane {

namespace {

constexpr QRgb kTrayGrey = qRgb(64, 64, 64);

QImage asSurface(const QImage& picture, int width, int height) {
    QImage surface = makeSurface(width, height, Qt::white, surfaceScale(picture));
    blitCopy(surface, 0, 0, picture.convertToFormat(QImage::Format_RGB32), 0, 0, width, height);
    return surface;
}

} // namespace

Surfaces makeSurfaces(const QImage& sheet, const QImage& cueBallPicture) {
    Surfaces s;
    const int scale = surfaceScale(sheet);
    s.picTable = asSurface(sheet, kSheetWidth, kSheetHeight);
    s.picBalls = makeSurface(kSpriteBlockWidth, kSpriteBlockHeight, Qt::black, scale);
    s.backBuffer = makeSurface(kSheetWidth, kTableBlockHeight, Qt::black, scale);
    s.view = makeSurface(kViewWidth, kViewHeight, Qt::black, scale);
    s.tray = makeSurface(kTrayWidth, kTrayHeight, QColor(kTrayGrey), scale);
    s.information = makeSurface(kInfoWidth, kInfoHeight, Qt::black, scale);
    s.setPoint = asSurface(cueBallPicture, kSetPointPixels, kSetPointPixels);
    loadBallSprites(s);
    return s;
}

void loadBallSprites(Surfaces& s) {
    blitCopy(s.picBalls, 0, 0, s.picTable, 0, kSpriteBlockTop, kSpriteBlockWidth,
             kSpriteBlockHeight);
}

} // namespace morvane
