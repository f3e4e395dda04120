#include "screen/pictures.h"

#include "picture_names.h"
#include "startup/program_files.h"

#include <QGuiApplication>
#include <QResource>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace morvane {

namespace {

// A ratio this close above a whole number counts as that number.
constexpr double kRatioTolerance = 0.01;
// The resource file of a finer set, "pictures@2x.rcc" at scale 2.
constexpr const char* kPictureSetFile = "pictures.rcc";

enum class SetState { Unknown, Loaded, Missing };

QImage withScale(QImage picture, int scale) {
    picture.setDevicePixelRatio(scale);
    return picture;
}

} // namespace

int pictureScaleFor(double devicePixelRatio) {
    const int scale = int(std::ceil(devicePixelRatio - kRatioTolerance));
    return std::clamp(scale, 1, pictures::kFinestScale);
}

bool loadPictureSet(int scale) {
    static std::array<SetState, pictures::kFinestScale + 1> sets{};
    if (scale <= 1 || scale > pictures::kFinestScale)
        return scale == 1;
    SetState& set = sets[size_t(scale)];
    if (set == SetState::Unknown) {
        const std::string file = pictures::scaledName(kPictureSetFile, scale);
        const std::string path = findDataFile(file, gameDataFolders()).string();
        const bool loaded = QResource::registerResource(QString::fromStdString(path));
        set = loaded ? SetState::Loaded : SetState::Missing;
        if (!loaded)
            std::fprintf(stderr, "morvane: can't read %s; the pictures are drawn at scale 1\n",
                         path.c_str());
    }
    return set == SetState::Loaded;
}

int pictureScale() {
    const int scale = pictureScaleFor(qGuiApp ? qGuiApp->devicePixelRatio() : 1.0);
    return loadPictureSet(scale) ? scale : 1;
}

QImage scaledPicture(const char* name, int scale) {
    loadPictureSet(scale);
    return withScale(QImage(QString::fromStdString(pictures::scaledName(name, scale))), scale);
}

QImage pictureFileOr(const char* fileName, const QImage& inner) {
    const int scale = int(inner.devicePixelRatio());
    const std::string name = pictures::scaledName(fileName, scale);
    const QImage file(QString::fromStdString(findInCurrentDirectory(name, gameDataFolders())));
    if (file.isNull() || file.size() != inner.size())
        return inner;
    return withScale(file.convertToFormat(inner.format()), scale);
}

QImage tablePicture() {
    return scaledPicture(pictures::kTable);
}
QImage cueBallPicture() {
    return scaledPicture(pictures::kSetPoint);
}
QImage okPicture() {
    return scaledPicture(pictures::kOk);
}
QImage windowIcon() {
    return QImage(pictures::kIcon);
}

} // namespace morvane
