#include "form_pictures.h"

#include "ball_art.h"
#include "game/version.h"
#include "text_art.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace morvane::assets {

namespace {

constexpr int kOpeningWidth = 229;
constexpr int kOpeningHeight = 168;
constexpr int kFaceSize = 32;
constexpr int kButtonWidth = 66;
constexpr int kButtonHeight = 34;
constexpr QColor kCredit{0, 192, 192};
constexpr QColor kSkin{255, 214, 150};
constexpr QColor kOutline{72, 36, 16};
constexpr QColor kCap{0, 150, 60};
constexpr QColor kCapShade{0, 96, 40};
constexpr QColor kMouth{176, 40, 40};
constexpr QColor kCheek{255, 150, 140};

void paintDarkGround(QPainter& p) {
    QRadialGradient ground(QPointF(kOpeningWidth / 2.0, 90), 150);
    ground.setColorAt(0, QColor(0, 56, 36));
    ground.setColorAt(1, QColor(0, 6, 12));
    p.fillRect(QRect(0, 0, kOpeningWidth, kOpeningHeight), ground);
}

void paintOpeningTitle(QPainter& p) {
    QFont font = gameFont(30, true);
    font.setItalic(true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    QPainterPath title;
    title.addText(QPointF(0, 0), font, QStringLiteral("MORVANE"));
    const QRectF box = title.boundingRect();
    title.translate(kOpeningWidth / 2.0 - box.center().x(), 34);
    QLinearGradient fill(0, 10, 0, 36);
    fill.setColorAt(0, QColor(190, 255, 190));
    fill.setColorAt(1, QColor(0, 170, 60));
    p.setPen(QPen(QColor(0, 40, 10), 1.2));
    p.setBrush(fill);
    p.drawPath(title);
}

void paintCredits(QPainter& p) {
    p.setPen(kCredit);
    p.setFont(gameFont(11, true));
    p.drawText(QRect(0, 140, kOpeningWidth, 14), Qt::AlignCenter,
               QString("Ver.%1  Program by zeph").arg(morvane::kVersion));
    p.drawText(QRect(0, 153, kOpeningWidth, 14), Qt::AlignCenter,
               QStringLiteral("BGMs by lirra 1998"));
}

} // namespace

QImage openingPicture(int scale) {
    QImage image = filledPicture(kOpeningWidth, kOpeningHeight, Qt::black, scale);
    {
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        paintDarkGround(p);
        paintOpeningTitle(p);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 110));
        p.drawEllipse(QPointF(kOpeningWidth / 2.0 + 6, 126), 34, 8);
    }
    paintNumberedBall(image, QPointF(kOpeningWidth / 2.0, 88), 38, 9);
    QPainter p(&image);
    paintCredits(p);
    return image;
}

QImage zephFace(int frame, int scale) {
    QImage face = filledPicture(kFaceSize, kFaceSize, Qt::black, scale);
    {
        // Flat colours without smoothing: the face is drawn as a small pixel picture.
        QPainter p(&face);
        p.setPen(QPen(kOutline, 1));
        p.setBrush(kSkin);
        p.drawEllipse(QRect(3, 4, 26, 26));
        p.setBrush(kCap);
        p.drawChord(QRect(4, 2, 24, 20), 0, 180 * 16);
        p.setPen(Qt::NoPen);
        p.setBrush(kCapShade);
        p.drawRect(QRect(3, 11, 27, 2));
        p.setBrush(kCheek);
        p.drawRect(QRect(7, 21, 3, 2));
        p.drawRect(QRect(22, 21, 3, 2));
        // The eyes close from the top as the frames go on.
        const int openRows = 5 - frame * 5 / (kZephFrameCount - 1);
        for (int eyeLeft : {9, 19}) {
            if (openRows > 0) {
                p.setBrush(Qt::white);
                p.drawRect(QRect(eyeLeft, 20 - openRows, 4, openRows));
                p.setBrush(Qt::black);
                p.drawRect(
                    QRect(eyeLeft + 1, 20 - std::min(openRows, 3), 2, std::min(openRows, 3)));
            }
            p.setBrush(kOutline);
            p.drawRect(QRect(eyeLeft - 1, 20, 6, 1));
        }
        p.setPen(QPen(kMouth, 1));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRect(11, 19, 10, 7), 200 * 16, 140 * 16);
    }
    return face;
}

QImage zephFrames(int scale) {
    QImage strip = filledPicture(kFaceSize * kZephFrameCount, kFaceSize, Qt::black, scale);
    QPainter p(&strip);
    for (int f = 0; f < kZephFrameCount; ++f)
        p.drawImage(kFaceSize * f, 0, zephFace(f, scale));
    return strip;
}

QImage buttonPicture(const QString& caption, int scale) {
    QImage image = filledPicture(kButtonWidth, kButtonHeight, Qt::black, scale);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient face(0, 0, 0, kButtonHeight);
    face.setColorAt(0, QColor(84, 84, 84));
    face.setColorAt(0.5, QColor(44, 44, 44));
    face.setColorAt(1, QColor(20, 20, 20));
    p.setPen(QPen(QColor(0, 200, 0), 1.5));
    p.setBrush(face);
    p.drawRoundedRect(QRectF(1, 1, kButtonWidth - 2, kButtonHeight - 2), 6, 6);
    p.setPen(QColor(0, 255, 0));
    p.setFont(gameFont(caption.size() > 2 ? 15 : 18, true));
    p.drawText(drawingArea(image), Qt::AlignCenter, caption);
    return image;
}

QImage iconPicture(int size) {
    QImage icon(size, size, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    {
        QPainter p(&icon);
        p.setRenderHint(QPainter::Antialiasing);
        QRadialGradient shadow(QPointF(size * 0.55, size * 0.88), size * 0.36);
        shadow.setColorAt(0, QColor(0, 0, 0, 120));
        shadow.setColorAt(1, QColor(0, 0, 0, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(shadow);
        p.drawEllipse(QPointF(size * 0.55, size * 0.88), size * 0.36, size * 0.1);
    }
    paintNumberedBall(icon, QPointF(size * 0.5, size * 0.46), size * 0.42, 9);
    return icon;
}

} // namespace morvane::assets
