#include "cpu/pocket_table.h"

#include "cpu/cpu_constants.h"

namespace morvane {

void initPocketTable(GameState& g) {
    auto& p = g.pocketTable;
    p[1] = {kCushionLeftX, kCushionTopY};
    p[2] = {kTableMiddleX, kCushionTopY};
    p[3] = {kCushionRightX, kCushionTopY};
    p[4] = {kCushionLeftX, kCushionBottomY};
    p[5] = {kTableMiddleX, kCushionBottomY};
    p[6] = {kCushionRightX, kCushionBottomY};
}

void mirrorPockets(PocketTable& p, int16_t cushion) {
    switch (cushion) {
    case kCushionLeft:
        p[7] = {float(double(kCushionLeftX) - p[3].x), p[3].y};
        p[8] = {float(double(kCushionLeftX) - p[6].x), p[6].y};
        p[9] = p[8];
        break;
    case kCushionRight:
        p[7] = {float(double(p[3].x) + kCushionRightX), p[1].y};
        p[8] = {float(double(p[6].x) + kCushionRightX), p[4].y};
        p[9] = p[8];
        break;
    case kCushionTop:
        p[7] = {p[4].x, float(double(p[1].y) + kCushionTopY)};
        p[8] = {p[5].x, kImageTopY};
        p[9] = {p[6].x, kImageTopY};
        break;
    case kCushionBottom:
        p[7] = {p[1].x, float(double(kCushionBottomY) - p[1].y)};
        p[8] = {p[2].x, kImageBottomY};
        p[9] = {p[3].x, kImageBottomY};
        break;
    default:
        break;
    }
}

} // namespace morvane
