// The menu screen: its background picture, the five word pictures and the three switches.
#pragma once

#include <QImage>

namespace morvane::assets {

// Black, the title at the top left, a green table with balls seen in perspective. The table
// picture should be of the same scale or finer.
QImage menuPicture(const QImage& tableFromAbove, int scale);

enum class MenuWord { SoloPlay, VsCpu, VsPlay, Record, Exit };
enum class MenuSwitch { Bgm, Sound, Color };

// A word picture at rest (dim) or lit.
QImage menuWordPicture(MenuWord word, bool lit, int scale);

// A switch picture, on, or off under a green cross.
QImage menuSwitchPicture(MenuSwitch which, bool off, int scale);

} // namespace morvane::assets
