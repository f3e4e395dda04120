// Block copies between picture surfaces, with the three raster operations the game draws with:
// a plain copy, AND (a mask darkens its disc) and XOR (a sprite on black goes onto the dark disc).
//
// A surface may hold 2 or 3 pixels a side for each pixel of the layout (its devicePixelRatio says
// which, as for the pictures of a finer set). Places and sizes are given in the layout's pixels
// all the same; the operations work on every pixel the surfaces hold, so that a finer surface
// gives the same picture, only sharper.
#pragma once

#include <QImage>
#include <QPainter>

namespace morvane {

// Every surface is 32 bits a pixel, so the raster operations work on whole colour values.
QImage makeSurface(int width, int height, QColor fill = Qt::black, int scale = 1);
// How many pixels a side a surface holds for each pixel of the layout.
int surfaceScale(const QImage& surface);

// Source and target are of one scale.
void blitCopy(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h);
void blitAnd(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h);
void blitInvert(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h);
// A mask and then a sprite: the sprite stands opaque on whatever lay under it.
void blitMasked(QImage& target, int x, int y, const QImage& source, int maskX, int maskY,
                int spriteX, int spriteY, int size);

// Paints `part` of a picture (in the layout's pixels) with its top left corner at `at`, on a
// screen of any scale; a picture of another scale than the screen's is smoothed to it.
void paintPicturePart(QPainter& painter, QPoint at, const QImage& picture, const QRect& part);
// The same for a whole picture, or for the part of a picture under an area of the painter.
void paintPicture(QPainter& painter, const QImage& picture);
void paintPictureArea(QPainter& painter, const QRect& area, const QImage& picture);

} // namespace morvane
