#include "screen/pool_view.h"

#include "game/view_coords.h"
#include "screen/blit.h"
#include "screen/fonts.h"
#include "screen/mouse_buttons.h"

#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace morvane {

namespace {

constexpr QRect kZephsMessageArea{88, 0, 357, 25};
constexpr double kZephsMessagePoints = 14.25;
constexpr QRgb kTargetCyan = qRgb(0, 255, 255);
constexpr QRgb kQBallRed = qRgb(255, 0, 0);

// The square of ballPixels a marker's outline is drawn in, at the whole pixel nearest its place.
QRect markerSquare(const MarkerState& marker) {
    return QRect(qRound(marker.left), qRound(marker.top), kBallPixels, kBallPixels);
}

// Whether the two would show the same pixels: a move of less than half a pixel shows none.
bool looksTheSame(const MarkerState& a, const MarkerState& b) {
    return a.visible == b.visible && (!a.visible || markerSquare(a) == markerSquare(b));
}

// Repaints where a marker was and where it is now, if that shows.
void repaintMovedMarker(QWidget& view, const MarkerState& painted, const MarkerState& now) {
    if (looksTheSame(painted, now))
        return;
    view.update(markerSquare(painted));
    view.update(markerSquare(now));
}

// An outline of ballPixels across in the square.
void drawOutline(QPainter& painter, const QRect& square, QRgb colour) {
    painter.setPen(QColor(colour));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(square.adjusted(0, 0, -1, -1));
}

// The outline alone on a clear square, at the pixel ratio of the view it will be copied to.
QImage outlinePicture(QRgb colour, qreal ratio) {
    const int side = qRound(kBallPixels * ratio);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawOutline(painter, QRect(0, 0, kBallPixels, kBallPixels), colour);
    return picture;
}

} // namespace

// The outline with its top left corner at the marker's place. The swing moves the aim's outline
// every frame, and the raster engine draws an ellipse far slower than it copies a
// picture of one; at a whole pixel ratio the copy has the very pixels the ellipse would have.
void PoolView::drawMarker(QPainter& painter, const MarkerState& marker, QRgb colour) {
    if (!marker.visible)
        return;
    const QRect square = markerSquare(marker);
    const qreal ratio = painter.device()->devicePixelRatio();
    if (ratio != std::floor(ratio)) {
        drawOutline(painter, square, colour);
        return;
    }
    QImage& outline = outlines_[{colour, ratio}];
    if (outline.isNull())
        outline = outlinePicture(colour, ratio);
    painter.drawImage(square.topLeft(), outline);
}

PoolView::PoolView(const GameState& g, const QImage& view, QWidget* parent)
    : QWidget(parent), g_(g), view_(view), lblZephsMessage_(new QLabel(this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    lblZephsMessage_->setGeometry(kZephsMessageArea);
    lblZephsMessage_->setStyleSheet("color: rgb(0, 255, 0); background: black;");
    lblZephsMessage_->setFont(gameFont(g.isJapanese ? QStringLiteral("ＭＳ ゴシック") : "Arial",
                                       kZephsMessagePoints, true));
    lblZephsMessage_->hide();
    lblZephsMessage_->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PoolView::syncFromState() {
    const ControlsState& c = g_.controls;
    setEnabled(c.poolEnabled);
    lblZephsMessage_->setText(QString::fromStdString(c.zephsMessage));
    lblZephsMessage_->setVisible(c.zephsMessageVisible);
    repaintMovedMarker(*this, paintedTarget_, c.target);
    repaintMovedMarker(*this, paintedQBall_, c.qBall);
}

void PoolView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    paintPictureArea(painter, event->rect(), view_);
    drawMarker(painter, g_.controls.qBall, kQBallRed);
    drawMarker(painter, g_.controls.target, kTargetCyan);
    paintedTarget_ = g_.controls.target;
    paintedQBall_ = g_.controls.qBall;
}

void PoolView::mousePressEvent(QMouseEvent* event) {
    emit mouseDown(buttonCode(event->button()), float(event->position().x()),
                   float(event->position().y()));
}

void PoolView::mouseMoveEvent(QMouseEvent* event) {
    emit mouseMove(buttonsCode(event->buttons()), float(event->position().x()),
                   float(event->position().y()));
}

void PoolView::mouseReleaseEvent(QMouseEvent* event) {
    emit mouseUp(buttonCode(event->button()), float(event->position().x()),
                 float(event->position().y()));
    if (rect().contains(event->position().toPoint()))
        emit clicked();
}

} // namespace morvane
