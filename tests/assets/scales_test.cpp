// Every picture comes in sets of scale 2 and 3: exactly two and three times the size in each
// direction, and the same picture as at scale 1, only finer. The sprite sheets keep the rule the
// table view's raster operations rely on at every scale: sprites on black inside the very disc
// that the mask darkens.
#include "picture_names.h"
#include "support/asset_files.h"
#include "support/picture_compare.h"

#include <QImage>
#include <QResource>
#include <gtest/gtest.h>

namespace {

using namespace morvane::testing;
using morvane::testing::meanDifference;
namespace names = morvane::pictures;

// The finer sets come in resource files of their own beside the programs.
bool pictureSetRead(int scale) {
    static const bool read =
        QResource::registerResource(QString::fromStdString(runtimePath("pictures@2x.rcc"))) &&
        QResource::registerResource(QString::fromStdString(runtimePath("pictures@3x.rcc")));
    return scale == 1 || read;
}

QImage resourceAt(const char* name, int scale) {
    EXPECT_TRUE(pictureSetRead(scale)) << "pictures@" << scale << "x.rcc";
    return QImage(QString::fromStdString(names::scaledName(name, scale)));
}

QImage fileAt(const char* file, int scale) {
    return QImage(QString::fromStdString(runtimePath(names::scaledName(file, scale))));
}

bool insideDisc(int x, int y, int size) {
    const double half = size / 2.0, dx = x + 0.5 - half, dy = y + 0.5 - half;
    return dx * dx + dy * dy <= half * half;
}

TEST(Scales, NamesOfTheFinerSetsAreMarkedBeforeTheExtension) {
    EXPECT_EQ(":/pictures/table.png", names::scaledName(names::kTable, 1));
    EXPECT_EQ(":/pictures/table@2x.png", names::scaledName(names::kTable, 2));
    EXPECT_EQ("mv256@3x.bmp", names::scaledName("mv256.bmp", 3));
}

TEST(Scales, EveryResourceComesAtTwiceAndThriceItsSizeShowingTheSamePicture) {
    for (const names::PictureSize& p : names::kAllPictures) {
        if (p.name == std::string_view(names::kIcon))
            continue; // the icon comes in sizes of its own
        const QImage one = resourceAt(p.name, 1);
        for (int scale : {2, 3}) {
            const QImage finer = resourceAt(p.name, scale);
            ASSERT_FALSE(finer.isNull()) << p.name << " at " << scale;
            EXPECT_EQ(QSize(p.width * scale, p.height * scale), finer.size()) << p.name;
            EXPECT_LT(meanDifference(one, finer, scale), 12.0) << p.name << " at " << scale;
        }
    }
}

TEST(Scales, TheTwoHundredFiftySixColourFilesComeAtEveryScale) {
    const std::pair<const char*, QSize> files[] = {{"mv256.bmp", QSize(540, 360)},
                                                   {"mvmnu256.bmp", QSize(540, 365)},
                                                   {"mvopn256.bmp", QSize(229, 168)}};
    for (const auto& [file, size] : files) {
        const QImage one = fileAt(file, 1);
        for (int scale : {2, 3}) {
            const QImage finer = fileAt(file, scale);
            EXPECT_EQ(QImage::Format_Indexed8, finer.format()) << file;
            EXPECT_EQ(size * scale, finer.size()) << file;
            EXPECT_LT(meanDifference(one, finer, scale), 12.0) << file << " at " << scale;
        }
    }
}

TEST(Scales, AtEveryScaleTheSpritesLieOnBlackInsideTheMasksDisc) {
    for (int scale : names::kScales) {
        for (const QImage& loaded :
             {resourceAt(names::kTable, scale), fileAt("mv256.bmp", scale)}) {
            const QImage sheet = loaded.convertToFormat(QImage::Format_RGB32);
            const int cell = 20 * scale;
            const int rest = 300 * scale, rolling = 320 * scale, mask = 200 * scale;
            int misplaced = 0;
            for (int y = 0; y < cell; ++y) {
                for (int x = 0; x < cell; ++x) {
                    const bool in = insideDisc(x, y, cell);
                    misplaced += (sheet.pixel(mask + x, rest + y) & 0xffffff) !=
                                 (in ? 0x000000u : 0xffffffu);
                    misplaced += (sheet.pixel(mask + x, rolling + y) & 0xffffff) !=
                                 (in ? 0x005000u : 0x000000u);
                    for (int i = 0; i < 10; ++i)
                        for (int row : {rest, rolling})
                            misplaced += !in && (sheet.pixel(cell * i + x, row + y) & 0xffffff);
                }
            }
            EXPECT_EQ(0, misplaced) << "scale " << scale;
            EXPECT_EQ(0x007000u, sheet.pixel(200 * scale, 100 * scale) & 0xffffff) << "the cloth";
        }
    }
}

TEST(Scales, TheIconComesInEverySizeOfTheIconTheme) {
    for (int size : names::kIconSizes) {
        const QImage icon(
            QString::fromStdString(runtimePath("morvane-" + std::to_string(size) + ".png")));
        ASSERT_EQ(QSize(size, size), icon.size()) << size;
        EXPECT_TRUE(icon.hasAlphaChannel());
        EXPECT_EQ(0, qAlpha(icon.pixel(0, 0))) << "a transparent ground";
        EXPECT_EQ(255, qAlpha(icon.pixel(size / 2, size / 2))) << "the ball in the middle";
    }
}

} // namespace
