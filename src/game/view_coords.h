// Table units to pixels of the table view and back: a 30 pixel margin and 0.2 pixels a unit.
#pragma once

namespace morvane {

// Table view, in pixels.
constexpr float kTableScaleX = 480.0f / 2400.0f;
constexpr float kTableScaleY = 240.0f / 1200.0f;
constexpr float kBallPixels = 20;
constexpr float kViewMargin = 30;
constexpr float kAimPixelMinX = 40;
constexpr float kAimPixelMaxX = 500;
constexpr float kAimPixelMinY = 40;
constexpr float kAimPixelMaxY = 260;

float tableToPixelX(float x);
float tableToPixelY(float y);
float pixelToTableX(float px);
float pixelToTableY(float py);
// The aim point's limits in pixels, which are the cushion lines of a ball's centre.
float clampPixelX(float px);
float clampPixelY(float py);

} // namespace morvane

namespace morvane {

constexpr int kTwipsPerPixel = 15;

// A size in pixels as a font size in points.
float pixelsToPoints(int pixels);

} // namespace morvane
