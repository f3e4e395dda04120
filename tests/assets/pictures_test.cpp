// The pictures the forms carry load from the program's resources at their sizes, and the
// 256-colour files are true 8-bit BMPs with a palette.
#include "picture_names.h"
#include "support/asset_files.h"

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
        ASSERT_FALSE(image.isNull()) << p.name;
        EXPECT_EQ(image.size(), QSize(p.width, p.height)) << p.name;
        EXPECT_GT(coloursOf(image).size(), 1u) << p.name;
    }
}

TEST(Pictures, HoverPairsDifferAndTheLitWordIsBrighter) {
    const char* const* words[] = {names::kSoloPlay, names::kVsCpu, names::kVsPlay, names::kRecord,
                                  names::kExit};
    for (const char* const* pair : words) {
        const QImage rest(QString::fromLatin1(pair[0]));
        const QImage lit(QString::fromLatin1(pair[1]));
        int brightest[2] = {0, 0};
        for (int i = 0; i < 2; ++i)
            for (QRgb c : coloursOf(i ? lit : rest))
                brightest[i] = std::max(brightest[i], std::max({qRed(c), qGreen(c), qBlue(c)}));
        EXPECT_EQ(brightest[1], 255) << pair[1];
        EXPECT_LT(brightest[0], 160) << pair[0];
    }
    for (const char* const* pair : {names::kBgm, names::kSound, names::kColor}) {
        const QImage on(QString::fromLatin1(pair[0]));
        const QImage off(QString::fromLatin1(pair[1]));
        EXPECT_NE(on, off) << pair[0];
        EXPECT_FALSE(coloursOf(on).count(qRgb(0, 255, 0))) << "no cross on " << pair[0];
        EXPECT_TRUE(coloursOf(off).count(qRgb(0, 255, 0))) << "green cross on " << pair[1];
    }
}

TEST(Pictures, ZephBlinksInFiveFramesOfSixteenColours) {
    const QImage face(QString::fromLatin1(names::kZeph));
    const QImage frames(QString::fromLatin1(names::kZephFrames));
    EXPECT_LE(coloursOf(frames).size(), 16u);
    EXPECT_EQ(frames.copy(0, 0, 32, 32).convertToFormat(QImage::Format_RGB32),
              face.convertToFormat(QImage::Format_RGB32));
    // Each frame closes the eyes a little more: fewer white pixels each time.
    int previous = 1 << 20;
    for (int f = 0; f < 5; ++f) {
        int white = 0;
        const QImage cell = frames.copy(32 * f, 0, 32, 32).convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                white += (cell.pixel(x, y) & 0xffffff) == 0xffffff;
        EXPECT_LT(white, previous) << "frame " << f;
        previous = white;
    }
    EXPECT_EQ(previous, 0) << "the last frame has its eyes shut";
}

struct BmpCase {
    const char* file;
    int width;
    int height;
};

class BmpFile : public ::testing::TestWithParam<BmpCase> {};

TEST_P(BmpFile, IsAnEightBitPictureWithAPaletteAndConsistentHeaders) {
    const BmpCase c = GetParam();
    const std::vector<uint8_t> b = readBytes(c.file);
    ASSERT_GT(b.size(), 54u) << c.file;
    EXPECT_EQ(tag(b, 0, 2), "BM");
    EXPECT_EQ(le32(b, 2), b.size());
    EXPECT_EQ(le32(b, 14), 40u);
    EXPECT_EQ(le32(b, 18), static_cast<uint32_t>(c.width));
    EXPECT_EQ(le32(b, 22), static_cast<uint32_t>(c.height));
    EXPECT_EQ(le16(b, 28), 8u);
    EXPECT_EQ(le32(b, 30), 0u) << "uncompressed";
    const uint32_t paletteSize = le32(b, 46);
    EXPECT_GT(paletteSize, 16u);
    EXPECT_LE(paletteSize, 256u);
    const uint32_t rowBytes = (static_cast<uint32_t>(c.width) + 3) & ~3u;
    EXPECT_EQ(le32(b, 10), 54 + 4 * paletteSize);
    EXPECT_EQ(b.size(), le32(b, 10) + rowBytes * static_cast<uint32_t>(c.height));
    // Every pixel names an entry of the palette.
    for (size_t i = le32(b, 10); i < b.size(); ++i)
        ASSERT_LT(b[i], paletteSize) << "byte " << i;
    const QImage image(QString::fromStdString(runtimePath(c.file)));
    EXPECT_EQ(image.format(), QImage::Format_Indexed8);
}

INSTANTIATE_TEST_SUITE_P(TheThreeFiles, BmpFile,
                         ::testing::Values(BmpCase{"mv256.bmp", 540, 360},
                                           BmpCase{"mvmnu256.bmp", 540, 365},
                                           BmpCase{"mvopn256.bmp", 229, 168}));

TEST(Pictures, TheFileMenuAndSplashMatchTheCarriedOnesClosely) {
    const std::pair<const char*, const char*> pairs[] = {{"mvmnu256.bmp", names::kMenu},
                                                         {"mvopn256.bmp", names::kOpening}};
    for (const auto& [file, resource] : pairs) {
        const QImage a =
            QImage(QString::fromStdString(runtimePath(file))).convertToFormat(QImage::Format_RGB32);
        const QImage b =
            QImage(QString::fromLatin1(resource)).convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(a.size(), b.size()) << file;
        double error = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                error += std::abs(qRed(a.pixel(x, y)) - qRed(b.pixel(x, y))) +
                         std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y))) +
                         std::abs(qBlue(a.pixel(x, y)) - qBlue(b.pixel(x, y)));
        EXPECT_LT(error / (3.0 * a.width() * a.height()), 4.0) << file;
    }
}

} // namespace
