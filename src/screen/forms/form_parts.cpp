#include "screen/forms/form_parts.h"

#include "screen/message_box.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>

namespace morvane {

QRect twipsRect(int left, int top, int width, int height) {
    return QRect(twipsToPixels(left), twipsToPixels(top), twipsToPixels(width),
                 twipsToPixels(height));
}

QSize twipsSize(int width, int height) {
    return QSize(twipsToPixels(width), twipsToPixels(height));
}

PictureButton::PictureButton(const QImage& picture, QWidget* parent, QSize size) : QLabel(parent) {
    setPixmap(QPixmap::fromImage(picture));
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    resize(size.isValid() ? size : twipsSize(kPictureButtonWidthTwips, kPictureButtonHeightTwips));
    setCursor(Qt::PointingHandCursor);
}

void PictureButton::placeAt(int leftTwips, int topTwips) {
    move(twipsToPixels(leftTwips), twipsToPixels(topTwips));
}

void PictureButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void setUpForm(QDialog& form, const QString& caption, QSize innerSizeTwips) {
    form.setWindowTitle(caption);
    form.setAutoFillBackground(true);
    QPalette palette = form.palette();
    palette.setColor(QPalette::Window, Qt::black);
    form.setPalette(palette);
    form.setFixedSize(twipsSize(innerSizeTwips.width(), innerSizeTwips.height()));
}

void setTextColour(QWidget* widget, const QColor& colour) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, colour);
    widget->setPalette(palette);
}

QLabel* addLabel(QWidget* form, const QString& text, QRect placeTwips, const QFont& font,
                 const QColor& colour) {
    auto* label = new QLabel(text, form);
    label->setGeometry(
        twipsRect(placeTwips.x(), placeTwips.y(), placeTwips.width(), placeTwips.height()));
    label->setFont(font);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextColour(label, colour);
    return label;
}

namespace {

// The form's top left corner where the form stands in the middle of the area.
void centreIn(QWidget& form, const QRect& area) {
    form.move(area.left() + (area.width() - form.width()) / 2,
              area.top() + (area.height() - form.height()) / 2);
}

} // namespace

void centreOver(QWidget& form, const QWidget* mainWindow) {
    centreIn(form, mainWindow ? mainWindow->geometry() : screenArea());
}

QRect screenArea() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

void centreOnScreen(QWidget& form) {
    centreIn(form, screenArea());
}

} // namespace morvane
