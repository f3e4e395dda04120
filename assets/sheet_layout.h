// Where everything lies on the table sheet: the table from above and, under it, the sprites.
#pragma once

#include <QColor>
#include <QPoint>

namespace morvane::assets {

inline constexpr int kSheetWidth = 540;
inline constexpr int kSheetHeight = 360;
inline constexpr int kTableHeight = 300;
inline constexpr int kPlayLeft = 30;
inline constexpr int kPlayTop = 30;
inline constexpr int kPlayRight = 510;
inline constexpr int kPlayBottom = 270;

inline constexpr int kCellSize = 20;
inline constexpr int kRestRow = 300;
inline constexpr int kRollingRow = 320;
inline constexpr int kMaskColumn = 200; // the mask beside the balls at rest, the shadow below it
inline constexpr int kIconTop = 301;
inline constexpr int kIconSize = 25;
inline constexpr int kSoloIconLeft = 220;
inline constexpr int kVersusCpuIconLeft = 245;
inline constexpr int kVersusIconLeft = 270;
inline constexpr int kSmallBallSize = 10;
inline constexpr int kSmallPlainRow = 340;
inline constexpr int kSmallNumberedRow = 350;
inline constexpr int kSetPointSize = 45;
inline constexpr QPoint kSetPointCorner{495, 300}; // only in the 256-colour sheet

inline constexpr QColor kClothColour{0, 112, 0};
inline constexpr QColor kShadowColour{0, 80, 0};
inline constexpr QColor kSpotColour{168, 168, 168};
inline constexpr QPoint kSpots[] = {{150, 150}, {270, 150}, {390, 150}};

// The centres of the six pocket holes: the corners and the middles of the long sides.
inline constexpr QPoint kPocketCentres[] = {{27, 27},  {270, 25},  {513, 27},
                                            {27, 273}, {270, 275}, {513, 273}};
inline constexpr int kCornerPocketRadius = 16;
inline constexpr int kMiddlePocketRadius = 14;

} // namespace morvane::assets
