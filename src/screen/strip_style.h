// The look of the power bar and of the Shot! button in the strip under the table: the felt of the
// table for the bar's trough, its wooden rail for the handle and the button, with dark brown lines.
// Only colours and borders: every position, size and caption stays the window's own.
#pragma once

#include <QColor>
#include <QString>

namespace morvane {

inline const QColor kFeltGreen(30, 96, 52);
inline const QColor kRailWood(214, 176, 112);
inline const QColor kRailWoodDim(120, 88, 50);
inline const QColor kDarkWood(58, 36, 16);
inline const QColor kCreamCaption(250, 240, 215);

QString powerBarStyle();
QString shotButtonStyle();

} // namespace morvane
