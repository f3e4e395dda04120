// Fonts and lettering shared by the pictures.
#pragma once

#include <QFont>
#include <QImage>
#include <QString>

namespace morvane::assets {

// A picture of `width` by `height` in one colour, to draw on. At a scale above 1 it holds that
// many pixels a side for each of its own, and a painter on it still works in the sizes given.
QImage filledPicture(int width, int height, QColor colour, int scale = 1);

// The picture's whole area in the sizes a painter on it works in.
QRect drawingArea(const QImage& picture);

// The sans-serif face of the game's pictures, sized in pixels.
QFont gameFont(int pixelSize, bool bold);

// Black picture of `width` by `height` with `text` centred in `colour`.
QImage wordPicture(int width, int height, const QString& text, QColor colour, int pixelSize,
                   int scale);

} // namespace morvane::assets
