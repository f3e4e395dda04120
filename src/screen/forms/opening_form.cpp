#include "screen/forms/opening_form.h"

#include "picture_names.h"
#include "screen/forms/form_parts.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <utility>

namespace morvane {

QImage loadPictureFile(const QString& fileName) {
    for (const QString& folder : {QDir::currentPath(), QCoreApplication::applicationDirPath()}) {
        const QImage picture(QDir(folder).filePath(fileName));
        if (!picture.isNull())
            return picture;
    }
    return QImage();
}

OpeningForm::OpeningForm(const GameState& g, std::function<void()> showMainWindow, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint), Timer1_(new QTimer(this)),
      showMainWindow_(std::move(showMainWindow)) {
    // The 256-colour set, when chosen, has its own file; the form's own picture stands in for it
    // if the file can't be read.
    if (g.hiColor != -1)
        picture_ = loadPictureFile(kOpeningFile256);
    if (picture_.isNull())
        picture_ = QImage(pictures::kOpening);
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
    QPainter(this).drawImage(0, 0, picture_);
}

void OpeningForm::mousePressEvent(QMouseEvent*) {
    Form_Click();
}

} // namespace morvane
