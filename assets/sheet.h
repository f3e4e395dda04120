// The table sheet: the table seen from above, the ball sprites, their mask and shadow, the
// mode icons of the information bar and the small balls of the record screens.
#pragma once

#include <QImage>
#include <vector>

namespace morvane::assets {

// Every picture is drawn at a scale of 1, 2 or 3: that many pixels a side for each pixel of the
// game's layout, for screens with that many device pixels to a pixel. Its devicePixelRatio says
// which, so that a painter on it works in the layout's pixels.

// The table alone, 540 by 300, as the menu also shows it in perspective.
QImage tablePicture(int scale);

// The whole sheet, 540 by 360. The 256-colour sheet also carries the hit point ball.
QImage tableSheet(bool withSetPointBall, int scale);

// The flat colours of the sheet that the table view relies on: cloth, shadow, spots.
std::vector<QRgb> sheetColours();

// The white ball lit from the top, on grey, 45 by 45: the hit point selector.
QImage setPointBall(int scale);

} // namespace morvane::assets
