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

TEST(Pictures, ZephBlinksInFiveFramesOfSixteenColoursEachWithLessWhiteOfTheEye) {
    const QImage frames = QImage(names::kZephFrames).convertToFormat(QImage::Format_RGB32);
    EXPECT_LE(coloursOf(frames).size(), 16u);
    EXPECT_EQ(frames.copy(0, 0, 32, 32), QImage(names::kZeph).convertToFormat(frames.format()));
    int previous = 1 << 20;
    for (int f = 0; f < 5; ++f) {
        int white = 0;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                white += (frames.pixel(32 * f + x, y) & 0xffffff) == 0xffffff;
        EXPECT_LT(white, previous) << "frame " << f;
        previous = white;
    }
    EXPECT_EQ(previous, 0) << "the last frame has its eyes shut";
}

TEST(Pictures, The256ColourFilesAreEightBitBmpsWithAPaletteCloseToThePicturesCarried) {
    for (const auto& [file, carried] : {std::pair{"mvmnu256.bmp", names::kMenu},
                                        {"mvopn256.bmp", names::kOpening},
                                        {"mv256.bmp", names::kTable}}) {
        const std::vector<uint8_t> b = readBytes(file);
        ASSERT_GT(b.size(), 54u) << file;
        // The file's size, 8 bits a pixel uncompressed, and more than 16 colours in the palette.
        EXPECT_EQ((std::array<uint32_t, 4>{uint32_t(b.size()), 8, 0, 1}),
                  (std::array{le32(b, 2), le16(b, 28), le32(b, 30), uint32_t(le32(b, 46) > 16)}))
            << file;
        const QImage image(QString::fromStdString(runtimePath(file)));
        EXPECT_EQ(image.format(), QImage::Format_Indexed8) << file;
        EXPECT_LT(meanDifference(image, QImage(carried), 1), 4.0) << file;
    }
}

} // namespace
