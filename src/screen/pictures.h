// The pictures of the window, drawn by the assets generator and compiled in as resources. Each
// comes in a set for scales 1, 2 and 3; the window takes the set of its screen's device pixel
// ratio, a fractional ratio the next set up, which the painters then smooth down to the screen.
#pragma once

#include <QImage>

namespace morvane {

// The set for a device pixel ratio: 1.0 takes 1, 1.25 and 2.0 take 2, anything above 2 takes 3.
int pictureScaleFor(double devicePixelRatio);
// The sets of scale 2 and 3 lie beside the program in files of their own, pictures@2x.rcc and
// pictures@3x.rcc, read on first use. False, with a message, if the file can't be read.
bool loadPictureSet(int scale);
// The set for the screens of this run: the highest ratio among them; the set of scale 1 if the
// finer one can't be read.
int pictureScale();

// A picture of the resources (a name of picture_names.h) in the set of a scale, with that scale
// as its devicePixelRatio, so that it keeps its size in the layout.
QImage scaledPicture(const char* name, int scale = pictureScale());

// A picture file the game looks for in the current directory and then beside itself, in the set
// of the inner picture's scale. The inner picture stands in for a file that can't be read or
// doesn't have the inner picture's size.
QImage pictureFileOr(const char* fileName, const QImage& inner);

QImage tablePicture();   // picTable: the table and every sprite, 540 by 360
QImage cueBallPicture(); // picSetPoint: the cue ball seen from the front, 45 by 45
QImage okPicture();      // picOK of the small forms, 66 by 34
QImage windowIcon();

} // namespace morvane
