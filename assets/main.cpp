// morvane-assets: draws every picture, synthesises the sound effects and writes the tunes.
// Usage: morvane-assets RUNTIME_DIR PICTURE_DIR
//   RUNTIME_DIR gets the 256-colour pictures, the sounds, the tunes and the icons;
//   PICTURE_DIR gets the PNG pictures that are compiled into the program.
// Every picture but the icons is drawn once at each scale, its name marked "@2x" or "@3x" above
// scale 1; the icons come in the sizes of the desktop's icon theme.
#include "bmp_writer.h"
#include "effects.h"
#include "form_pictures.h"
#include "menu_pictures.h"
#include "picture_names.h"
#include "sheet.h"
#include "tunes.h"
#include "wav_writer.h"

#include <QDir>
#include <QGuiApplication>
#include <cstdio>

namespace {

using namespace morvane::assets;
namespace names = morvane::pictures;

bool failed = false;

void check(bool ok, const QString& path) {
    if (!ok) {
        std::fprintf(stderr, "morvane-assets: cannot write %s\n", qPrintable(path));
        failed = true;
    }
}

// The path of a file in a folder, in the set of a scale.
QString scaledPath(const QString& folder, std::string_view file, int scale) {
    return folder + '/' + QString::fromStdString(names::scaledName(file, scale));
}

void savePicture(const QImage& image, const QString& folder, const char* name, int scale) {
    const QString path = scaledPath(folder, names::fileName(name), scale);
    check(image.save(path), path);
}

void saveBmp8(const QImage& image, const std::vector<QRgb>& exact, const QString& folder,
              const char* file, int scale) {
    const QString path = scaledPath(folder, file, scale);
    check(writeBmp8(image, exact, path), path);
}

void writeFormPictures(const QString& folder, int scale) {
    const QImage table = tablePicture(scale);
    savePicture(tableSheet(false, scale), folder, names::kTable, scale);
    savePicture(setPointBall(scale), folder, names::kSetPoint, scale);
    savePicture(menuPicture(table, scale), folder, names::kMenu, scale);
    for (int lit = 0; lit < 2; ++lit) {
        const auto word = [&](MenuWord w, const char* const* name) {
            savePicture(menuWordPicture(w, lit, scale), folder, name[lit], scale);
        };
        const auto toggle = [&](MenuSwitch w, const char* const* name) {
            savePicture(menuSwitchPicture(w, lit, scale), folder, name[lit], scale);
        };
        word(MenuWord::SoloPlay, names::kSoloPlay);
        word(MenuWord::VsCpu, names::kVsCpu);
        word(MenuWord::VsPlay, names::kVsPlay);
        word(MenuWord::Record, names::kRecord);
        word(MenuWord::Exit, names::kExit);
        toggle(MenuSwitch::Bgm, names::kBgm);
        toggle(MenuSwitch::Sound, names::kSound);
        toggle(MenuSwitch::Color, names::kColor);
    }
    savePicture(openingPicture(scale), folder, names::kOpening, scale);
    savePicture(zephFace(0, scale), folder, names::kZeph, scale);
    savePicture(zephFrames(scale), folder, names::kZephFrames, scale);
    savePicture(buttonPicture(QStringLiteral("OK"), scale), folder, names::kOk, scale);
    savePicture(buttonPicture(QStringLiteral("Cancel"), scale), folder, names::kCancel, scale);
}

void writePictureFiles(const QString& folder, int scale) {
    saveBmp8(tableSheet(true, scale), sheetColours(), folder, "mv256.bmp", scale);
    saveBmp8(menuPicture(tablePicture(scale), scale), {}, folder, "mvmnu256.bmp", scale);
    saveBmp8(openingPicture(scale), {}, folder, "mvopn256.bmp", scale);
}

// The window's own icon among the resources, and one file a size for the desktop.
void writeIcons(const QString& runtime, const QString& pictures) {
    savePicture(iconPicture(256), pictures, names::kIcon, 1);
    for (int size : names::kIconSizes) {
        const QString icon = runtime + QStringLiteral("/morvane-%1.png").arg(size);
        check(iconPicture(size).save(icon), icon);
    }
}

void writeRuntimeFiles(const QString& folder) {
    for (const Effect& e : allEffects()) {
        const QString path = folder + '/' + QString::fromLatin1(e.file);
        check(writeWav(e.samples(), path.toStdString()), path);
    }
    for (const Tune& t : allTunes()) {
        const QString path = folder + '/' + QString::fromLatin1(t.file);
        check(writeTune(t, path.toStdString()), path);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: morvane-assets RUNTIME_DIR PICTURE_DIR\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QString runtime = QString::fromLocal8Bit(argv[1]);
    const QString pictures = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(runtime);
    QDir().mkpath(pictures);
    for (int scale : names::kScales) {
        writeFormPictures(pictures, scale);
        writePictureFiles(runtime, scale);
    }
    writeIcons(runtime, pictures);
    writeRuntimeFiles(runtime);
    return failed ? 1 : 0;
}
