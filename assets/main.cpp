// morvane-assets: draws every picture, synthesises the sound effects and writes the tunes.
// Usage: morvane-assets RUNTIME_DIR PICTURE_DIR
//   RUNTIME_DIR gets the 256-colour pictures, the sounds, the tunes and the icons;
//   PICTURE_DIR gets the PNG pictures that are compiled into the program.
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

void savePicture(const QImage& image, const QString& folder, const char* name) {
    const std::string_view file = names::fileName(name);
    const QString path = folder + '/' + QString::fromLatin1(file.data(), qsizetype(file.size()));
    check(image.save(path), path);
}

void writeFormPictures(const QString& folder) {
    const QImage table = tablePicture();
    savePicture(tableSheet(false), folder, names::kTable);
    savePicture(setPointBall(), folder, names::kSetPoint);
    savePicture(menuPicture(table), folder, names::kMenu);
    for (int lit = 0; lit < 2; ++lit) {
        savePicture(menuWordPicture(MenuWord::SoloPlay, lit), folder, names::kSoloPlay[lit]);
        savePicture(menuWordPicture(MenuWord::VsCpu, lit), folder, names::kVsCpu[lit]);
        savePicture(menuWordPicture(MenuWord::VsPlay, lit), folder, names::kVsPlay[lit]);
        savePicture(menuWordPicture(MenuWord::Record, lit), folder, names::kRecord[lit]);
        savePicture(menuWordPicture(MenuWord::Exit, lit), folder, names::kExit[lit]);
        savePicture(menuSwitchPicture(MenuSwitch::Bgm, lit), folder, names::kBgm[lit]);
        savePicture(menuSwitchPicture(MenuSwitch::Sound, lit), folder, names::kSound[lit]);
        savePicture(menuSwitchPicture(MenuSwitch::Color, lit), folder, names::kColor[lit]);
    }
    savePicture(openingPicture(), folder, names::kOpening);
    savePicture(zephFace(0), folder, names::kZeph);
    savePicture(zephFrames(), folder, names::kZephFrames);
    savePicture(buttonPicture(QStringLiteral("OK")), folder, names::kOk);
    savePicture(buttonPicture(QStringLiteral("Cancel")), folder, names::kCancel);
    savePicture(iconPicture(256), folder, names::kIcon);
}

void writeRuntimeFiles(const QString& folder) {
    const QString sheet = folder + "/mv256.bmp";
    check(writeBmp8(tableSheet(true), sheetColours(), sheet), sheet);
    const QString menu = folder + "/mvmnu256.bmp";
    check(writeBmp8(menuPicture(tablePicture()), {}, menu), menu);
    const QString opening = folder + "/mvopn256.bmp";
    check(writeBmp8(openingPicture(), {}, opening), opening);
    for (int size : {64, 256}) {
        const QString icon = folder + QStringLiteral("/morvane-%1.png").arg(size);
        check(iconPicture(size).save(icon), icon);
    }
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
    writeFormPictures(pictures);
    writeRuntimeFiles(runtime);
    return failed ? 1 : 0;
}
