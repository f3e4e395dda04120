#include "menu_pictures.h"

#include "ball_art.h"
#include "text_art.h"

#include <QConicalGradient>
#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QTransform>
#include <algorithm>
#include <array>
#include <vector>

namespace morvane::assets {

namespace {

constexpr int kMenuWidth = 540;
constexpr int kMenuHeight = 365;
constexpr int kSwitchSize = 40;
constexpr QColor kDimGreen{51, 153, 102};
constexpr QColor kBrightGreen{0, 255, 0};
constexpr QColor kDimPurple{153, 51, 102};
constexpr QColor kBrightMagenta{255, 0, 255};
constexpr QColor kSwitchInk{0, 210, 210};
constexpr double kTableBallRadius = 10.0; // in pixels of the table seen from above

// The table's corners on the menu, far side first: a trapezoid seen from the near end.
const QPolygonF kTableOnMenu({QPointF(182, 176), QPointF(438, 176), QPointF(520, 326),
                              QPointF(96, 326)});

struct Word {
    const char* text;
    int width;
    int height;
    bool green;
};

Word wordOf(MenuWord w) {
    switch (w) {
    case MenuWord::SoloPlay:
        return {"Solo Play", 163, 41, true};
    case MenuWord::VsCpu:
        return {"VS. CPU", 135, 41, true};
    case MenuWord::VsPlay:
        return {"VS. Play", 143, 41, true};
    case MenuWord::Record:
        return {"Record", 126, 39, false};
    case MenuWord::Exit:
        return {"Exit", 70, 39, false};
    }
    return {"", 1, 1, true};
}

void paintTitle(QPainter& p) {
    QFont font = gameFont(50, true);
    font.setItalic(true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    QPainterPath title;
    title.addText(QPointF(14, 50), font, QStringLiteral("MORVANE"));
    QLinearGradient fill(0, 12, 0, 52);
    fill.setColorAt(0, QColor(180, 255, 180));
    fill.setColorAt(0.5, QColor(0, 220, 60));
    fill.setColorAt(1, QColor(0, 110, 40));
    p.setPen(QPen(QColor(0, 60, 20), 1.5));
    p.setBrush(fill);
    p.drawPath(title);
}

// A soft pool of light on the floor under the table.
void paintGlow(QPainter& p) {
    QRadialGradient glow(QPointF(308, 262), 260);
    glow.setColorAt(0, QColor(0, 70, 30));
    glow.setColorAt(0.6, QColor(0, 24, 10));
    glow.setColorAt(1, QColor(0, 0, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(QPointF(308, 262), 260, 100);
}

struct PlacedBall {
    QPointF onTable; // pixels of the table seen from above
    int number;
};

std::vector<PlacedBall> rackedBalls() {
    const std::array<std::array<int, 3>, 5> rows = {
        {{1, 0, 0}, {2, 3, 0}, {4, 9, 5}, {6, 7, 0}, {8, 0, 0}}};
    const std::array<int, 5> counts = {1, 2, 3, 2, 1};
    std::vector<PlacedBall> balls;
    for (int k = 0; k < 5; ++k)
        for (int j = 0; j < counts[k]; ++j)
            balls.push_back(
                {QPointF(390 + k * 17.6, 150 + (j - (counts[k] - 1) / 2.0) * 20.4), rows[k][j]});
    balls.push_back({QPointF(140, 172), 0});
    return balls;
}

void paintCue(QPainter& p, QPointF tip, QPointF butt) {
    const QPointF along = (butt - tip) / std::hypot(butt.x() - tip.x(), butt.y() - tip.y());
    const QPointF side(-along.y(), along.x());
    QPolygonF shaft({tip + side * 1.4, butt + side * 4.5, butt - side * 4.5, tip - side * 1.4});
    QLinearGradient wood(tip, butt);
    wood.setColorAt(0, QColor(236, 214, 170));
    wood.setColorAt(0.62, QColor(206, 160, 96));
    wood.setColorAt(0.64, QColor(40, 20, 14));
    wood.setColorAt(1, QColor(70, 30, 20));
    p.setPen(Qt::NoPen);
    p.setBrush(wood);
    p.drawPolygon(shaft);
    p.setBrush(QColor(70, 110, 200));
    p.drawEllipse(tip, 1.6, 1.6);
}

} // namespace

QImage menuPicture(const QImage& tableFromAbove, int scale) {
    QImage menu = filledPicture(kMenuWidth, kMenuHeight, Qt::black, scale);
    QTransform toMenu;
    const double w = tableFromAbove.deviceIndependentSize().width();
    const double h = tableFromAbove.deviceIndependentSize().height();
    const QPolygonF flat({QPointF(0, 0), QPointF(w, 0), QPointF(w, h), QPointF(0, h)});
    QTransform::quadToQuad(flat, kTableOnMenu, toMenu);
    {
        QPainter p(&menu);
        p.setRenderHint(QPainter::Antialiasing);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        paintGlow(p);
        paintTitle(p);
        p.setTransform(toMenu);
        p.drawImage(0, 0, tableFromAbove);
        // Ball shadows on the cloth, thrown toward the viewer.
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 90));
        for (const PlacedBall& b : rackedBalls())
            p.drawEllipse(b.onTable + QPointF(3, 4), kTableBallRadius, kTableBallRadius * 0.8);
    }
    std::vector<PlacedBall> balls = rackedBalls();
    std::sort(balls.begin(), balls.end(), [](const PlacedBall& a, const PlacedBall& b) {
        return a.onTable.y() < b.onTable.y();
    });
    for (const PlacedBall& b : balls) {
        const QPointF centre = toMenu.map(b.onTable);
        const QPointF edge = toMenu.map(b.onTable + QPointF(kTableBallRadius, 0));
        const double radius = edge.x() - centre.x();
        paintNumberedBall(menu, centre - QPointF(0, radius * 0.35), radius, b.number);
    }
    QPainter p(&menu);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF cueBall = toMenu.map(rackedBalls().back().onTable);
    paintCue(p, cueBall + QPointF(-14, 9), QPointF(-10, 362));
    return menu;
}

QImage menuWordPicture(MenuWord word, bool lit, int scale) {
    const Word w = wordOf(word);
    const QColor colour =
        w.green ? (lit ? kBrightGreen : kDimGreen) : (lit ? kBrightMagenta : kDimPurple);
    const QString text = QString::fromLatin1(w.text);
    int pixels = w.height * 3 / 4;
    while (pixels > 8 && QFontMetrics(gameFont(pixels, true)).horizontalAdvance(text) > w.width - 6)
        --pixels;
    return wordPicture(w.width, w.height, text, colour, pixels, scale);
}

namespace {

void paintNote(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(kSwitchInk);
    QTransform tilt;
    tilt.translate(12, 29);
    tilt.rotate(-20);
    p.setTransform(tilt);
    p.drawEllipse(QPointF(0, 0), 5.2, 3.8);
    p.resetTransform();
    tilt.reset();
    tilt.translate(27, 26);
    tilt.rotate(-20);
    p.setTransform(tilt);
    p.drawEllipse(QPointF(0, 0), 5.2, 3.8);
    p.resetTransform();
    p.drawRect(QRectF(15.6, 8, 2.2, 20));
    p.drawRect(QRectF(30.6, 5, 2.2, 20));
    QPolygonF beam({QPointF(15.6, 8), QPointF(32.8, 5), QPointF(32.8, 10), QPointF(15.6, 13)});
    p.drawPolygon(beam);
}

void paintSpeaker(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(kSwitchInk);
    QPolygonF body({QPointF(6, 15), QPointF(12, 15), QPointF(20, 7), QPointF(20, 33),
                    QPointF(12, 25), QPointF(6, 25)});
    p.drawPolygon(body);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(kSwitchInk, 2.2, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 3; ++i) {
        const double r = 5 + 5 * i;
        p.drawArc(QRectF(20 - r, 20 - r, 2 * r, 2 * r), -45 * 16, 90 * 16);
    }
}

void paintColourBall(QPainter& p) {
    QConicalGradient hues(QPointF(20, 20), 90);
    const std::array<QColor, 7> colours = {
        QColor(255, 40, 40), QColor(255, 220, 0), QColor(40, 220, 40), QColor(0, 200, 255),
        QColor(60, 60, 255), QColor(230, 0, 230), QColor(255, 40, 40)};
    for (size_t i = 0; i < colours.size(); ++i)
        hues.setColorAt(static_cast<double>(i) / (colours.size() - 1), colours[i]);
    p.setPen(Qt::NoPen);
    p.setBrush(hues);
    p.drawEllipse(QPointF(20, 20), 15, 15);
    QRadialGradient light(QPointF(14, 13), 17);
    light.setColorAt(0, QColor(255, 255, 255, 200));
    light.setColorAt(0.25, QColor(255, 255, 255, 40));
    light.setColorAt(0.8, QColor(0, 0, 0, 0));
    light.setColorAt(1, QColor(0, 0, 0, 120));
    p.setBrush(light);
    p.drawEllipse(QPointF(20, 20), 15, 15);
}

void paintCross(QPainter& p) {
    p.setPen(QPen(kBrightGreen, 4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(6, 6), QPointF(34, 34));
    p.drawLine(QPointF(34, 6), QPointF(6, 34));
}

} // namespace

QImage menuSwitchPicture(MenuSwitch which, bool off, int scale) {
    QImage image = filledPicture(kSwitchSize, kSwitchSize, Qt::black, scale);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    switch (which) {
    case MenuSwitch::Bgm:
        paintNote(p);
        break;
    case MenuSwitch::Sound:
        paintSpeaker(p);
        break;
    case MenuSwitch::Color:
        paintColourBall(p);
        break;
    }
    if (off)
        paintCross(p);
    return image;
}

} // namespace morvane::assets
