// Fonts and lettering shared by the pictures.
#pragma once

#include <QFont>
#include <QImage>
#include <QString>

namespace morvane::assets {

// A picture of `width` by `height` in one colour, to draw on.
QImage filledPicture(int width, int height, QColor colour);

// The sans-serif face of the game's pictures, sized in pixels.
QFont gameFont(int pixelSize, bool bold);

// Black picture of `width` by `height` with `text` centred in `colour`.
QImage wordPicture(int width, int height, const QString& text, QColor colour, int pixelSize);

} // namespace morvane::assets
