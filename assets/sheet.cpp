#include "sheet.h"

#include "ball_art.h"
#include "sheet_layout.h"
#include "text_art.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace morvane::assets {

namespace {

constexpr int kCushionWidth = 7;
constexpr int kRailEdge = 2;
constexpr QColor kWood{118, 64, 28};
constexpr QColor kWoodEdge{196, 134, 70};
constexpr QColor kCushion{0, 92, 0};
constexpr QColor kCushionLip{30, 140, 30};
constexpr QColor kSight{236, 220, 170};
constexpr QColor kPocketRim{60, 36, 16};
constexpr QColor kGreen{0, 255, 0};
constexpr QColor kMagenta{255, 0, 255};
constexpr double kSpotRadius = 2.2;
constexpr int kSightSpacing = 60;

// Wood with a grain running along each rail, at a point of the table.
QColor woodAt(double x, double y) {
    const bool sideRail = (x < kPlayLeft || x >= kPlayRight) && y >= kPlayTop && y < kPlayBottom;
    const double along = sideRail ? y : x;
    const double across = sideRail ? x : y;
    const double grain = std::sin(across * 1.7 + 2.5 * std::sin(along * 0.043 + across * 0.3)) +
                         0.5 * std::sin(along * 0.19 + across * 4.1);
    const double f = 1.0 + 0.07 * grain;
    return QColor(std::clamp(int(kWood.red() * f), 0, 255),
                  std::clamp(int(kWood.green() * f), 0, 255),
                  std::clamp(int(kWood.blue() * f), 0, 255));
}

// The point of the table that a pixel of the picture shows, with the pixels of a picture at
// scale 1 on whole numbers.
double tablePoint(int pixel, int scale) {
    return (pixel + 0.5) / scale - 0.5;
}

void paintRail(QImage& table, int scale) {
    for (int y = 0; y < table.height(); ++y)
        for (int x = 0; x < table.width(); ++x)
            table.setPixelColor(x, y, woodAt(tablePoint(x, scale), tablePoint(y, scale)));
    QPainter p(&table);
    p.setPen(Qt::NoPen);
    // Lighter edges: the outer rim and the inner border where the cushion starts.
    p.setBrush(kWoodEdge);
    const QRect outer(0, 0, kSheetWidth, kTableHeight);
    const QRect inner(kPlayLeft - kCushionWidth - kRailEdge, kPlayTop - kCushionWidth - kRailEdge,
                      kPlayRight - kPlayLeft + 2 * (kCushionWidth + kRailEdge),
                      kPlayBottom - kPlayTop + 2 * (kCushionWidth + kRailEdge));
    QPainterPath rim;
    rim.addRect(outer);
    rim.addRect(outer.adjusted(kRailEdge, kRailEdge, -kRailEdge, -kRailEdge));
    p.drawPath(rim);
    p.drawRect(inner);
    // The cushions, with a lit lip along their face.
    p.setBrush(kCushion);
    p.drawRect(inner.adjusted(kRailEdge, kRailEdge, -kRailEdge, -kRailEdge));
    p.setBrush(kCushionLip);
    p.drawRect(
        QRect(kPlayLeft - 2, kPlayTop - 2, kPlayRight - kPlayLeft + 4, kPlayBottom - kPlayTop + 4));
}

void paintSights(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(kSight);
    const int railMiddle = (kPlayTop - kCushionWidth - kRailEdge) / 2;
    auto diamond = [&p](QPointF c) {
        const QPointF pts[] = {c + QPointF(0, -2.5), c + QPointF(2.5, 0), c + QPointF(0, 2.5),
                               c + QPointF(-2.5, 0)};
        p.drawPolygon(pts, 4);
    };
    for (int x = kPlayLeft + kSightSpacing; x < kPlayRight; x += kSightSpacing) {
        if (x == (kPlayLeft + kPlayRight) / 2)
            continue; // the middle pockets
        diamond(QPointF(x, railMiddle));
        diamond(QPointF(x, kTableHeight - railMiddle));
    }
    for (int y = kPlayTop + kSightSpacing; y < kPlayBottom; y += kSightSpacing) {
        diamond(QPointF(railMiddle, y));
        diamond(QPointF(kSheetWidth - railMiddle, y));
    }
}

void paintPockets(QPainter& p) {
    for (const QPoint& c : kPocketCentres) {
        const bool middle = c.x() == (kPlayLeft + kPlayRight) / 2;
        const int r = middle ? kMiddlePocketRadius : kCornerPocketRadius;
        p.setPen(Qt::NoPen);
        p.setBrush(kPocketRim);
        p.drawEllipse(QPointF(c), r + 3.0, r + 3.0);
        p.setBrush(Qt::black);
        p.drawEllipse(QPointF(c), double(r), double(r));
    }
}

void paintTable(QImage& sheet, int scale) {
    paintRail(sheet, scale);
    QPainter p(&sheet);
    p.setRenderHint(QPainter::Antialiasing);
    paintSights(p);
    p.fillRect(QRect(kPlayLeft, kPlayTop, kPlayRight - kPlayLeft, kPlayBottom - kPlayTop),
               kClothColour);
    paintPockets(p);
    p.setPen(Qt::NoPen);
    p.setBrush(kSpotColour);
    for (const QPoint& s : kSpots)
        p.drawEllipse(QPointF(s) + QPointF(0.5, 0.5), kSpotRadius, kSpotRadius);
}

void paintFigure(QPainter& p, QPointF feet, double height, QColor colour) {
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    const double head = height * 0.17;
    p.drawEllipse(QPointF(feet.x(), feet.y() - height + head), head, head);
    QPainterPath body;
    const double shoulders = feet.y() - height + 2.3 * head;
    body.moveTo(feet.x() - height * 0.26, feet.y());
    body.lineTo(feet.x() - height * 0.2, shoulders + head * 0.4);
    body.quadTo(feet.x(), shoulders - head * 0.5, feet.x() + height * 0.2, shoulders + head * 0.4);
    body.lineTo(feet.x() + height * 0.26, feet.y());
    body.closeSubpath();
    p.drawPath(body);
}

void paintComputer(QPainter& p, QRectF box, QColor colour) {
    p.setPen(QPen(colour, 1.6));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(box, 1.5, 1.5);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    const QRectF screen = box.adjusted(2.5, 2.5, -2.5, -box.height() * 0.45);
    p.drawRect(screen);
    p.drawRect(QRectF(box.left() + 2.5, box.bottom() - 3.5, box.width() - 5, 1.2));
}

QImage modeIcon(int kind, int scale) {
    QImage icon = filledPicture(kIconSize, kIconSize, Qt::black, scale);
    QPainter p(&icon);
    p.setRenderHint(QPainter::Antialiasing);
    if (kind == 0) {
        paintFigure(p, QPointF(12.5, 23), 20, kGreen);
    } else {
        paintFigure(p, QPointF(8, 23), 19, kGreen);
        if (kind == 1)
            paintComputer(p, QRectF(13.5, 8, 10, 14), kMagenta);
        else
            paintFigure(p, QPointF(18, 23), 19, kMagenta);
    }
    return icon;
}

void paintSprites(QImage& sheet, int scale) {
    QPainter p(&sheet);
    for (int i = 0; i < kBallCount; ++i) {
        p.drawImage(kCellSize * i, kRestRow, ballCell(i, kCellSize, true, scale));
        p.drawImage(kCellSize * i, kRollingRow, ballCell(i, kCellSize, false, scale));
        p.drawImage(kSmallBallSize * i, kSmallPlainRow, ballCell(i, kSmallBallSize, false, scale));
        p.drawImage(kSmallBallSize * i, kSmallNumberedRow,
                    ballCell(i, kSmallBallSize, true, scale));
    }
    p.drawImage(kMaskColumn, kRestRow, discCell(kCellSize, Qt::black, Qt::white, scale));
    p.drawImage(kMaskColumn, kRollingRow, discCell(kCellSize, kShadowColour, Qt::black, scale));
    p.drawImage(kSoloIconLeft, kIconTop, modeIcon(0, scale));
    p.drawImage(kVersusCpuIconLeft, kIconTop, modeIcon(1, scale));
    p.drawImage(kVersusIconLeft, kIconTop, modeIcon(2, scale));
}

} // namespace

QImage tablePicture(int scale) {
    QImage table = filledPicture(kSheetWidth, kTableHeight, Qt::black, scale);
    paintTable(table, scale);
    return table;
}

QImage tableSheet(bool withSetPointBall, int scale) {
    QImage sheet = filledPicture(kSheetWidth, kSheetHeight, Qt::white, scale);
    {
        QPainter p(&sheet);
        p.drawImage(0, 0, tablePicture(scale));
    }
    paintSprites(sheet, scale);
    if (withSetPointBall) {
        QPainter p(&sheet);
        p.drawImage(kSetPointCorner, setPointBall(scale));
    }
    return sheet;
}

std::vector<QRgb> sheetColours() {
    return {kClothColour.rgb(), kShadowColour.rgb(), kSpotColour.rgb()};
}

QImage setPointBall(int scale) {
    QImage image = filledPicture(kSetPointSize, kSetPointSize, QColor(64, 64, 64), scale);
    BallStyle style;
    style.light = Light{0.0, -0.75, 0.66};
    const double half = kSetPointSize / 2.0;
    paintBall(image, QPointF(half, half), half, ballLook(0), style);
    return image;
}

} // namespace morvane::assets
