#include "cpu/bank_geometry.h"

#include "cpu/road_tests.h"

#include <cmath>

namespace morvane {

namespace {

bool isSideCushion(int16_t cushion) {
    return cushion == kCushionLeft || cushion == kCushionRight;
}

// Distance of a point from the cushion line, counted positive on the table's side.
double distanceFromCushion(const PointType& p, int16_t cushion) {
    switch (cushion) {
    case kCushionLeft:
        return double(p.x) - kCushionLeftX;
    case kCushionRight:
        return double(kCushionRightX) - p.x;
    case kCushionTop:
        return double(kCushionTopY) - p.y;
    default:
        return double(p.y) - kCushionBottomY;
    }
}

float cushionLine(int16_t cushion) {
    switch (cushion) {
    case kCushionLeft:
        return kCushionLeftX;
    case kCushionRight:
        return kCushionRightX;
    case kCushionTop:
        return kCushionTopY;
    default:
        return kCushionBottomY;
    }
}

// The far point's distance is taken as a whole number, a half going to the even one.
int16_t wholeDistance(double distance) {
    return int16_t(std::nearbyint(distance));
}

} // namespace

BankPoint findBankPoint(const GameState& g, const PointType& from, const PointType& to,
                        int16_t cushion, int16_t except) {
    BankPoint bank;
    const float a = float(distanceFromCushion(from, cushion));
    const int16_t b = wholeDistance(distanceFromCushion(to, cushion));
    const double sum = double(a) + b;
    if (sum == 0) {
        bank.point = from;
        bank.blocked = true;
        return bank;
    }
    if (isSideCushion(cushion)) {
        bank.point = {cushionLine(cushion), float((double(from.y) * b + double(to.y) * a) / sum)};
    } else {
        bank.point = {float((double(from.x) * b + double(to.x) * a) / sum), cushionLine(cushion)};
    }
    bank.blocked =
        isPathBlocked(g, from, bank.point) || isPathBlockedExcept(g, bank.point, to, except);
    return bank;
}

} // namespace morvane
