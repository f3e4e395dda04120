#include "screen/help_page.h"

#include "startup/program_files.h"

#include <QDesktopServices>
#include <QUrl>

namespace morvane {

namespace {
constexpr const char* kHelpPage = "help.html";
}

bool openHelpPage() {
    const auto page = findDataFile(kHelpPage, gameDataFolders());
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(page.string())));
}

} // namespace morvane
