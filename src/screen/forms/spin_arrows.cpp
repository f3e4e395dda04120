#include "screen/forms/spin_arrows.h"

#include <algorithm>

namespace morvane {

SpinArrows::SpinArrows(int lowest, int highest, int step, QWidget* parent)
    : QWidget(parent), lowest_(lowest), highest_(highest), step_(step), value_(lowest),
      up_(new QToolButton(this)), down_(new QToolButton(this)) {
    up_->setArrowType(Qt::UpArrow);
    down_->setArrowType(Qt::DownArrow);
    for (QToolButton* arrow : {up_, down_}) {
        arrow->setAutoRepeat(true);
        arrow->setFocusPolicy(Qt::NoFocus);
    }
    connect(up_, &QToolButton::clicked, this, [this] { setValue(value_ + step_); });
    connect(down_, &QToolButton::clicked, this, [this] { setValue(value_ - step_); });
}

void SpinArrows::setValue(int value) {
    const int kept = std::clamp(value, lowest_, highest_);
    if (kept == value_)
        return;
    value_ = kept;
    emit valueChanged(value_);
}

void SpinArrows::resizeEvent(QResizeEvent*) {
    const int upper = height() / 2;
    up_->setGeometry(0, 0, width(), upper);
    down_->setGeometry(0, upper, width(), height() - upper);
}

} // namespace morvane
