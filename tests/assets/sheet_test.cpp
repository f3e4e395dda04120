// The table sheet, as the program carries it and as the 256-colour file, must keep the layout
// the table view blits from: sprites inside their mask, the cloth, pockets and spots in place.
#include "picture_names.h"
#include "support/asset_files.h"

#include <QImage>
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

namespace {

using morvane::testing::runtimePath;

constexpr int kCell = 20;
constexpr int kRestRow = 300;
constexpr int kRollingRow = 320;
constexpr int kMaskColumn = 200;

bool insideDisc(int x, int y) {
    const double dx = x + 0.5 - 10, dy = y + 0.5 - 10;
    return dx * dx + dy * dy <= 100;
}

struct SheetCase {
    const char* label;
    QImage (*load)();
};

QImage resourceSheet() {
    return QImage(morvane::pictures::kTable);
}
QImage fileSheet() {
    return QImage(QString::fromStdString(runtimePath("mv256.bmp")));
}

class SheetTest : public ::testing::TestWithParam<SheetCase> {
  protected:
    void SetUp() override {
        sheet = GetParam().load().convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(sheet.size(), QSize(540, 360));
    }
    QRgb at(int x, int y) const { return sheet.pixel(x, y) & 0xffffff; }
    QImage sheet;
};

TEST_P(SheetTest, MaskIsABlackDiscOnWhiteAndTheShadowADarkGreenDiscOnBlack) {
    for (int y = 0; y < kCell; ++y) {
        for (int x = 0; x < kCell; ++x) {
            const bool in = insideDisc(x, y);
            EXPECT_EQ(at(kMaskColumn + x, kRestRow + y), in ? 0x000000u : 0xffffffu)
                << x << "," << y;
            EXPECT_EQ(at(kMaskColumn + x, kRollingRow + y), in ? 0x005000u : 0x000000u)
                << x << "," << y;
        }
    }
}

TEST_P(SheetTest, EveryBallLiesInsideTheMaskAndFillsIt) {
    for (int row : {kRestRow, kRollingRow}) {
        for (int i = 0; i < 10; ++i) {
            int lit = 0;
            for (int y = 0; y < kCell; ++y) {
                for (int x = 0; x < kCell; ++x) {
                    const QRgb c = at(kCell * i + x, row + y);
                    if (!insideDisc(x, y))
                        EXPECT_EQ(c, 0u)
                            << "ball " << i << " row " << row << " at " << x << "," << y;
                    else if (c != 0)
                        ++lit;
                }
            }
            EXPECT_GT(lit, 250) << "ball " << i << " row " << row; // the disc holds 316 pixels
        }
    }
}

TEST_P(SheetTest, BallsAtRestShowTheirNumberAndRollingBallsDoNot) {
    // A number is dark ink on a white disc at the ball's centre, which the rolling ball lacks.
    for (int i = 0; i <= 9; ++i) {
        int ink = 0, paper = 0, changed = 0;
        for (int y = 6; y < 14; ++y) {
            for (int x = 6; x < 14; ++x) {
                const int rest = qGray(at(kCell * i + x, kRestRow + y));
                const int rolling = qGray(at(kCell * i + x, kRollingRow + y));
                ink += rest < 90;
                paper += rest > 200;
                changed += std::abs(rest - rolling) > 60;
            }
        }
        if (i == 0) {
            EXPECT_EQ(changed, 0) << "the cue ball has no number";
            continue;
        }
        EXPECT_GE(ink, 4) << "ball " << i;
        EXPECT_GE(paper, 4) << "ball " << i;
        EXPECT_GE(changed, 8) << "ball " << i;
    }
}

TEST_P(SheetTest, TheBallsHaveTheirColours) {
    auto centre = [this](int i) { return QColor(at(kCell * i + 6, kRollingRow + 11)); };
    EXPECT_GT(centre(0).lightness(), 180); // white
    EXPECT_TRUE(centre(1).red() > 150 && centre(1).green() > 110 && centre(1).blue() < 80);
    EXPECT_TRUE(centre(2).blue() > centre(2).red() + 60);  // blue
    EXPECT_TRUE(centre(3).red() > centre(3).green() + 80); // red
    EXPECT_LT(centre(8).lightness(), 60);                  // black
    const QColor nineBand(at(kCell * 9 + 10, kRollingRow + 10));
    const QColor nineTop(at(kCell * 9 + 10, kRollingRow + 2));
    EXPECT_LT(nineBand.blue(), 100) << "the nine's band is yellow";
    EXPECT_GT(nineTop.blue(), 140) << "above the band the nine is white";
}

TEST_P(SheetTest, TheTableHasClothPocketsSpotsAndARail) {
    const QRgb cloth = 0x007000;
    for (QPoint p : {QPoint(60, 60), QPoint(480, 240), QPoint(200, 100), QPoint(509, 150),
                     QPoint(30, 150), QPoint(270, 100)})
        EXPECT_EQ(at(p.x(), p.y()), cloth) << p.x() << "," << p.y();
    for (QPoint p : {QPoint(30, 30), QPoint(270, 29), QPoint(509, 30), QPoint(30, 269),
                     QPoint(270, 271), QPoint(509, 269)})
        EXPECT_EQ(at(p.x(), p.y()), 0u) << "pocket at " << p.x() << "," << p.y();
    for (QPoint p : {QPoint(150, 150), QPoint(270, 150), QPoint(390, 150)}) {
        const QColor spot(at(p.x(), p.y()));
        EXPECT_TRUE(spot.red() > 100 && spot.red() == spot.green()) << p.x();
    }
    for (QPoint p : {QPoint(150, 5), QPoint(5, 150), QPoint(150, 295)}) {
        const QColor wood(at(p.x(), p.y()));
        EXPECT_TRUE(wood.red() > wood.green() && wood.green() > wood.blue())
            << p.x() << "," << p.y();
    }
}

TEST_P(SheetTest, ModeIconsAndSmallBallsStandOnBlackAndTheRestIsWhite) {
    for (int left : {220, 245, 270}) {
        EXPECT_EQ(at(left, 301), 0u);
        std::set<QRgb> colours;
        for (int y = 0; y < 25; ++y)
            for (int x = 0; x < 25; ++x)
                colours.insert(at(left + x, 301 + y));
        EXPECT_GT(colours.size(), 2u) << "icon at " << left;
    }
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(at(10 * i, 340), 0u);
        EXPECT_NE(at(10 * i + 5, 345), 0u);
        EXPECT_NE(at(10 * i + 5, 355), 0u);
    }
    for (QPoint p : {QPoint(300, 300), QPoint(400, 340), QPoint(150, 345), QPoint(480, 359)})
        EXPECT_EQ(at(p.x(), p.y()), 0xffffffu) << p.x() << "," << p.y();
}

INSTANTIATE_TEST_SUITE_P(BothSheets, SheetTest,
                         ::testing::Values(SheetCase{"resource", resourceSheet},
                                           SheetCase{"file", fileSheet}),
                         [](const auto& sheet) { return std::string(sheet.param.label); });

TEST(SheetFiles, OnlyTheFileCarriesTheHitPointBall) {
    const QImage file = fileSheet().convertToFormat(QImage::Format_RGB32);
    const QImage resource = resourceSheet().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(resource.pixel(517, 322) & 0xffffff, 0xffffffu);
    const QColor ball(file.pixel(517, 322));
    EXPECT_GT(ball.lightness(), 150);
    EXPECT_NE(file.pixel(517, 322) & 0xffffff, 0xffffffu);
    EXPECT_NE(file.pixel(496, 301) & 0xffffff, 0xffffffu) << "grey corner";
}

} // namespace
