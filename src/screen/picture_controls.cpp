#include "screen/picture_controls.h"

#include "game/shot_input.h"
#include "screen/blit.h"
#include "table/constants.h"

#include <QMouseEvent>
#include <QPainter>

namespace morvane {

namespace {
constexpr QRgb kPointRed = qRgb(255, 0, 0);
constexpr int kPointBallSize = 45;
} // namespace

SurfaceView::SurfaceView(const QImage& surface, QWidget* parent, std::function<void()> beforePaint)
    : QWidget(parent), surface_(surface), beforePaint_(std::move(beforePaint)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void SurfaceView::paintEvent(QPaintEvent*) {
    if (beforePaint_)
        beforePaint_();
    QPainter painter(this);
    paintPicture(painter, surface_);
}

void SurfaceView::mouseMoveEvent(QMouseEvent*) {
    emit mouseMoved();
}

SetPointView::SetPointView(const GameState& g, const QImage& picture, QWidget* parent)
    : QWidget(parent), g_(g), picture_(picture) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SetPointView::syncFromState() {
    setEnabled(g_.controls.setPointEnabled);
    if (g_.controls.pointLeft != paintedLeft_ || g_.controls.pointTop != paintedTop_)
        update();
}

void SetPointView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPicture(painter, picture_);
    painter.setPen(Qt::black);
    painter.drawEllipse(QRect(0, 0, kPointBallSize - 1, kPointBallSize - 1));
    paintedLeft_ = g_.controls.pointLeft;
    paintedTop_ = g_.controls.pointTop;
    painter.fillRect(QRectF(paintedLeft_, paintedTop_, kPointDotSize, kPointDotSize),
                     QColor(kPointRed));
}

void SetPointView::mousePressEvent(QMouseEvent* event) {
    emit mouseDown(float(event->position().x()), float(event->position().y()));
}

HoverLabel::HoverLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_TranslucentBackground);
}

void HoverLabel::mouseMoveEvent(QMouseEvent*) {
    emit mouseMoved();
}

void HoverLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (rect().contains(event->position().toPoint()))
        emit clicked();
}

} // namespace morvane
