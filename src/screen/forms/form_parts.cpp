#include "screen/forms/form_parts.h"

#include "screen/message_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <utility>

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

void PictureButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        pressed_ = true;
}

void PictureButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const bool pressedHere = std::exchange(pressed_, false);
    if (pressedHere && rect().contains(event->position().toPoint()))
        emit clicked();
}

namespace {
constexpr quint64 kNoRelease = ~quint64(0);
}

HeldKeyGuard::HeldKeyGuard(QWidget& form) : form_(form) {
    qApp->installEventFilter(this);
}

HeldKeyGuard::~HeldKeyGuard() {
    qApp->removeEventFilter(this);
}

// The X server repeats a held key as a release and a press with one time stamp, and Qt doesn't
// always flag them as repeats. A release of a key the form never saw pressed means the key was
// down before the form opened; a press stamped with that very release's time is its repeat.
bool HeldKeyGuard::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    // A key goes first to the widget with the focus, then up through its parents: look at it once.
    const QWidget* firstReceiver = form_.focusWidget() ? form_.focusWidget() : &form_;
    if (!isKey || watched != firstReceiver)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const int k = key->key();
    if (event->type() == QEvent::KeyRelease) {
        if (!pressedHere_.contains(k))
            heldReleasedAt_.insert(k, key->timestamp());
        else if (!key->isAutoRepeat())
            pressedHere_.remove(k);
        return false;
    }
    const bool repeatOfHeldKey = key->isAutoRepeat()
                                     ? !pressedHere_.contains(k)
                                     : heldReleasedAt_.value(k, kNoRelease) == key->timestamp();
    if (repeatOfHeldKey)
        return true;
    pressedHere_.insert(k);
    heldReleasedAt_.remove(k);
    return false;
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
