#include "screen/forms/record_form.h"

#include "game/table_queries.h"
#include "screen/blit.h"
#include "screen/fonts.h"
#include "screen/surfaces.h"

#include <QPainter>

namespace morvane {

namespace {

constexpr int kFormWidthTwips = 3255;
constexpr int kFormHeightTwips = 3570;
constexpr double kTitlePoints = 20;
constexpr double kLinePoints = 18;
constexpr int kWordColumn = 3;
constexpr int kColonColumn = 10;
constexpr int kValueColumn = 12;
constexpr int kBallsCaptionColumn = 2;
constexpr int kBallsIndent = 10;
constexpr int kBallsDrop = 2;
constexpr int kBallStep = 22;
constexpr int kOkMargin = 6;
constexpr int kSecondsAMinute = 60;

QString zeroPadded(long value, int places) {
    return QString("%1").arg(value, places, 10, QChar('0'));
}

// Print tab n starts n - 1 average characters from the left edge; the average character is as
// wide as an "x", as the system's text metrics reckon it.
int tabColumn(const QFontMetrics& metrics, int column) {
    return (column - 1) * metrics.horizontalAdvance(QLatin1Char('x'));
}

} // namespace

std::string recordTitle(const GameState& g) {
    return g.Balls[kNineBall].onTable ? "Now, Break Time!" : "GAME FINISHED!!";
}

std::array<RecordLine, 4> recordLines(const GameState& g) {
    const QString time = zeroPadded(g.gameSeconds / kSecondsAMinute, 2) + ":" +
                         zeroPadded(g.gameSeconds % kSecondsAMinute, 2);
    return {{{"Shots", zeroPadded(g.shotCount, 5).toStdString()},
             {"Turns", zeroPadded(g.turnCount, 5).toStdString()},
             {"Fouls", zeroPadded(g.foulCount, 5).toStdString()},
             {"Time", time.toStdString()}}};
}

RecordForm::RecordForm(const GameState& g, const QImage& picBalls, const QImage& okPicture,
                       QWidget* parent)
    : QDialog(parent), g_(g), picBalls_(picBalls), picOK_(new PictureButton(okPicture, this)) {
    setUpForm(*this, QStringLiteral("Your Record"), QSize(kFormWidthTwips, kFormHeightTwips));
    surface_ = makeSurface(width(), height(), Qt::black, surfaceScale(picBalls_));
    picOK_->move((width() - picOK_->width()) / 2, height() - picOK_->height() - kOkMargin);
    connect(picOK_, &PictureButton::clicked, this, &RecordForm::picOK_Click);
    centreOnScreen(*this);
    drawRecordForm();
}

void RecordForm::picOK_Click() {
    accept();
}

void RecordForm::paintEvent(QPaintEvent*) {
    drawRecordForm();
    QPainter painter(this);
    paintPicture(painter, surface_);
}

void RecordForm::drawRecordForm() {
    surface_.fill(Qt::black);
    QPainter painter(&surface_);
    painter.setPen(kFormGreen);
    const QFont titleFont = gameFont("Arial", kTitlePoints, false);
    painter.setFont(titleFont);
    printAt(painter, {0, 0}, QString::fromStdString(recordTitle(g_)));
    int y = QFontMetrics(titleFont).height();

    const QFont lineFont = gameFont("Arial", kLinePoints, false);
    const QFontMetrics metrics(lineFont);
    painter.setFont(lineFont);
    for (const RecordLine& line : recordLines(g_)) {
        printAt(painter, {tabColumn(metrics, kWordColumn), y}, QString::fromStdString(line.word));
        printAt(painter, {tabColumn(metrics, kColonColumn), y}, QStringLiteral(":"));
        printAt(painter, {tabColumn(metrics, kValueColumn), y}, QString::fromStdString(line.value));
        y += metrics.height();
    }
    printAt(painter, {tabColumn(metrics, kBallsCaptionColumn), y},
            QStringLiteral("Balls in the Pocket"));
    y += metrics.height();
    painter.end();
    drawRecordBalls(getPocketedString(g_), {kBallsIndent, y + kBallsDrop});
}

// Each ball down: the mask darkens its disc, then the ball goes onto it; 2 pixels between balls.
void RecordForm::drawRecordBalls(const std::string& balls, QPoint origin) {
    ballsOrigin_ = origin;
    int x = origin.x();
    for (char mark : balls) {
        const int n = mark - '0';
        if (n == 0)
            continue;
        blitMasked(surface_, x, origin.y(), picBalls_, kMaskX, kMaskY, kCell * n, kRestingRow,
                   kCell);
        x += kBallStep;
    }
}

} // namespace morvane
