// The pictures of the small forms: the splash, zeph's face and its blink, the OK and Cancel
// buttons, and the program's icon. Each is drawn at a scale of 1, 2 or 3, as sheet.h tells.
#pragma once

#include <QImage>

namespace morvane::assets {

inline constexpr int kZephFrameCount = 5;

// The title on a dark ground, a large ball in the middle, the credits at the foot.
QImage openingPicture(int scale);

// zeph's face, eyes open at frame 0 and shut at the last frame.
QImage zephFace(int frame, int scale);

// The five frames side by side.
QImage zephFrames(int scale);

QImage buttonPicture(const QString& caption, int scale);

// A nine ball on a transparent ground.
QImage iconPicture(int size);

} // namespace morvane::assets
