#include "screen/help_page.h"

#include "startup/program_files.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QKeyEvent>
#include <QProcess>

namespace morvane {

namespace {

constexpr const char* kHelpPage = "help.html";
constexpr const char* kDesktopOpener = "xdg-open";
constexpr const char* kLanguageLinks = "languages";
constexpr const char* kEnglishSection = "en";
constexpr const char* kJapaneseSection = "ja";
constexpr QSize kHelpWindowSize{640, 480};

} // namespace

void openWithDesktop(const QUrl& page, std::function<void()> failed) {
    auto* opener = new QProcess(QCoreApplication::instance());
    opener->setProgram(QString::fromLatin1(kDesktopOpener));
    opener->setArguments({page.toString()});
    opener->setStandardOutputFile(QProcess::nullDevice());
    opener->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(opener, &QProcess::finished, opener,
                     [opener, failed](int status, QProcess::ExitStatus how) {
                         opener->deleteLater();
                         if (how != QProcess::NormalExit || status != 0)
                             failed();
                     });
    QObject::connect(opener, &QProcess::errorOccurred, opener,
                     [opener, page, failed](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         opener->deleteLater();
                         if (!QDesktopServices::openUrl(page))
                             failed();
                     });
    opener->start();
}

QString helpPagePath() {
    return QString::fromStdString(findDataFile(kHelpPage, gameDataFolders()).string());
}

// The page holds both languages, each between "<!-- section xx -->" and "<!-- end xx -->", and
// the links from one to the other: the window keeps the player's language alone.
QString pageInOneLanguage(const QString& html, bool japanese) {
    QString page = html;
    for (const char* dropped : {kLanguageLinks, japanese ? kEnglishSection : kJapaneseSection}) {
        const QString begin = QStringLiteral("<!-- section %1 -->").arg(QLatin1String(dropped));
        const QString end = QStringLiteral("<!-- end %1 -->").arg(QLatin1String(dropped));
        const qsizetype from = page.indexOf(begin);
        const qsizetype to = page.indexOf(end, from);
        if (from >= 0 && to >= 0)
            page.remove(from, to + end.size() - from);
    }
    return page;
}

HelpWindow::HelpWindow(const QString& pagePath, bool japanese) {
    setAttribute(Qt::WA_DeleteOnClose);
    resize(kHelpWindowSize);
    setWindowTitle(QString::fromUtf8(japanese ? "MORVANE ヘルプ" : "MORVANE Help"));
    QFile file(pagePath);
    if (!file.open(QIODevice::ReadOnly)) {
        setPlainText(QStringLiteral("The help page can't be read: ") + pagePath);
        return;
    }
    setHtml(pageInOneLanguage(QString::fromUtf8(file.readAll()), japanese));
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QTextBrowser::keyPressEvent(event);
}

} // namespace morvane
