#include "screen/hidden_menu.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>

namespace morvane {

HiddenMenu::HiddenMenu(QWidget* window) : QObject(window), window_(window), popup_(window) {
    mnuGame_ = popup_.addMenu(QString());
    mnuStart = mnuGame_->addAction(QString());
    mnuStart->setShortcut(QKeySequence(Qt::Key_F2));
    mnuRetry = mnuGame_->addAction(QString());
    mnuGame_->addSeparator();
    mnuRecord = mnuGame_->addAction(QString());
    mnuVS = mnuGame_->addAction(QString());
    mnuGame_->addSeparator();
    mnuExit = mnuGame_->addAction(QString());
    mnuChangeMode = popup_.addAction(QString());
    mnuCurrentCondition = popup_.addAction(QString());
    mnuOption_ = popup_.addMenu(QString());
    mnuSound = mnuOption_->addAction(QString());
    mnuSound->setCheckable(true);
    mnuHelp_ = popup_.addMenu(QString());
    mnuHelpCont = mnuHelp_->addAction(QString());
    mnuHelpCont->setShortcut(QKeySequence(Qt::Key_F1));
    mnuKey = mnuHelp_->addAction(QString());
    mnuKey->setVisible(false);
    mnuHelp_->addSeparator();
    mnuAbout = mnuHelp_->addAction(QString());
    // The shortcuts work on the window though no menu shows.
    for (QAction* action : {mnuStart, mnuHelpCont})
        window->addAction(action);
    for (QMenu* menu : tree())
        menu->installEventFilter(this);
}

void HiddenMenu::popUpAt(QPoint globalPos) {
    popup_.popup(globalPos);
}

std::array<QMenu*, 4> HiddenMenu::tree() {
    return {&popup_, mnuGame_, mnuOption_, mnuHelp_};
}

// While the pop-up is open it takes every press; one outside it closes it.
bool HiddenMenu::eventFilter(QObject*, QEvent* event) {
    if (isRightDoubleClick(event))
        return true;
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const auto* press = static_cast<QMouseEvent*>(event);
    const QPoint at = press->globalPosition().toPoint();
    if (press->button() == Qt::RightButton && !anyMenuContains(at))
        QTimer::singleShot(0, this, [this, at] { rightClickAgainAt(at); });
    return false;
}

// A right click soon after the one before (the pop-up closed with Escape, then a right click
// again) comes as a press and then a double click. The press opened the pop-up; the double click
// would reach the fresh pop-up as a second press, outside it, and close it at once.
bool HiddenMenu::isRightDoubleClick(const QEvent* event) {
    return event->type() == QEvent::MouseButtonDblClick &&
           static_cast<const QMouseEvent*>(event)->button() == Qt::RightButton;
}

bool HiddenMenu::anyMenuContains(QPoint globalPos) {
    for (const QMenu* menu : tree()) {
        if (menu->isVisible() && menu->geometry().contains(globalPos))
            return true;
    }
    return false;
}

void HiddenMenu::rightClickAgainAt(QPoint globalPos) {
    const QPoint local = window_->mapFromGlobal(globalPos);
    if (popup_.isVisible() || !window_->isVisible() || !window_->rect().contains(local))
        return;
    QWidget* target = window_->childAt(local);
    if (!target)
        target = window_;
    QContextMenuEvent again(QContextMenuEvent::Mouse, target->mapFromGlobal(globalPos), globalPos);
    QApplication::sendEvent(target, &again);
}

void HiddenMenu::setMenuCaptions(const MenuCaptions& c) {
    mnuGame_->setTitle(QString::fromStdString(c.game));
    mnuStart->setText(QString::fromStdString(c.start));
    mnuRetry->setText(QString::fromStdString(c.retry));
    mnuRecord->setText(QString::fromStdString(c.record));
    mnuVS->setText(QString::fromStdString(c.vs));
    mnuExit->setText(QString::fromStdString(c.exit));
    mnuChangeMode->setText(QString::fromStdString(c.changeMode));
    mnuCurrentCondition->setText(QString::fromStdString(c.currentCondition));
    mnuOption_->setTitle(QString::fromStdString(c.option));
    mnuSound->setText(QString::fromStdString(c.sound));
    mnuHelp_->setTitle(QString::fromStdString(c.help));
    mnuHelpCont->setText(QString::fromStdString(c.helpContents));
    mnuKey->setText(QString::fromStdString(c.key));
    mnuAbout->setText(QString::fromStdString(c.about));
}

void HiddenMenu::syncFromState(const ControlsState& c) {
    mnuStart->setEnabled(c.mnuStartEnabled);
    mnuRetry->setEnabled(c.mnuRetryEnabled);
    mnuSound->setChecked(c.mnuSoundChecked);
    if (!c.mnuChangeModeCaption.empty())
        mnuChangeMode->setText(QString::fromStdString(c.mnuChangeModeCaption));
}

} // namespace morvane
