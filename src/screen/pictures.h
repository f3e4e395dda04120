// The pictures of the window, drawn by the assets generator and compiled in as resources.
#pragma once

#include <QImage>

namespace morvane {

QImage tablePicture();   // picTable: the table and every sprite, 540 by 360
QImage cueBallPicture(); // picSetPoint: the cue ball seen from the front, 45 by 45
QImage okPicture();      // picOK of the small forms, 66 by 34
QImage windowIcon();

} // namespace morvane
