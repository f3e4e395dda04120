#include "screen/main_window.h"

#include "rules/aiming_input.h"
#include "rules/demo.h"
#include "rules/modes.h"
#include "rules/new_game.h"
#include "screen/fonts.h"
#include "screen/information_bar.h"
#include "screen/menu_hover.h"
#include "table/launch.h"
#include "table/shot_input.h"
#include "table/timers.h"
#include "table/view_coords.h"

#include <QMouseEvent>
#include <QSignalBlocker>

namespace morvane {

namespace {

enum MenuLabel { kLabelMenu = 0, kLabelStart = 1, kLabelBack = 2 };

// Pixels of the layout.
constexpr QRect kInfomationArea{0, 0, 321, 25};
constexpr QRect kPoolArea{0, 25, 540, 299};
constexpr QRect kSetPointArea{2, 327, 45, 45};
constexpr int kPowerLeft = 49;
constexpr int kPowerTop = 327;
constexpr int kPowerWidth = 149;
constexpr int kStripHeight = 45;
constexpr int kPowerLabelHeight = kStripHeight / 2;
constexpr QRect kShotArea{200, 327, 145, 45};
constexpr int kStripBottom = 372;
constexpr int kLabelFontPixels = 19;
constexpr int kShotFontPixels = 25;
// "Menu", "Start", "Back" by index, converted from the twips of the design.
constexpr std::array<QRect, 3> kMenuLabelAreas{QRect{472, 0, 57, 25}, QRect{416, 0, 49, 25},
                                               QRect{360, 0, 57, 25}};
constexpr double kMenuLabelPoints = 14.25;
constexpr QRgb kLabelRest = qRgb(192, 0, 192);
constexpr QRgb kLabelHover = qRgb(255, 0, 255);
constexpr const char* kStripLabelStyle = "color: rgb(0, 255, 0); background: rgb(64, 64, 64);";

QString qtext(const std::string& text) {
    return QString::fromStdString(text);
}

QString labelColour(bool hover) {
    return QString("color: %1; background: transparent;")
        .arg(QColor(hover ? kLabelHover : kLabelRest).name());
}

// Until the menu screen is there, "Menu" racks a fresh solo game instead of going to it.
void lblMenuWithoutMenuScreen(GameState& g, int index) {
    if (index != kLabelMenu) {
        lblMenu_Click(g, index);
    } else if (!isTimerEnabled(g, kTimer1)) {
        picSoloPlay_Click(g, 0);
        g.ports.screen->drawTable();
    }
}

} // namespace

MainWindow::MainWindow(GameState& g, QtScreen& screen) : QWidget(nullptr), g_(g) {
    setAutoFillBackground(true);
    QPalette black = palette();
    black.setColor(QPalette::Window, Qt::black);
    setPalette(black);
    setMouseTracking(true);
    createControls(screen);
    arrangeControls();
    connectHandlers();
    screen.attach({picPool_, picPocketedBalls_, picInfomation_, this});
    syncControlsFromState();
}

void MainWindow::createControls(QtScreen& screen) {
    Surfaces& s = screen.surfaces();
    picInfomation_ = new SurfaceView(s.information, this, [this, &s] { showInfomation(g_, s); });
    picPool_ = new PoolView(g_, s.view, this);
    picSetPoint_ = new SetPointView(g_, s.setPoint, this);
    lblPower_ = new QLabel(this);
    lblPower_->setAlignment(Qt::AlignCenter);
    lblPower_->setStyleSheet(kStripLabelStyle);
    HScroll1_ = new QScrollBar(Qt::Horizontal, this);
    HScroll1_->setRange(kPowerMin, kPowerMax);
    HScroll1_->setSingleStep(1);
    HScroll1_->setPageStep(10);
    cmdShot_ = new QPushButton(this);
    lblBIP_ = new QLabel(QStringLiteral("Balls in the Poket"), this);
    lblBIP_->setAlignment(Qt::AlignCenter);
    lblBIP_->setStyleSheet(kStripLabelStyle);
    picPocketedBalls_ = new SurfaceView(s.tray, this);
    const std::array<const char*, 3> captions{"Menu", "Start", "Back"};
    const std::array<const char*, 3> tips{"メニュー画面に戻る", "始めからやり直し", "一手戻る"};
    for (int i = 0; i < 3; ++i) {
        lblMenu_[i] = new HoverLabel(QString::fromUtf8(captions[i]), this);
        lblMenu_[i]->setToolTip(QString::fromUtf8(tips[i]));
        lblMenu_[i]->setFont(gameFont("Arial", kMenuLabelPoints, true));
    }
    mnuStartShortcut_ = new QShortcut(QKeySequence(Qt::Key_F2), this);
}

// The layout in pixels, whatever the display: the client area is 540 by 378.
void MainWindow::arrangeControls() {
    picSetPoint_->setGeometry(kSetPointArea);
    lblPower_->setGeometry(kPowerLeft, kPowerTop, kPowerWidth, kPowerLabelHeight);
    lblPower_->setFont(gameFont("Arial", int(pixelsToPoints(kLabelFontPixels)), false));
    const int barTop = kPowerTop + kPowerLabelHeight + 1;
    HScroll1_->setGeometry(kPowerLeft, barTop, kPowerWidth, kStripBottom - barTop);
    cmdShot_->setGeometry(kShotArea);
    const int trayLeft = kShotArea.right() + 1 + 1;
    picPocketedBalls_->setGeometry(trayLeft, kStripBottom - kTrayHeight, kTrayWidth, kTrayHeight);
    lblBIP_->setGeometry(trayLeft, kPowerTop, kTrayWidth, kStripHeight - kTrayHeight);
    lblBIP_->setFont(gameFont("Arial", pixelsToPoints(kLabelFontPixels), false));
    picPool_->setGeometry(kPoolArea);
    picInfomation_->setGeometry(kInfomationArea);
    for (int i = 0; i < 3; ++i)
        lblMenu_[i]->setGeometry(kMenuLabelAreas[i]);
    setFixedSize(kClientWidth, kClientHeight);
}

void MainWindow::connectHandlers() {
    connect(picPool_, &PoolView::mouseDown, this, [this](int button, float x, float y) {
        handle([&](GameState& g) { picPool_MouseDown(g, button, x, y); });
    });
    connect(picPool_, &PoolView::mouseMove, this, [this](int buttons, float x, float y) {
        handle([&](GameState& g) { picPool_MouseMove(g, buttons, x, y); });
    });
    connect(picPool_, &PoolView::mouseUp, this, [this](int button, float x, float y) {
        handle([&](GameState& g) { picPool_MouseUp(g, button, x, y); });
    });
    connect(picPool_, &PoolView::clicked, this,
            [this] { handle([](GameState& g) { picPool_Click(g, 0); }); });
    connect(picSetPoint_, &SetPointView::mouseDown, this, [this](float x, float y) {
        handle([&](GameState& g) { picSetPoint_MouseDown(g, x, y); });
    });
    connect(HScroll1_, &QScrollBar::valueChanged, this, [this](int value) {
        if (!syncing_)
            handle([&](GameState& g) { setPower(g, int16_t(value)); });
    });
    connect(cmdShot_, &QPushButton::clicked, this,
            [this] { handle([](GameState& g) { cmdShot_Click(g); }); });
    connect(picInfomation_, &SurfaceView::mouseMoved, this,
            [this] { handle([](GameState& g) { picInfomation_MouseMove(g); }); });
    for (int i = 0; i < 3; ++i) {
        connect(lblMenu_[i], &HoverLabel::mouseMoved, this,
                [this, i] { handle([&](GameState& g) { lblMenu_MouseMove(g, i); }); });
        connect(lblMenu_[i], &HoverLabel::clicked, this,
                [this, i] { handle([&](GameState& g) { lblMenuWithoutMenuScreen(g, i); }); });
    }
    connect(mnuStartShortcut_, &QShortcut::activated, this,
            [this] { handle([](GameState& g) { mnuStart_click(g); }); });
}

void MainWindow::mouseMoveEvent(QMouseEvent*) {
    handle([](GameState& g) { Form_MouseMove(g); });
}

void MainWindow::syncControlsFromState() {
    const ControlsState& c = g_.controls;
    syncing_ = true;
    setWindowTitle(qtext(c.windowCaption));
    for (int i = 0; i < 3; ++i) {
        lblMenu_[i]->setVisible(c.lblMenuVisible[i]);
        if (shownHover_[i] != int(c.lblMenuHover[i])) {
            shownHover_[i] = int(c.lblMenuHover[i]);
            lblMenu_[i]->setStyleSheet(labelColour(c.lblMenuHover[i]));
        }
    }
    lblPower_->setText(qtext(c.powerCaption));
    HScroll1_->setValue(c.power);
    HScroll1_->setEnabled(c.powerEnabled);
    cmdShot_->setText(qtext(c.shotCaption));
    cmdShot_->setFont(gameFont(qtext(c.shotFont.name), c.shotFont.size, c.shotFont.bold));
    cmdShot_->setEnabled(c.shotEnabled);
    mnuStartShortcut_->setEnabled(c.mnuStartEnabled);
    picPool_->syncFromState();
    picSetPoint_->syncFromState();
    syncing_ = false;
}

} // namespace morvane
