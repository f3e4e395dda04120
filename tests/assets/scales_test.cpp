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
namespace names = morvane::pictures;

// A resource, from the resource files of its own beside the programs for the finer sets, or a
// 256-colour file.
QImage pictureAt(const std::string& name, int scale) {
    static const bool read =
        QResource::registerResource(QString::fromStdString(runtimePath("pictures@2x.rcc"))) &&
        QResource::registerResource(QString::fromStdString(runtimePath("pictures@3x.rcc")));
    EXPECT_TRUE(read);
    const std::string scaled = names::scaledName(name, scale);
    return QImage(QString::fromStdString(name[0] == ':' ? scaled : runtimePath(scaled)));
}

TEST(Scales, EveryPictureComesAtTwiceAndThriceItsSizeShowingTheSamePicture) {
    std::vector<names::PictureSize> all(std::begin(names::kAllPictures),
                                        std::end(names::kAllPictures));
    std::erase_if(all, [](const auto& p) { return p.name == std::string_view(names::kIcon); });
    all.insert(all.end(),
               {{"mv256.bmp", 540, 360}, {"mvmnu256.bmp", 540, 365}, {"mvopn256.bmp", 229, 168}});
    for (const names::PictureSize& p : all) {
        const QImage one = pictureAt(p.name, 1);
        for (int scale : {2, 3}) {
            SCOPED_TRACE(::testing::Message() << p.name << " at " << scale);
            const QImage finer = pictureAt(p.name, scale);
            ASSERT_EQ(QSize(p.width * scale, p.height * scale), finer.size());
            EXPECT_LT(meanDifference(one, finer, scale), 12.0);
            EXPECT_EQ(p.name[0] != ':', finer.format() == QImage::Format_Indexed8);
        }
    }
}

TEST(Scales, AtEveryScaleTheSpritesLieOnBlackInsideTheMasksDisc) {
    for (int scale : names::kScales) {
        for (const char* name : {names::kTable, "mv256.bmp"}) {
            const QImage sheet = pictureAt(name, scale).convertToFormat(QImage::Format_RGB32);
            const int cell = 20 * scale;
            const int rest = 300 * scale, rolling = 320 * scale, mask = 200 * scale;
            const auto at = [&](int x, int y) { return sheet.pixel(x, y) & 0xffffff; };
            int misplaced = 0;
            for (int y = 0; y < cell; ++y) {
                for (int x = 0; x < cell; ++x) {
                    const double dx = x + 0.5 - cell / 2.0, dy = y + 0.5 - cell / 2.0;
                    const bool in = dx * dx + dy * dy <= cell * cell / 4.0;
                    misplaced += at(mask + x, rest + y) != (in ? 0x000000u : 0xffffffu);
                    misplaced += at(mask + x, rolling + y) != (in ? 0x005000u : 0x000000u);
                    for (int i = 0; i < 10; ++i)
                        for (int row : {rest, rolling})
                            misplaced += !in && at(cell * i + x, row + y);
                }
            }
            EXPECT_EQ(0, misplaced) << name << " at " << scale;
            EXPECT_EQ(0x007000u, at(200 * scale, 100 * scale)) << "the cloth";
        }
    }
}

TEST(Scales, TheIconComesInEverySizeOfTheIconTheme) {
    for (int size : names::kIconSizes) {
        const QImage icon(
            QString::fromStdString(runtimePath("morvane-" + std::to_string(size) + ".png")));
        ASSERT_EQ(QSize(size, size), icon.size()) << size;
        EXPECT_EQ(0, qAlpha(icon.pixel(0, 0))) << "a transparent ground";
        EXPECT_EQ(255, qAlpha(icon.pixel(size / 2, size / 2))) << "the ball in the middle";
    }
}

} // namespace
