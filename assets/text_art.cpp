#include "text_art.h"

#include <QPainter>

namespace morvane::assets {

QImage filledPicture(int width, int height, QColor colour, int scale) {
    QImage image(width * scale, height * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(colour);
    return image;
}

QRect drawingArea(const QImage& picture) {
    return QRect(QPoint(0, 0), picture.deviceIndependentSize().toSize());
}

QFont gameFont(int pixelSize, bool bold) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

QImage wordPicture(int width, int height, const QString& text, QColor colour, int pixelSize,
                   int scale) {
    QImage image = filledPicture(width, height, Qt::black, scale);
    QPainter p(&image);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(gameFont(pixelSize, true));
    p.setPen(colour);
    p.drawText(drawingArea(image), Qt::AlignCenter, text);
    return image;
}

} // namespace morvane::assets
