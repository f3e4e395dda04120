#include "game/contact_effects.h"

#include "game/sounds.h"
#include "table/geometry.h"
#include "table/motion.h"
#include "table/pockets.h"

#include <cmath>

namespace morvane {

namespace {

bool isCushion(int partner) {
    return partner >= kCushionLeft && partner <= kCushionBottom;
}

// How fast the two balls part, heard as the click's loudness.
float partingSpeed(const BallType& bi, const BallType& bj) {
    const double dvx = double(bj.vx) - bi.vx;
    const double dvy = double(bj.vy) - bi.vy;
    return float(std::sqrt(dvx * dvx + dvy * dvy));
}

void answerPocket(GameState& g, int n, int pocket) {
    if (g.pocketedCount < kBallCount) // each ball falls at most once a shot
        g.pocketedThisShot[g.pocketedCount++] = int16_t(n);
    playPocketSound(g, kFullPower);
    g.ports.screen->drawBallDrop(n, pocket);
}

void answerCushion(GameState& g, int n) {
    g.ports.screen->drawBallNow(n);
    playCushionSound(g, g.Balls[n].speed);
}

void answerBall(GameState& g, int i, int j) {
    if (g.firstHitPending) {
        // Only the cue ball moves before the first contact: the higher number is the object ball.
        g.firstHitBall = int16_t(maxOf(i, j));
        g.firstHitPending = false;
    }
    playContactSound(g, partingSpeed(g.Balls[i], g.Balls[j]));
    g.ports.screen->drawBallNow(i);
    g.ports.screen->drawBallNow(j);
}

} // namespace

void ContactEffects::beforeSearch() {
    g_.ports.screen->yieldToPaint();
}

void ContactEffects::onContact(float timeInFrame, int ball, int partner, int pocket) {
    if (!isCushion(partner))
        answerBall(g_, ball, partner);
    else if (pocket != kNoPocket)
        answerPocket(g_, ball, pocket);
    else
        answerCushion(g_, ball);
    if (g_.ports.contacts)
        g_.ports.contacts->onContact(timeInFrame, ball, partner, pocket);
}

void playFrame(GameState& g) {
    ContactEffects effects(g);
    runFrame(g.Balls, effects);
}

} // namespace morvane
