// The pictures the forms carry load from the program's resources at their sizes, and the
// 256-colour files are 8-bit BMPs with a palette, close to the pictures carried.
#include "picture_names.h"
#include "support/asset_files.h"
#include "support/picture_compare.h"

#include <QImage>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace morvane::testing;
namespace names = morvane::pictures;

std::set<QRgb> coloursOf(const QImage& image) {
    std::set<QRgb> colours;
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < rgb.height(); ++y)
        for (int x = 0; x < rgb.width(); ++x)
            colours.insert(rgb.pixel(x, y));
    return colours;
}

TEST(Pictures, EveryResourceLoadsAtItsSizeAndIsNotBlank) {
    for (const names::PictureSize& p : names::kAllPictures) {
        const QImage image(QString::fromLatin1(p.name));
        EXPECT_EQ(image.size(), QSize(p.width, p.height)) << p.name;
        EXPECT_GT(coloursOf(image).size(), 1u) << p.name;
    }
}

TEST(Pictures, TheLitWordIsBrighterAndTheSwitchOffWearsAGreenCross) {
    for (const char* const* pair :
         {names::kSoloPlay, names::kVsCpu, names::kVsPlay, names::kRecord, names::kExit}) {
        int brightest[2] = {0, 0};
        for (int i = 0; i < 2; ++i)
            for (QRgb c : coloursOf(QImage(pair[i])))
                brightest[i] = std::max({brightest[i], qRed(c), qGreen(c), qBlue(c)});
        EXPECT_EQ(brightest[1], 255) << pair[1];
        EXPECT_LT(brightest[0], 160) << pair[0];
    }
    for (const char* const* pair : {names::kBgm, names::kSound, names::kColor}) {
        EXPECT_FALSE(coloursOf(QImage(pair[0])).count(qRgb(0, 255, 0))) << pair[0];
        EXPECT_TRUE(coloursOf(QImage(pair[1])).count(qRgb(0, 255, 0))) << pair[1];
    }
}

TEST(Pictures, The256ColourFilesAreEightBitBmpsWithAPaletteCloseToThePicturesCarried) {
    for (const auto& [file, carried] : {std::pair{"mvmnu256.bmp", names::kMenu},
                                        {"mvopn256.bmp", names::kOpening},
                                        {"mv256.bmp", names::kTable}}) {
        const QImage image(QString::fromStdString(runtimePath(file)));
        EXPECT_EQ(image.format(), QImage::Format_Indexed8) << file;
        EXPECT_GT(image.colorCount(), 16) << file;
        EXPECT_LT(meanDifference(image, QImage(carried), 1), 4.0) << file;
    }
}

} // namespace
