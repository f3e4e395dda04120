#include "screen/forms/result_form.h"

#include "game/text.h"
#include "screen/fonts.h"

#include <QKeyEvent>

namespace morvane {

namespace {

constexpr int kFormWidthTwips = 4485;
constexpr int kFormHeightTwips = 2640;
constexpr double kWinnerPoints = 18;
constexpr double kScorePoints = 24;
constexpr int kShownNameLength = 12;
constexpr int kLineTopsTwips[2] = {900, 1470};

bool hasReachedTarget(const GameState& g, int side) {
    return g.players[side].gamesWon >= g.matchTarget;
}

} // namespace

// After the game has been credited, the side that breaks next is the one that took it.
ResultHeadline resultHeadline(const GameState& g) {
    const int w = g.players[0].hasBreak ? 0 : 1;
    const std::string winner = trimBlanks(g.players[w].name);
    if (hasReachedTarget(g, 0) || hasReachedTarget(g, 1))
        return {winner + " defeated " + trimBlanks(g.players[1 - w].name), true};
    return {g.Balls[kNineBall].onTable ? "Now, Break Time!" : winner + " got this game.", false};
}

ResultForm::ResultForm(const GameState& g, const QImage& okPicture, QWidget* mainWindow)
    : QDialog(mainWindow), picOK_(new PictureButton(okPicture, this)) {
    setUpForm(*this, QStringLiteral("Morvane"), QSize(kFormWidthTwips, kFormHeightTwips));
    centreOver(*this, mainWindow);

    const ResultHeadline headline = resultHeadline(g);
    lblWinner_ = addLabel(this, QString::fromStdString(headline.text), QRect(60, 0, 4365, 825),
                          gameFont("Arial", kWinnerPoints, false),
                          headline.decided ? kFormMagenta : kFormGreen);
    lblWinner_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);

    const QFont scoreFont = gameFont("Arial", kScorePoints, false);
    for (int i = 0; i < 2; ++i) {
        const QColor colour = hasReachedTarget(g, i) ? kFormMagenta : kFormGreen;
        const int top = kLineTopsTwips[i];
        lblPlayerName_[i] =
            addLabel(this, QString::fromStdString(fitToWidth(g.players[i].name, kShownNameLength)),
                     QRect(90, top, 3495, 525), scoreFont, colour);
        lblWins_[i] =
            addLabel(this, QString::fromStdString(signedNumberText(g.players[i].gamesWon)),
                     QRect(3660, top, 735, 525), scoreFont, colour);
    }

    picOK_->placeAt(1680, 2010);
    connect(picOK_, &PictureButton::clicked, this, &ResultForm::picOK_Click);
}

void ResultForm::picOK_Click() {
    accept();
}

// Form_KeyPress: the form sees every key that gives a character first, and each one is OK.
void ResultForm::keyPressEvent(QKeyEvent* event) {
    if (!event->text().isEmpty())
        picOK_Click();
}

} // namespace morvane
