#include "screen/hidden_menu.h"

#include <QWidget>

namespace morvane {

namespace {
QString qtext(const std::string& text) {
    return QString::fromStdString(text);
}
} // namespace

HiddenMenu::HiddenMenu(QWidget* window) : QObject(window), popup_(window) {
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
}

void HiddenMenu::setMenuCaptions(const MenuCaptions& c) {
    mnuGame_->setTitle(qtext(c.game));
    mnuStart->setText(qtext(c.start));
    mnuRetry->setText(qtext(c.retry));
    mnuRecord->setText(qtext(c.record));
    mnuVS->setText(qtext(c.vs));
    mnuExit->setText(qtext(c.exit));
    mnuChangeMode->setText(qtext(c.changeMode));
    mnuCurrentCondition->setText(qtext(c.currentCondition));
    mnuOption_->setTitle(qtext(c.option));
    mnuSound->setText(qtext(c.sound));
    mnuHelp_->setTitle(qtext(c.help));
    mnuHelpCont->setText(qtext(c.helpContents));
    mnuKey->setText(qtext(c.key));
    mnuAbout->setText(qtext(c.about));
}

void HiddenMenu::syncFromState(const ControlsState& c) {
    mnuStart->setEnabled(c.mnuStartEnabled);
    mnuRetry->setEnabled(c.mnuRetryEnabled);
    mnuSound->setChecked(c.mnuSoundChecked);
    if (!c.mnuChangeModeCaption.empty())
        mnuChangeMode->setText(qtext(c.mnuChangeModeCaption));
}

} // namespace morvane
