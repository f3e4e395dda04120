// Comparing a picture with the same picture drawn at a finer scale: each of its pixels against
// the mean of the pixels the finer one holds in its place.
#pragma once

#include <QImage>
#include <QRect>
#include <cstdlib>

namespace morvane::testing {

// The mean difference over an area of the coarse picture (its whole area if none is given), a
// pixel's difference being the mean over the three channels, 0 to 255.
inline double meanDifference(const QImage& coarse, const QImage& finer, int scale,
                             QRect area = QRect()) {
    if (area.isNull())
        area = coarse.rect();
    const QImage a = coarse.convertToFormat(QImage::Format_RGB32);
    const QImage b = finer.convertToFormat(QImage::Format_RGB32);
    const int n = scale * scale;
    double sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            int red = 0, green = 0, blue = 0;
            for (int k = 0; k < n; ++k) {
                const QRgb c = b.pixel(x * scale + k % scale, y * scale + k / scale);
                red += qRed(c);
                green += qGreen(c);
                blue += qBlue(c);
            }
            const QRgb p = a.pixel(x, y);
            sum += (std::abs(qRed(p) - red / n) + std::abs(qGreen(p) - green / n) +
                    std::abs(qBlue(p) - blue / n)) /
                   3;
        }
    }
    return sum / (double(area.width()) * area.height());
}

} // namespace morvane::testing
