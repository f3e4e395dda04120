#include "table/contacts.h"

#include "table/geometry.h"

#include <cmath>

namespace morvane {

namespace {

// A velocity split along a line of centres (normal) and across it (tangent).
struct LineComponents {
    double normal;
    double tangent;
};

LineComponents splitAlong(const BallType& b, double c, double s) {
    return {b.vx * c + b.vy * s, -s * b.vx + c * b.vy};
}

void setVelocityFromLine(BallType& b, double c, double s, double normal, double tangent) {
    b.vx = float(c * normal - s * tangent);
    b.vy = float(s * normal + c * tangent);
}

// Follow or draw runs on along the ball's direction from before the contact.
void addFollow(BallType& b) {
    b.vx = float(b.vx + double(b.spinFollow) * std::cos(b.angle));
    b.vy = float(b.vy + double(b.spinFollow) * std::sin(b.angle));
}

// Speed and direction from the velocity that a contact has just set; the spin is used up.
void settleAfterContact(BallType& b) {
    b.speed = float(std::sqrt(double(b.vy) * b.vy + double(b.vx) * b.vx));
    b.angle = getAngle(0, 0, b.vx, b.vy);
    b.spinFollow = 0;
    b.spinSide = 0;
}

void setVelocityFromMotion(BallType& b, double followShift, double sideShift) {
    b.vx = float(std::cos(b.angle) * b.speed + followShift);
    b.vy = float(std::sin(b.angle) * b.speed + sideShift);
}

} // namespace

void collideBalls(BallType& bi, BallType& bj) {
    const double a = getAngle(bi.x, bi.y, bj.x, bj.y);
    const double c = std::cos(a);
    const double s = std::sin(a);

    // Equal masses: the components along the line change places, the others stay.
    const LineComponents li = splitAlong(bi, c, s);
    const LineComponents lj = splitAlong(bj, c, s);
    setVelocityFromLine(bi, c, s, lj.normal, li.tangent);
    setVelocityFromLine(bj, c, s, li.normal, lj.tangent);

    addFollow(bi);
    addFollow(bj);

    // Side spin throws both balls across the line of centres, in opposite senses.
    const double w = -(double(bi.spinSide) - bj.spinSide) / 2 * kSideThrow;
    bi.vx = float(bi.vx - w * s);
    bi.vy = float(bi.vy + w * c);
    bj.vx = float(bj.vx + w * s);
    bj.vy = float(bj.vy - w * c);

    settleAfterContact(bi);
    settleAfterContact(bj);
}

void breakRack(BallArray& balls, float aimX, float aimY, RandomPort& random) {
    BallType& cue = balls[kCueBall];
    const double v = cue.speed;
    const double q = 1 / std::sqrt(3.0);
    const double h = std::sqrt(3.0) / 2;
    const double theta = getAngle(aimX, aimY, balls[1].x, balls[1].y) + kBreakThetaOffset;
    const double e = kBreakSpreadPerTheta * theta +
                     (random.next() - 0.5) * kBreakSpreadPi * kBreakSpreadDegrees / 180;

    // The cue ball goes off sideways, keeping half its draw and an eighth of its side spin.
    cue.speed = float(std::fabs(v * std::sin(theta)));
    balls[1].speed = float(kBreakSlowShare * cue.speed);
    balls[1].angle = 0;
    const double sideways = theta >= 0 ? theta - kPi / 2 : theta + kPi / 2;
    cue.angle = float(sideways + e * random.next());
    setVelocityFromMotion(cue, minOf(double(cue.spinFollow), 0.0) * kBreakDrawShare,
                          -double(cue.spinSide) / kBreakSideDivisor);
    cue.speed = float(std::sqrt(double(cue.vy) * cue.vy + double(cue.vx) * cue.vx));
    cue.spinSide = 0;
    cue.spinFollow = 0;
    cue.x = aimX;
    cue.y = aimY;

    // The two sides of the rack share the cue ball's push by the angle of the hit.
    const double u = kBreakRackShare * v;
    const double c = std::cos(theta);
    const double s = std::sin(theta);
    const double p = u * c * q + u * s;
    const double qShare = u * c * q - u * s;

    struct Fan {
        int ball;
        double speed;
        double angle;
    };
    const Fan fan[] = {
        {2, qShare * h, 18.0 / 11 * kPi},
        {3, u, theta / 3},
        {4, p * h, 4.0 / 11 * kPi},
        {5, p * h * kBreakRowTwoShare, 2.0 / 3 * kPi},
        {6, qShare * h * kBreakRowTwoShare, 4.0 / 3 * kPi},
        {7, qShare * h, 20.0 / 11 * kPi},
        {8, p * h, 2.0 / 11 * kPi},
    };
    for (const Fan& f : fan) {
        balls[f.ball].speed = float(f.speed);
        balls[f.ball].angle = float(f.angle + e * random.next());
    }
    balls[kNineBall].speed = float(kBreakSlowShare * u);
    balls[kNineBall].angle = float(-(e * random.next()));

    for (int n = 1; n < kBallCount; ++n) {
        BallType& b = balls[n];
        setVelocityFromMotion(b, minOf(double(b.spinFollow), 0.0),
                              double(b.spinSide) / kBreakObjectSideDivisor);
    }
}

} // namespace morvane
