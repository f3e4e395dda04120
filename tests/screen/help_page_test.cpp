// Help: the page goes to the desktop first; where the desktop can't show it, the game's own window
// shows it in the player's language, and Escape closes that window.
#include "screen_fixture.h"

#include "screen/help_page.h"

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
    EXPECT_EQ(QStringLiteral("help.html"), QFileInfo(handedPage.toLocalFile()).fileName());
    EXPECT_TRUE(handed == 1 && !screen->helpWindow());

    desktopAnswers(false);
    screen->openHelp();
    QPointer<HelpWindow> shown = screen->helpWindow();
    ASSERT_TRUE(shown && shown->isVisible());
    EXPECT_EQ(QStringLiteral("MORVANE Help"), shown->windowTitle());
    EXPECT_EQ(window->geometry().center(), shown->geometry().center()) << "over the game";
    screen->openHelp();
    EXPECT_EQ(shown, screen->helpWindow()) << "one window, brought forward again";

    QTest::keyClick(shown, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.isNull() && !screen->helpWindow()) << "Escape closes it";
}

TEST_F(HelpPageTest, TheWindowKeepsThePlayersLanguageAloneAndTellsTheBreakAsItPlays) {
    const QString english = HelpWindow(kSourcePage, false).toPlainText();
    const QString japanese = HelpWindow(kSourcePage, true).toPlainText();
    const QString howToPlay = QString::fromUtf8("遊び方");
    EXPECT_TRUE(english.contains("How to play") && !english.contains(howToPlay));
    EXPECT_FALSE(english.contains(QString::fromUtf8("日本語"))) << "no links between languages";
    EXPECT_TRUE(japanese.contains(howToPlay) && !japanese.contains("How to play"));
    // On the break the aim swings by itself, and the cue ball may stand anywhere.
    EXPECT_FALSE(english.contains("head string", Qt::CaseInsensitive));
    EXPECT_TRUE(english.contains("swings by itself") && english.contains("anywhere on the"));
    EXPECT_TRUE(japanese.contains(QString::fromUtf8("台のどこにでも置けます")));
    EXPECT_EQ(QString::fromUtf8("MORVANE ヘルプ"), HelpWindow(kSourcePage, true).windowTitle());
    EXPECT_TRUE(HelpWindow("/nonexistent/help.html", false).toPlainText().contains("/nonexi"));
}

} // namespace
} // namespace morvane::testing
