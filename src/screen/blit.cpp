#include "screen/blit.h"

#include <QPainter>

namespace morvane {

namespace {

void blitWith(QImage& target, QPainter::CompositionMode mode, int x, int y, const QImage& source,
              int sx, int sy, int w, int h) {
    QPainter painter(&target);
    painter.setCompositionMode(mode);
    painter.drawImage(QPoint(x, y), source, QRect(sx, sy, w, h));
}

} // namespace

QImage makeSurface(int width, int height, QColor fill) {
    QImage surface(width, height, QImage::Format_RGB32);
    surface.fill(fill);
    return surface;
}

void blitCopy(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h) {
    blitWith(target, QPainter::CompositionMode_Source, x, y, source, sx, sy, w, h);
}

void blitAnd(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h) {
    blitWith(target, QPainter::RasterOp_SourceAndDestination, x, y, source, sx, sy, w, h);
}

void blitInvert(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h) {
    blitWith(target, QPainter::RasterOp_SourceXorDestination, x, y, source, sx, sy, w, h);
}

void blitMasked(QImage& target, int x, int y, const QImage& source, int maskX, int maskY,
                int spriteX, int spriteY, int size) {
    blitAnd(target, x, y, source, maskX, maskY, size, size);
    blitInvert(target, x, y, source, spriteX, spriteY, size, size);
}

} // namespace morvane
