#include "text_art.h"

#include <QPainter>

namespace morvane::assets {

QImage filledPicture(int width, int height, QColor colour) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QFont gameFont(int pixelSize, bool bold) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

QImage wordPicture(int width, int height, const QString& text, QColor colour, int pixelSize) {
    QImage image = filledPicture(width, height, Qt::black);
    QPainter p(&image);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(gameFont(pixelSize, true));
    p.setPen(colour);
    p.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
}

} // namespace morvane::assets
