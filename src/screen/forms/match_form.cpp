#include "screen/forms/match_form.h"

#include "rules/match_setup_form.h"
#include "screen/fonts.h"

#include <QEvent>
#include <QTimer>

namespace morvane {

namespace {

constexpr int kFormWidthTwips = 3015;
constexpr int kFormHeightTwips = 2805;
constexpr double kNamePoints = 18;
constexpr double kLabelPoints = 12;
constexpr int kShortestMatch = 1;
constexpr int kLongestMatch = 15;
constexpr int kMatchLengthStep = 2;
constexpr QRect kNameBoxes[2] = {{120, 240, 2805, 540}, {120, 1170, 2805, 555}};

} // namespace

MatchForm::MatchForm(GameState& g, const QImage& okPicture, const QImage& cancelPicture,
                     QWidget* mainWindow)
    : QDialog(mainWindow), g_(g), picOK_(new PictureButton(okPicture, this)),
      picCancel_(new PictureButton(cancelPicture, this)) {
    setUpForm(*this, QStringLiteral("Morvane"), QSize(kFormWidthTwips, kFormHeightTwips));
    centreOver(*this, mainWindow);
    const MatchSetupView view = loadMatchSetup(g);

    const QString names[2] = {QString::fromStdString(view.firstName),
                              QString::fromStdString(view.secondName)};
    for (int i = 0; i < 2; ++i) {
        QLineEdit* box = new QLineEdit(this);
        const QRect place = kNameBoxes[i];
        box->setGeometry(twipsRect(place.x(), place.y(), place.width(), place.height()));
        box->setFont(gameFont("Arial", kNamePoints, false));
        box->setMaxLength(kPlayerNameBoxLength);
        box->setText(names[i]);
        box->installEventFilter(this);
        txtPlayerName_[i] = box;
    }
    txtPlayerName_[1]->setEnabled(view.secondNameEditable);

    const QFont labelFont = gameFont("Arial", kLabelPoints, false);
    addLabel(this, QStringLiteral("VS"), QRect(1080, 810, 585, 345), labelFont);
    lblXwins_ = addLabel(this, QString::fromStdString(view.lengthCaption),
                         QRect(150, 1860, 2415, 375), labelFont);

    // The value is set before anyone listens: opening the form is no change of length.
    VScroll1_ = new SpinArrows(kShortestMatch, kLongestMatch, kMatchLengthStep, this);
    VScroll1_->setGeometry(twipsRect(2640, 1860, 285, 375));
    VScroll1_->setValue(view.matchLength);
    connect(VScroll1_, &SpinArrows::valueChanged, this, &MatchForm::VScroll1_Change);

    picOK_->placeAt(870, 2280);
    picCancel_->placeAt(1920, 2280);
    connect(picOK_, &PictureButton::clicked, this, &MatchForm::picOK_Click);
    connect(picCancel_, &PictureButton::clicked, this, &MatchForm::picCancel_Click);
}

void MatchForm::picOK_Click() {
    changeVsModeOk(g_, txtPlayerName_[0]->text().toStdString(),
                   txtPlayerName_[1]->text().toStdString());
    accept();
}

void MatchForm::picCancel_Click() {
    changeVsModeCancel(g_);
    reject();
}

void MatchForm::VScroll1_Change(int value) {
    lblXwins_->setText(QString::fromStdString(changeMatchLength(g_, int16_t(value))));
}

void MatchForm::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    txtPlayerName_[0]->setFocus();
    txtPlayerName_[0]->selectAll();
}

// txtPlayerName_GotFocus: the whole name is selected, however the box took the focus.
bool MatchForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        for (QLineEdit* box : txtPlayerName_) {
            if (watched == box)
                QTimer::singleShot(0, box, &QLineEdit::selectAll);
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace morvane
