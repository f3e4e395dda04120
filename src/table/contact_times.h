// When the next contact comes: the time until a ball reaches a cushion line or another ball.
#pragma once

#include "table/ball.h"

namespace morvane {

float timeToCushion(const BallType& b, int cushionId);
float timeToBall(const BallType& bi, const BallType& bj);

// The earliest contact of any moving ball. Only a strictly earlier time replaces the best, so
// ties go to the lowest moving ball, then a cushion before a ball, then the lower number.
struct NextContact {
    float time = kNoContactTime;
    int ball = kNoPartner;
    int partner = kNoPartner;

    void offer(float t, int i, int p) {
        if (t < time) {
            time = t;
            ball = i;
            partner = p;
        }
    }
};

// The earliest contact within timeLeft; when there is none, its time lies beyond timeLeft.
NextContact findNextContact(const BallArray& balls, float timeLeft);

} // namespace morvane
