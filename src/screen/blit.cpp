#include "screen/blit.h"

#include <QPaintDevice>

namespace morvane {

namespace {

// The pixels of a surface as a picture of scale 1, sharing its memory.
QImage devicePixels(QImage& surface) {
    return QImage(surface.bits(), surface.width(), surface.height(), surface.bytesPerLine(),
                  surface.format());
}

QImage devicePixels(const QImage& surface) {
    return QImage(surface.constBits(), surface.width(), surface.height(), surface.bytesPerLine(),
                  surface.format());
}

void blitWith(QImage& target, QPainter::CompositionMode mode, int x, int y, const QImage& source,
              int sx, int sy, int w, int h) {
    const int scale = surfaceScale(target);
    Q_ASSERT(surfaceScale(source) == scale);
    QImage pixels = devicePixels(target);
    QPainter painter(&pixels);
    painter.setCompositionMode(mode);
    painter.drawImage(QPoint(x * scale, y * scale), devicePixels(source),
                      QRect(sx * scale, sy * scale, w * scale, h * scale));
}

} // namespace

QImage makeSurface(int width, int height, QColor fill, int scale) {
    QImage surface(width * scale, height * scale, QImage::Format_RGB32);
    surface.setDevicePixelRatio(scale);
    surface.fill(fill);
    return surface;
}

int surfaceScale(const QImage& surface) {
    return qRound(surface.devicePixelRatio());
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

void paintPicturePart(QPainter& painter, QPoint at, const QImage& picture, const QRect& part) {
    const double scale = picture.devicePixelRatio();
    const bool sameScale = painter.device() && painter.device()->devicePixelRatio() == scale;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !sameScale);
    painter.drawImage(
        QRect(at, part.size()), picture,
        QRectF(part.x() * scale, part.y() * scale, part.width() * scale, part.height() * scale));
}

void paintPicture(QPainter& painter, const QImage& picture) {
    const QRect whole(QPoint(0, 0), picture.deviceIndependentSize().toSize());
    paintPicturePart(painter, whole.topLeft(), picture, whole);
}

void paintPictureArea(QPainter& painter, const QRect& area, const QImage& picture) {
    paintPicturePart(painter, area.topLeft(), picture, area);
}

} // namespace morvane
