#include "screen/score_view.h"

#include "records/record_constants.h"
#include "records/score_text.h"
#include "screen/blit.h"
#include "screen/fonts.h"

#include <QMouseEvent>
#include <QPainter>

namespace morvane {

namespace {

constexpr QRgb kScoreGreen = qRgb(0, 255, 0);
constexpr QRgb kNewRowMagenta = qRgb(255, 0, 255);
constexpr QRect kExitScoreArea{464, 0, 57, 25};
constexpr double kExitScorePoints = 14.25;

void printRow(QPainter& painter, const ScoreRow& row, const QImage& sheet) {
    painter.setPen(QColor(row.isNew ? kNewRowMagenta : kScoreGreen));
    for (const ScoreText& item : row.texts)
        printAt(painter, QPoint(item.x, row.y), QString::fromStdString(item.text));
    int x = kBallMarksX;
    for (int ball : row.ballMarks) {
        paintPicturePart(
            painter, QPoint(x, row.y + kBallMarkDrop), sheet,
            QRect(kBallMarkSize * ball, kBallMarkSheetY, kBallMarkSize, kBallMarkSize));
        x += kBallMarkSize;
    }
}

} // namespace

void showScore(const GameState& g, const QImage& sheet, QPainter& painter) {
    painter.setPen(QColor(kScoreGreen));
    painter.setFont(gameFont("Arial", kScoreTitleFontPoints, true));
    printAt(painter, QPoint(kScoreTitleX, kSoloTitleY), kSoloTitle);
    painter.setFont(gameFont("Arial", kScoreRowFontPoints, true));
    for (int i = kFirstRow; i <= kLastRow; ++i)
        printRow(painter, soloScoreRow(g.soloRecords[i], i), sheet);
    // The lower title keeps the colour that the last solo row left.
    painter.setFont(gameFont("Arial", kScoreTitleFontPoints, true));
    printAt(painter, QPoint(kScoreTitleX, vsCpuTitleY()), kVsCpuTitle);
    painter.setFont(gameFont("Arial", kScoreRowFontPoints, true));
    for (int i = kFirstRow; i <= kLastRow; ++i)
        printRow(painter, vsCpuScoreRow(g.vsCpuRecords[i], i), sheet);
}

ScoreScreen::ScoreScreen(const GameState& g, const QImage& sheet, QWidget* parent)
    : QWidget(parent), g_(g), sheet_(sheet) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    lblExitScore_ = new HoverLabel(QStringLiteral("Menu"), this);
    lblExitScore_->setGeometry(kExitScoreArea);
    lblExitScore_->setFont(gameFont("Arial", kExitScorePoints, true));
    lblExitScore_->setStyleSheet("color: rgb(255, 0, 255); background: transparent;");
    connect(lblExitScore_, &HoverLabel::clicked, this, &ScoreScreen::exitClicked);
    hide();
}

void ScoreScreen::syncFromState() {
    if (g_.controls.scoreVisible && !isVisible())
        update();
    setVisible(g_.controls.scoreVisible);
}

void ScoreScreen::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    showScore(g_, sheet_, painter);
}

void ScoreScreen::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

} // namespace morvane
