// Help: the page goes to the desktop first; where the desktop can't show it, the game's own window
// shows it in the player's language, and Escape closes that window. The page tells the game as it
// plays.
#include "screen_fixture.h"

#include "screen/help_page.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QTest>

namespace morvane::testing {
namespace {

const QString kSourcePage = QStringLiteral(MORVANE_SOURCE_DIR "/docs/help.html");

class HelpPageTest : public ScreenTest {
  protected:
    int handed = 0;
    QUrl handedPage;

    void desktopAnswers(bool shown) {
        screen->helpOpener = [this, shown](const QUrl& page, std::function<void()> failed) {
            ++handed;
            handedPage = page;
            if (!shown)
                failed();
        };
    }
};

TEST_F(HelpPageTest, TheGamesOwnWindowShowsThePageOnlyWhereTheDesktopCannot) {
    desktopAnswers(true);
    screen->openHelp();
    EXPECT_EQ(1, handed);
    EXPECT_EQ(QStringLiteral("help.html"), QFileInfo(handedPage.toLocalFile()).fileName());
    EXPECT_EQ(nullptr, screen->helpWindow());

    desktopAnswers(false);
    screen->openHelp();
    QPointer<HelpWindow> shown = screen->helpWindow();
    ASSERT_NE(nullptr, shown);
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(QStringLiteral("MORVANE Help"), shown->windowTitle());
    EXPECT_EQ(window->geometry().center(), shown->geometry().center()) << "over the game";
    screen->openHelp();
    EXPECT_EQ(shown, screen->helpWindow()) << "one window, brought forward again";

    QTest::keyClick(shown, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.isNull()) << "Escape closes it";
    EXPECT_EQ(nullptr, screen->helpWindow());
}

TEST_F(HelpPageTest, TheWindowKeepsThePlayersLanguageAlone) {
    HelpWindow english(kSourcePage, false);
    const QString inEnglish = english.toPlainText();
    EXPECT_TRUE(inEnglish.contains("How to play"));
    EXPECT_FALSE(inEnglish.contains(QString::fromUtf8("遊び方")));
    EXPECT_FALSE(inEnglish.contains(QString::fromUtf8("日本語"))) << "no links between languages";

    HelpWindow japanese(kSourcePage, true);
    const QString inJapanese = japanese.toPlainText();
    EXPECT_TRUE(inJapanese.contains(QString::fromUtf8("遊び方")));
    EXPECT_FALSE(inJapanese.contains("How to play"));
    EXPECT_EQ(QString::fromUtf8("MORVANE ヘルプ"), japanese.windowTitle());

    HelpWindow missing(QStringLiteral("/nonexistent/help.html"), false);
    EXPECT_TRUE(missing.toPlainText().contains("/nonexistent/help.html"));
}

// On the break the aim swings by itself and can't be set by hand; the cue ball goes anywhere.
TEST_F(HelpPageTest, ThePageTellsTheBreakAsTheGamePlaysIt) {
    QFile file(kSourcePage);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll());
    const QString english = pageInOneLanguage(page, false);
    EXPECT_FALSE(english.contains("head string", Qt::CaseInsensitive));
    EXPECT_TRUE(english.contains("swings by itself"));
    EXPECT_TRUE(english.contains("anywhere on the"));
    const QString japanese = pageInOneLanguage(page, true);
    EXPECT_TRUE(japanese.contains(QString::fromUtf8("台のどこにでも置けます")));
}

} // namespace
} // namespace morvane::testing
