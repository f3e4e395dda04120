// Comparing a picture with the same picture drawn at a finer scale: each of its pixels against
// the mean of the pixels the finer one holds in its place.
#pragma once

#include <QImage>
#include <QRect>
#include <cstdlib>

namespace morvane::testing {

// The mean of the finer picture's pixels over one pixel of the coarse one, as a colour.
inline QRgb meanOverPixel(const QImage& finer, int x, int y, int scale) {
    int r = 0, g = 0, b = 0;
    for (int dy = 0; dy < scale; ++dy) {
        for (int dx = 0; dx < scale; ++dx) {
            const QRgb c = finer.pixel(x * scale + dx, y * scale + dy);
            r += qRed(c);
            g += qGreen(c);
            b += qBlue(c);
        }
    }
    const int n = scale * scale;
    return qRgb(r / n, g / n, b / n);
}

// The difference of two colours: the mean over the three channels, 0 to 255.
inline int colourDifference(QRgb a, QRgb b) {
    return (std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
            std::abs(qBlue(a) - qBlue(b))) /
           3;
}

// The mean difference over an area of the coarse picture (its whole area if none is given).
inline double meanDifference(const QImage& coarse, const QImage& finer, int scale,
                             QRect area = QRect()) {
    if (area.isNull())
        area = coarse.rect();
    const QImage a = coarse.convertToFormat(QImage::Format_RGB32);
    const QImage b = finer.convertToFormat(QImage::Format_RGB32);
    double sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            sum += colourDifference(a.pixel(x, y), meanOverPixel(b, x, y, scale));
    return sum / (double(area.width()) * area.height());
}

} // namespace morvane::testing
