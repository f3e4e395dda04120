#include "game/break_run.h"

#include "game/contact_effects.h"
#include "game/sounds.h"
#include "table/contacts.h"
#include "table/motion.h"

namespace morvane {

namespace {

void scatterRack(GameState& g) {
    if (g.firstHitPending) {
        g.firstHitBall = 1;
        g.firstHitPending = false;
    }
    BallType& cue = g.Balls[kCueBall];
    cue.x = g.aimX;
    cue.y = g.aimY;
    const float v = cue.speed;
    breakRack(g.Balls, g.aimX, g.aimY, g.ports.randomSource());
    if (g.ports.contacts)
        g.ports.contacts->onContact(float(kFrameTime), kCueBall, 1, 0);
    playContactSound(g, v);
    g.ports.screen->drawTable();
    g.breakPending = false;
    // The scatter gets one free step before the motion engine takes over.
    for (int n = 0; n < kBallCount; ++n)
        moveBall(g.Balls[n], kFrameTime);
    g.ports.screen->drawTable();
    g.controls.poolEnabled = true;
}

} // namespace

void runBreakToRack(GameState& g) {
    moveBall(g.Balls[kCueBall], kFrameTime);
    if (g.Balls[kCueBall].x >= kBreakArrivalX)
        scatterRack(g);
}

void runShotTick(GameState& g) {
    if (g.breakPending)
        runBreakToRack(g);
    else
        playFrame(g);
}

} // namespace morvane
