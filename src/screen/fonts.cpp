#include "screen/fonts.h"

#include <algorithm>
#include <cmath>

namespace morvane {

namespace {
constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr int kUnboundedText = 4096;
} // namespace

QFont gameFont(const QString& family, double points, bool bold) {
    QFont font(family);
    font.setPixelSize(std::max(1, int(std::lround(points * kPixelsPerPoint))));
    font.setBold(bold);
    return font;
}

void printAt(QPainter& painter, QPoint topLeft, const QString& text) {
    painter.drawText(QRect(topLeft, QSize(kUnboundedText, kUnboundedText)),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, text);
}

} // namespace morvane
