#include "screen/forms/opening_form.h"

#include "picture_names.h"
#include "screen/blit.h"
#include "screen/forms/form_parts.h"
#include "screen/pictures.h"

#include <QPainter>
#include <utility>

namespace morvane {

OpeningForm::OpeningForm(const GameState& g, std::function<void()> showMainWindow, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint), Timer1_(new QTimer(this)),
      showMainWindow_(std::move(showMainWindow)) {
    // The 256-colour set, when chosen, has its own file; the form's own picture stands in for it
    // if the file can't be read.
    picture_ = scaledPicture(pictures::kOpening);
    if (g.hiColor != -1)
        picture_ = pictureFileOr(kOpeningFile256, picture_);
    setFixedSize(kOpeningWidth, kOpeningHeight);
    centreOnScreen(*this);

    Timer1_->setInterval(kOpeningTickMs);
    connect(Timer1_, &QTimer::timeout, this, &OpeningForm::Timer1_Timer);
    Timer1_->start();
}

void OpeningForm::Timer1_Timer() {
    if (tickCount_ >= kOpeningLastCount)
        unloadAndShowMain();
    ++tickCount_;
}

void OpeningForm::Form_Click() {
    unloadAndShowMain();
}

void OpeningForm::unloadAndShowMain() {
    Timer1_->stop();
    close();
    if (auto show = std::exchange(showMainWindow_, nullptr))
        show();
}

void OpeningForm::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPicture(painter, picture_);
}

void OpeningForm::mousePressEvent(QMouseEvent*) {
    Form_Click();
}

} // namespace morvane
