#include "screen/forms/name_form.h"

#include "rules/name_form.h"
#include "screen/fonts.h"

namespace morvane {

namespace {

constexpr int kFormWidthTwips = 4185;
constexpr int kFormHeightTwips = 2310;
constexpr double kCaptionPoints = 18;
constexpr double kNamePoints = 24;
constexpr int kOkTopTwips = 1740;
inline const QColor kNameGround{64, 64, 64};

} // namespace

NameForm::NameForm(GameState& g, const QImage& okPicture, QWidget* mainWindow)
    : QDialog(mainWindow), g_(g), picOK_(new PictureButton(okPicture, this)) {
    setUpForm(*this, QStringLiteral("Morvane"), QSize(kFormWidthTwips, kFormHeightTwips));
    const QFont captionFont = gameFont("Arial", kCaptionPoints, false);
    lblMsg_ = addLabel(this, QString::fromStdString(nameFormGreeting(g)),
                       QRect(210, 120, 3885, 405), captionFont);
    addLabel(this, QStringLiteral("Please input your name."), QRect(150, 600, 4455, 555),
             captionFont);

    txtName_ = new QLineEdit(this);
    txtName_->setGeometry(twipsRect(150, 1020, 3945, 675));
    txtName_->setFont(gameFont("Arial", kNamePoints, false));
    txtName_->setAlignment(Qt::AlignCenter);
    txtName_->setStyleSheet(QStringLiteral("QLineEdit { color: rgb(0, 255, 0); background: %1; }")
                                .arg(kNameGround.name()));
    // Enter in the box is OK.
    connect(txtName_, &QLineEdit::returnPressed, this, &NameForm::picOK_Click);

    picOK_->placeAt((kFormWidthTwips - kPictureButtonWidthTwips) / 2, kOkTopTwips);
    connect(picOK_, &PictureButton::clicked, this, &NameForm::picOK_Click);
    centreOver(*this, mainWindow);
}

void NameForm::picOK_Click() {
    accept();
}

void NameForm::done(int result) {
    takeRecordName(g_, txtName_->text().toStdString());
    QDialog::done(result);
}

void NameForm::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    txtName_->setFocus();
}

} // namespace morvane
