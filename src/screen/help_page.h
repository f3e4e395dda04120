// The help page beside the program. It goes to the desktop's opener; where the desktop can't show
// it (no opener, no browser, an error), the game shows it in a window of its own.
#pragma once

#include <QString>
#include <QTextBrowser>
#include <QUrl>
#include <functional>

namespace morvane {

// Hands a page to the desktop, and calls `failed` if the desktop can't show it: at once, or when
// the opener gives up.
using PageOpener = std::function<void(const QUrl& page, std::function<void()> failed)>;

// xdg-open, watched until it ends: it tells by its exit status whether anything took the page.
// Where there is no xdg-open, Qt's own way to the desktop.
void openWithDesktop(const QUrl& page, std::function<void()> failed);

// "help.html" from the game's data folders.
QString helpPagePath();

// The help page with the sections of the other language left out.
QString pageInOneLanguage(const QString& html, bool japanese);

// The help page in the game's own rich-text browser, in the player's language; Escape closes it.
class HelpWindow : public QTextBrowser {
    Q_OBJECT
  public:
    HelpWindow(const QString& pagePath, bool japanese);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace morvane
