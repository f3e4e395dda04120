// The table sheet, as the program carries it and as the 256-colour file: each ball fills its disc
// and is numbered only at rest.
#include "picture_names.h"
#include "support/asset_files.h"

#include <QImage>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr int kCell = 20;
constexpr int kRestRow = 300;
constexpr int kRollingRow = 320;

QImage sheetOf(bool file) {
    const QImage loaded =
        file ? QImage(QString::fromStdString(morvane::testing::runtimePath("mv256.bmp")))
             : QImage(morvane::pictures::kTable);
    return loaded.convertToFormat(QImage::Format_RGB32);
}

class SheetTest : public ::testing::TestWithParam<bool> {
  protected:
    void SetUp() override { ASSERT_EQ(sheet.size(), QSize(540, 360)); }
    QRgb at(int x, int y) const { return sheet.pixel(x, y) & 0xffffff; }
    const QImage sheet = sheetOf(GetParam());
};

TEST_P(SheetTest, EveryBallFillsItsDiscAndShowsItsNumberOnlyAtRest) {
    for (int i = 0; i <= 9; ++i) {
        SCOPED_TRACE(::testing::Message() << "ball " << i);
        int lit[2] = {0, 0}, ink = 0, paper = 0, changed = 0;
        for (int y = 0; y < kCell; ++y) {
            for (int x = 0; x < kCell; ++x) {
                const int rest = qGray(at(kCell * i + x, kRestRow + y));
                const int rolling = qGray(at(kCell * i + x, kRollingRow + y));
                lit[0] += at(kCell * i + x, kRestRow + y) != 0;
                lit[1] += at(kCell * i + x, kRollingRow + y) != 0;
                // A number is dark ink on a white disc at the ball's centre.
                if (x >= 6 && x < 14 && y >= 6 && y < 14) {
                    ink += rest < 90;
                    paper += rest > 200;
                    changed += std::abs(rest - rolling) > 60;
                }
            }
        }
        EXPECT_GT(lit[0], 250); // the disc holds 316 pixels
        EXPECT_GT(lit[1], 250);
        if (i == 0) {
            EXPECT_EQ(changed, 0) << "the cue ball has no number";
            continue;
        }
        EXPECT_GE(ink, 4);
        EXPECT_GE(paper, 4);
        EXPECT_GE(changed, 8);
    }
}

INSTANTIATE_TEST_SUITE_P(BothSheets, SheetTest, ::testing::Bool(),
                         [](const auto& file) { return file.param ? "file" : "resource"; });

} // namespace
