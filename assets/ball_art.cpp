#include "ball_art.h"

#include "text_art.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace morvane::assets {

namespace {

constexpr int kSamplesPerAxis = 4;
constexpr double kAmbient = 0.3;
constexpr double kDiffuse = 0.78;
constexpr double kSpecular = 0.9;
constexpr double kShininess = 55.0;
constexpr double kNumberDiscCosine = 0.87; // the disc covers about half the ball's radius
constexpr double kBandHalfHeight = 0.5;    // the band of the nine, in units of the radius
constexpr int kSmallCellLimit = 16;        // below this a cell has no room for a number disc

const std::array<QColor, kBallCount> kBodies = {
    QColor(236, 236, 228), QColor(246, 198, 18), QColor(24, 64, 200), QColor(214, 28, 30),
    QColor(104, 36, 150),  QColor(246, 116, 20), QColor(0, 108, 100), QColor(124, 18, 26),
    QColor(24, 24, 28),    QColor(236, 236, 228)};

const QColor kNineBand(246, 198, 18);
const QColor kDiscWhite(244, 244, 238);

struct Rgb {
    double r = 0, g = 0, b = 0;
};

struct Vec3 {
    double x, y, z;
};

Vec3 normalised(Vec3 v) {
    const double n = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return {v.x / n, v.y / n, v.z / n};
}

double dot(Vec3 a, Vec3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

QColor surfaceColour(Vec3 n, const BallLook& look, const BallStyle& style) {
    if (style.numberDisc && n.z > kNumberDiscCosine)
        return kDiscWhite;
    if (look.striped && std::abs(n.y) < kBandHalfHeight)
        return look.band;
    return look.body;
}

Rgb shade(Vec3 n, const BallLook& look, const BallStyle& style) {
    const Vec3 light = normalised({style.light.x, style.light.y, style.light.z});
    const Vec3 halfway = normalised({light.x, light.y, light.z + 1.0});
    const double diffuse = std::max(0.0, dot(n, light));
    const double specular = kSpecular * std::pow(std::max(0.0, dot(n, halfway)), kShininess);
    const double lit = kAmbient + kDiffuse * diffuse;
    const QColor c = surfaceColour(n, look, style);
    return {c.red() * lit + 255.0 * specular, c.green() * lit + 255.0 * specular,
            c.blue() * lit + 255.0 * specular};
}

int toByte(double v) {
    return std::clamp(static_cast<int>(std::lround(v)), 0, 255);
}

// Prints the ball's number centred in `box`: black on the white disc, or straight on the
// body of a ball too small for a disc.
void printNumber(QImage& image, QRectF box, int number, const BallLook& look, bool onDisc) {
    QPainter p(&image);
    p.setRenderHint(QPainter::TextAntialiasing);
    QColor ink(0, 0, 0);
    if (!onDisc && !look.striped && look.body.lightness() < 140)
        ink = QColor(255, 255, 255);
    p.setPen(ink);
    const double size = box.width();
    p.setFont(gameFont(static_cast<int>(std::lround(onDisc ? size / 2 : size - 1)), true));
    p.drawText(box, Qt::AlignCenter, QString::number(number));
}

} // namespace

BallLook ballLook(int number) {
    BallLook look;
    look.body = kBodies.at(static_cast<size_t>(number));
    look.band = kNineBand;
    look.striped = number == 9;
    return look;
}

void paintBall(QImage& image, QPointF where, double size, const BallLook& look,
               const BallStyle& style) {
    // Worked out in the picture's own pixels, however many it holds for each drawing unit.
    const double scale = image.devicePixelRatio();
    const QPointF centre = where * scale;
    const double radius = size * scale;
    const double ry = radius * style.squash;
    const int left = std::max(0, static_cast<int>(std::floor(centre.x() - radius)));
    const int right = std::min(image.width() - 1, static_cast<int>(std::ceil(centre.x() + radius)));
    const int top = std::max(0, static_cast<int>(std::floor(centre.y() - ry)));
    const int bottom = std::min(image.height() - 1, static_cast<int>(std::ceil(centre.y() + ry)));
    constexpr double step = 1.0 / kSamplesPerAxis;
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            Rgb sum;
            int hits = 0;
            for (int sy = 0; sy < kSamplesPerAxis; ++sy) {
                for (int sx = 0; sx < kSamplesPerAxis; ++sx) {
                    const double dx = (x + (sx + 0.5) * step - centre.x()) / radius;
                    const double dy = (y + (sy + 0.5) * step - centre.y()) / ry;
                    const double d2 = dx * dx + dy * dy;
                    if (d2 > 1.0)
                        continue;
                    const Rgb c = shade({dx, dy, std::sqrt(1.0 - d2)}, look, style);
                    sum.r += c.r;
                    sum.g += c.g;
                    sum.b += c.b;
                    ++hits;
                }
            }
            if (hits == 0)
                continue;
            const double cover = static_cast<double>(hits) / (kSamplesPerAxis * kSamplesPerAxis);
            // "Over" compositing, which also keeps a transparent ground transparent.
            const QColor under = image.pixelColor(x, y);
            const double keep = under.alphaF() * (1 - cover);
            const double alpha = cover + keep;
            QColor out(toByte((sum.r / hits * cover + under.red() * keep) / alpha),
                       toByte((sum.g / hits * cover + under.green() * keep) / alpha),
                       toByte((sum.b / hits * cover + under.blue() * keep) / alpha));
            out.setAlphaF(static_cast<float>(alpha));
            image.setPixelColor(x, y, out);
        }
    }
}

void paintNumberedBall(QImage& image, QPointF centre, double radius, int number) {
    const BallLook look = ballLook(number);
    BallStyle style;
    style.numberDisc = number != 0;
    paintBall(image, centre, radius, look, style);
    if (number != 0)
        printNumber(image, QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius),
                    number, look, true);
}

bool insideCellDisc(int x, int y, int size) {
    const double half = size / 2.0;
    const double dx = x + 0.5 - half;
    const double dy = y + 0.5 - half;
    return dx * dx + dy * dy <= half * half;
}

QImage ballCell(int number, int size, bool numbered, int scale) {
    QImage cell = filledPicture(size, size, Qt::black, scale);
    const BallLook look = ballLook(number);
    BallStyle style;
    const bool showsNumber = numbered && number != 0;
    style.numberDisc = showsNumber && size >= kSmallCellLimit;
    paintBall(cell, QPointF(size / 2.0, size / 2.0), size / 2.0, look, style);
    if (showsNumber)
        printNumber(cell, QRectF(0, 0, size, size), number, look, style.numberDisc);
    const int pixels = size * scale;
    for (int y = 0; y < pixels; ++y)
        for (int x = 0; x < pixels; ++x)
            if (!insideCellDisc(x, y, pixels))
                cell.setPixelColor(x, y, Qt::black);
    return cell;
}

QImage discCell(int size, QColor inside, QColor outside, int scale) {
    QImage cell = filledPicture(size, size, outside, scale);
    const int pixels = size * scale;
    for (int y = 0; y < pixels; ++y)
        for (int x = 0; x < pixels; ++x)
            if (insideCellDisc(x, y, pixels))
                cell.setPixelColor(x, y, inside);
    return cell;
}

} // namespace morvane::assets
