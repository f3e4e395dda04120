#include "screen/main_window.h"

#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "game/view_coords.h"
#include "rules/aiming_input.h"
#include "rules/demo.h"
#include "rules/menu_screen.h"
#include "rules/modes.h"
#include "rules/new_game.h"
#include "rules/undo.h"
#include "screen/fonts.h"
#include "screen/information_bar.h"
#include "screen/menu_hover.h"
#include "screen/strip_style.h"
#include "startup/settings.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace morvane {

namespace {

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

QString labelColour(bool hover) {
    return QString("color: %1; background: transparent;")
        .arg(QColor(hover ? kLabelHover : kLabelRest).name());
}

// The break swing moves the aim marker once a frame and changes nothing else. Takes
// the markers of `now` into `shown` (they are drawn apart from the other controls), then compares
// the rest, without a copy of the captions on every tick.
bool onlyMarkersDiffer(ControlsState& shown, const ControlsState& now) {
    shown.target = now.target;
    shown.qBall = now.qBall;
    return shown == now;
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
    HScroll1_->setStyleSheet(powerBarStyle());
    cmdShot_ = new QPushButton(this);
    cmdShot_->setStyleSheet(shotButtonStyle());
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
    // The right button plays on the table and on the ball picture: no pop-up menu there.
    picPool_->setContextMenuPolicy(Qt::PreventContextMenu);
    picSetPoint_->setContextMenuPolicy(Qt::PreventContextMenu);
    picMenu_ = new MenuScreen(this);
    picScore_ = new ScoreScreen(g_, s.picTable, this);
    picScore_->raise();
    menu_ = new HiddenMenu(this);
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
    picScore_->setGeometry(0, 0, kClientWidth, kClientHeight);
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
                [this, i] { handle([&](GameState& g) { lblMenu_Click(g, i); }); });
    }
    connectMenuScreen();
    connectScoreScreen();
    connectHiddenMenu();
}

void MainWindow::connectMenuScreen() {
    connect(picMenu_, &MenuScreen::mouseMoved, this,
            [this] { handle([](GameState& g) { picMenu_MouseMove(g); }); });
    connect(picMenu_, &MenuScreen::doubleClicked, this,
            [this] { handle([](GameState& g) { picMenu_DblClick(g); }); });
    connect(picMenu_, &MenuScreen::pictureMouseMoved, this, [this](MenuPicture which, int index) {
        handle([&](GameState& g) { menuPicture_MouseMove(g, which, index); });
    });
    connect(picMenu_, &MenuScreen::pictureClicked, this, &MainWindow::menuPictureClicked);
    connect(picMenu_, &MenuScreen::switchClicked, this, [this](MenuSwitch which, int index) {
        handle([&](GameState& g) {
            if (which == kSwitchBgm)
                picBGM_Click(g, int16_t(index));
            else if (which == kSwitchSound)
                picSound_Click(g, int16_t(index));
            else
                picColor_Click(g, int16_t(index));
        });
    });
    connect(picMenu_->lblHelp(), &HoverLabel::mouseMoved, this,
            [this] { handle([](GameState& g) { lblHelp_MouseMove(g); }); });
    for (HoverLabel* label :
         {picMenu_->lblHelp(), picMenu_->lblCopyright(0), picMenu_->lblCopyright(1)})
        connect(label, &HoverLabel::clicked, this,
                [this] { handle([](GameState& g) { lblHelp_Click(g); }); });
}

void MainWindow::menuPictureClicked(MenuPicture which, int index) {
    switch (which) {
    case kPicSoloPlay:
        handle([&](GameState& g) { picSoloPlay_Click(g, index); });
        break;
    case kPicVsCpu:
        handle([&](GameState& g) { picVSCPU_Click(g, index); });
        break;
    case kPicVsPlay:
        handle([&](GameState& g) { picVSPlay_Click(g, index); });
        break;
    case kPicRecord:
        handle([&](GameState& g) { picRecord_Click(g, index); });
        break;
    case kPicExit:
    case kMenuPictureCount:
        emit exitRequested();
        break;
    }
}

void MainWindow::connectScoreScreen() {
    connect(picScore_, &ScoreScreen::clicked, this,
            [this] { handle([](GameState& g) { picScore_Click(g); }); });
    connect(picScore_, &ScoreScreen::exitClicked, this,
            [this] { handle([](GameState& g) { lblExitScore_Click(g); }); });
}

void MainWindow::connectHiddenMenu() {
    const auto on = [this](QAction* action, void (*handler)(GameState&)) {
        connect(action, &QAction::triggered, this, [this, handler] { handle(handler); });
    };
    on(menu_->mnuStart, mnuStart_click);
    on(menu_->mnuRetry, mnuRetry_Click);
    on(menu_->mnuRecord, [](GameState& g) { picRecord_Click(g, 0); });
    on(menu_->mnuVS, mnuVS_Click);
    on(menu_->mnuChangeMode, mnuChangeMode_Click);
    on(menu_->mnuCurrentCondition, mnuCurrentCondition_Click);
    on(menu_->mnuSound, mnuSound_Click);
    on(menu_->mnuHelpCont, lblHelp_Click);
    on(menu_->mnuKey, lblHelp_Click);
    on(menu_->mnuAbout, [](GameState& g) { g.ports.screen->showVersion(); });
    connect(menu_->mnuExit, &QAction::triggered, this, &MainWindow::exitRequested);
}

void MainWindow::contextMenuEvent(QContextMenuEvent* event) {
    menu_->popUpAt(event->globalPos());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    emit exitRequested();
}

void MainWindow::showEvent(QShowEvent*) {
    g_.controls.mainWindowVisible = true;
}

void MainWindow::hideEvent(QHideEvent*) {
    g_.controls.mainWindowVisible = false;
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange)
        g_.controls.mainWindowMinimised = isMinimized();
    QWidget::changeEvent(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent*) {
    handle([](GameState& g) { Form_MouseMove(g); });
}

void MainWindow::syncControlsFromState() {
    const ControlsState& c = g_.controls;
    if (shownControls_ && onlyMarkersDiffer(*shownControls_, c)) {
        picPool_->syncFromState();
        return;
    }
    shownControls_ = c;
    syncing_ = true;
    setWindowTitle(QString::fromStdString(c.windowCaption));
    for (int i = 0; i < 3; ++i) {
        lblMenu_[i]->setVisible(c.lblMenuVisible[i]);
        if (shownHover_[i] != int(c.lblMenuHover[i])) {
            shownHover_[i] = int(c.lblMenuHover[i]);
            lblMenu_[i]->setStyleSheet(labelColour(c.lblMenuHover[i]));
        }
    }
    lblPower_->setText(QString::fromStdString(c.powerCaption));
    HScroll1_->setValue(c.power);
    HScroll1_->setEnabled(c.powerEnabled);
    cmdShot_->setText(QString::fromStdString(c.shotCaption));
    cmdShot_->setFont(
        gameFont(QString::fromStdString(c.shotFont.name), c.shotFont.size, c.shotFont.bold));
    cmdShot_->setEnabled(c.shotEnabled);
    menu_->syncFromState(c);
    picMenu_->syncFromState(g_);
    picScore_->syncFromState();
    picPool_->syncFromState();
    picSetPoint_->syncFromState();
    syncing_ = false;
}

} // namespace morvane
