// The pictures the forms carry, compiled into the program as Qt resources by the
// morvane_pictures library. Load them with QImage(name) or QPixmap(name).
//
// Every picture but the icon also comes in a set for each of the finer scales: "table@2x.png"
// holds the table sheet with 2 pixels a side for each of "table.png", "mv256@3x.bmp" the
// 256-colour sheet with 3. Sizes and places in the game stay those of the scale 1 pictures.
#pragma once

#include <string>
#include <string_view>

namespace morvane::pictures {

inline constexpr std::string_view kPrefix = ":/pictures/";

// The table sheet, 540 by 360, 24 bits: the table, ball sprites, mask, shadow, mode icons.
inline constexpr const char* kTable = ":/pictures/table.png";
// The hit point selector's ball, 45 by 45.
inline constexpr const char* kSetPoint = ":/pictures/setpoint.png";
// The menu screen, 540 by 365.
inline constexpr const char* kMenu = ":/pictures/menu.png";

// The hover pairs of the menu screen: index 0 at rest, index 1 lit.
inline constexpr const char* kSoloPlay[2] = {":/pictures/soloplay0.png",
                                             ":/pictures/soloplay1.png"};
inline constexpr const char* kVsCpu[2] = {":/pictures/vscpu0.png", ":/pictures/vscpu1.png"};
inline constexpr const char* kVsPlay[2] = {":/pictures/vsplay0.png", ":/pictures/vsplay1.png"};
inline constexpr const char* kRecord[2] = {":/pictures/record0.png", ":/pictures/record1.png"};
inline constexpr const char* kExit[2] = {":/pictures/exit0.png", ":/pictures/exit1.png"};
// The switches, 40 by 40: index 0 on, index 1 off (under a green cross).
inline constexpr const char* kBgm[2] = {":/pictures/bgm0.png", ":/pictures/bgm1.png"};
inline constexpr const char* kSound[2] = {":/pictures/sound0.png", ":/pictures/sound1.png"};
inline constexpr const char* kColor[2] = {":/pictures/color0.png", ":/pictures/color1.png"};

// The splash, 229 by 168.
inline constexpr const char* kOpening = ":/pictures/opening.png";
// zeph's face, 32 by 32, and its five blink frames side by side, 160 by 32.
inline constexpr const char* kZeph = ":/pictures/zeph.png";
inline constexpr const char* kZephFrames = ":/pictures/zephframes.png";
// The picture buttons of the small forms, 66 by 34.
inline constexpr const char* kOk = ":/pictures/ok.png";
inline constexpr const char* kCancel = ":/pictures/cancel.png";
// The window's icon, 256 by 256 with a transparent ground.
inline constexpr const char* kIcon = ":/pictures/icon.png";

struct PictureSize {
    const char* name;
    int width;
    int height;
};

// Every picture with its size in pixels.
inline constexpr PictureSize kAllPictures[] = {
    {kTable, 540, 360},      {kSetPoint, 45, 45},    {kMenu, 540, 365},     {kSoloPlay[0], 163, 41},
    {kSoloPlay[1], 163, 41}, {kVsCpu[0], 135, 41},   {kVsCpu[1], 135, 41},  {kVsPlay[0], 143, 41},
    {kVsPlay[1], 143, 41},   {kRecord[0], 126, 39},  {kRecord[1], 126, 39}, {kExit[0], 70, 39},
    {kExit[1], 70, 39},      {kBgm[0], 40, 40},      {kBgm[1], 40, 40},     {kSound[0], 40, 40},
    {kSound[1], 40, 40},     {kColor[0], 40, 40},    {kColor[1], 40, 40},   {kOpening, 229, 168},
    {kZeph, 32, 32},         {kZephFrames, 160, 32}, {kOk, 66, 34},         {kCancel, 66, 34},
    {kIcon, 256, 256}};

// The file name of a picture inside the resource folder, e.g. "table.png".
constexpr std::string_view fileName(std::string_view name) {
    return name.substr(kPrefix.size());
}

// The scales the pictures are drawn at.
inline constexpr int kScales[] = {1, 2, 3};
inline constexpr int kFinestScale = 3;

// The name of a picture or picture file in the set of a scale: "table.png" at 2 is
// "table@2x.png"; at 1 the name stays as it is.
inline std::string scaledName(std::string_view name, int scale) {
    std::string scaled(name);
    if (scale == 1)
        return scaled;
    const size_t dot = scaled.rfind('.');
    scaled.insert(dot == std::string::npos ? scaled.size() : dot,
                  "@" + std::to_string(scale) + "x");
    return scaled;
}

// The sizes of the program's icon in the desktop's icon theme, as files "morvane-SIZE.png".
inline constexpr int kIconSizes[] = {16, 24, 32, 48, 64, 128, 256};

} // namespace morvane::pictures
