#include "game/view_coords.h"

#include "table/constants.h"
#include "table/geometry.h"

#include <cstdint>

namespace morvane {

float tableToPixelX(float x) {
    return float(double(x) * kTableScaleX + kViewMargin);
}
float tableToPixelY(float y) {
    return float((double(kTableWidth) - y) * kTableScaleY + kViewMargin);
}
float pixelToTableX(float px) {
    return float((double(px) - kViewMargin) / kTableScaleX);
}
float pixelToTableY(float py) {
    return float(kTableWidth - (double(py) - kViewMargin) / kTableScaleY);
}
float clampPixelX(float px) {
    return maxOf(minOf(px, kAimPixelMaxX), kAimPixelMinX);
}
float clampPixelY(float py) {
    return maxOf(minOf(py, kAimPixelMaxY), kAimPixelMinY);
}

} // namespace morvane

namespace morvane {

float pixelsToPoints(int pixels) {
    return float(int16_t(pixels * kTwipsPerPixel) * 0.05);
}

} // namespace morvane
