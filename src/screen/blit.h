// Block copies between picture surfaces, with the three raster operations the game draws with:
// a plain copy, AND (a mask darkens its disc) and XOR (a sprite on black goes onto the dark disc).
#pragma once

#include <QImage>

namespace morvane {

// Every surface is 32 bits a pixel, so the raster operations work on whole colour values.
QImage makeSurface(int width, int height, QColor fill = Qt::black);

void blitCopy(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h);
void blitAnd(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h);
void blitInvert(QImage& target, int x, int y, const QImage& source, int sx, int sy, int w, int h);
// A mask and then a sprite: the sprite stands opaque on whatever lay under it.
void blitMasked(QImage& target, int x, int y, const QImage& source, int maskX, int maskY,
                int spriteX, int spriteY, int size);

} // namespace morvane
