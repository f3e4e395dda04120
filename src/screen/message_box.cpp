#include "screen/message_box.h"

#include "game/text.h"
#include "game/view_coords.h"
#include "records/integer16.h"
#include "screen/fonts.h"
#include "screen/forms/form_parts.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <cmath>
#include <cstdint>

namespace morvane {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kHalfEm = 0.5;
constexpr double kMinimumOverOk = 1.2;
constexpr double kFormOverText = 1.2;
constexpr double kLabelIndent = 0.1;
constexpr int kLabelTopTwips = 120;
constexpr int kOkTopTwips = 720;

// A whole number as the 16-bit integers of the game hold it, rounded half to even.
int16_t roundToInteger16(double v) {
    return toInteger16(int64_t(std::nearbyint(v)));
}

} // namespace

MessageBoxLayout layoutMessageBox(const std::string& text, double fontPoints, int okWidthTwips) {
    MessageBoxLayout layout;
    int w =
        roundToInteger16(std::floor(codePointCount(text) * kTwipsPerPoint * fontPoints * kHalfEm));
    const int m = roundToInteger16(okWidthTwips * kMinimumOverOk);
    if (w < m) {
        w = m;
        layout.labelWidth = m;
    }
    layout.formWidth = w * kFormOverText;
    layout.labelLeft = w * kLabelIndent;
    layout.okLeft = (roundToInteger16(layout.formWidth) - okWidthTwips) / 2;
    return layout;
}

int twipsToPixels(double twips) {
    return int(std::lround(twips / kTwipsPerPixel));
}

MessageBoxForm::MessageBoxForm(const std::string& text, const QImage& okPicture,
                               QWidget* mainWindow)
    : QDialog(mainWindow), lblMsg_(new QLabel(this)), picOK_(new QLabel(this)) {
    setWindowTitle(QStringLiteral("Massage from Morvane"));
    setStyleSheet("QDialog { background: black; } QLabel { color: rgb(0, 255, 0); }");
    const MessageBoxLayout layout = layoutMessageBox(text, kMsgFontPoints, kOkWidthTwips);

    lblMsg_->setFont(gameFont("Arial", kMsgFontPoints, false));
    lblMsg_->setText(QString::fromStdString(text));
    lblMsg_->adjustSize();
    const int labelWidth =
        layout.labelWidth > 0 ? twipsToPixels(layout.labelWidth) : lblMsg_->width();
    lblMsg_->setGeometry(twipsToPixels(layout.labelLeft), twipsToPixels(kLabelTopTwips), labelWidth,
                         lblMsg_->height());

    picOK_->setPixmap(QPixmap::fromImage(okPicture));
    picOK_->setGeometry(twipsToPixels(layout.okLeft), twipsToPixels(kOkTopTwips),
                        twipsToPixels(kOkWidthTwips), twipsToPixels(kOkHeightTwips));
    picOK_->installEventFilter(this);

    setFixedSize(twipsToPixels(layout.formWidth), twipsToPixels(kMsgBoxHeightTwips));
    if (mainWindow)
        centreOver(*this, mainWindow);
}

void MessageBoxForm::picOK_Click() {
    accept();
}

// Form_KeyPress: the form sees every key that gives a character first, and each one is OK.
void MessageBoxForm::keyPressEvent(QKeyEvent* event) {
    if (!event->text().isEmpty())
        picOK_Click();
}

bool MessageBoxForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == picOK_ && event->type() == QEvent::MouseButtonRelease) {
        picOK_Click();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace morvane
