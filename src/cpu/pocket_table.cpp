#include "cpu/pocket_table.h"

#include "cpu/cpu_constants.h"
#include "table/pockets.h"

namespace morvane {

void initPocketTable(GameState& g) {
    auto& p = g.pocketTable;
    p[kPocketTopLeft] = {kCushionLeftX, kCushionTopY};
    p[kPocketTopMiddle] = {kTableMiddleX, kCushionTopY};
    p[kPocketTopRight] = {kCushionRightX, kCushionTopY};
    p[kPocketBottomLeft] = {kCushionLeftX, kCushionBottomY};
    p[kPocketBottomMiddle] = {kTableMiddleX, kCushionBottomY};
    p[kPocketBottomRight] = {kCushionRightX, kCushionBottomY};
}

void mirrorPockets(PocketTable& p, int16_t cushion) {
    switch (cushion) {
    case kCushionLeft:
        p[7] = {float(double(kCushionLeftX) - p[kPocketTopRight].x), p[kPocketTopRight].y};
        p[8] = {float(double(kCushionLeftX) - p[kPocketBottomRight].x), p[kPocketBottomRight].y};
        p[9] = p[8];
        break;
    case kCushionRight:
        p[7] = {float(double(p[kPocketTopRight].x) + kCushionRightX), p[kPocketTopLeft].y};
        p[8] = {float(double(p[kPocketBottomRight].x) + kCushionRightX), p[kPocketBottomLeft].y};
        p[9] = p[8];
        break;
    case kCushionTop:
        p[7] = {p[kPocketBottomLeft].x, float(double(p[kPocketTopLeft].y) + kCushionTopY)};
        p[8] = {p[kPocketBottomMiddle].x, kImageTopY};
        p[9] = {p[kPocketBottomRight].x, kImageTopY};
        break;
    case kCushionBottom:
        p[7] = {p[kPocketTopLeft].x, float(double(kCushionBottomY) - p[kPocketTopLeft].y)};
        p[8] = {p[kPocketTopMiddle].x, kImageBottomY};
        p[9] = {p[kPocketTopRight].x, kImageBottomY};
        break;
    default:
        break;
    }
}

} // namespace morvane
