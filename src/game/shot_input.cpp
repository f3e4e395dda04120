#include "game/shot_input.h"

#include "game/controls.h"
#include "game/text.h"
#include "table/geometry.h"

#include <cmath>

namespace morvane {

namespace {

constexpr double kSetPointHalf = kSetPointSize / 2.0;
constexpr double kDotHalf = kPointDotSize / 2.0;
constexpr double kLargestOffset = kSetPointHalf - kDotHalf; // 20 pixels
constexpr double kCentreClick = kPointDotSize / 3.0;        // a click this near is dead centre

// One tick's worth of swing: the phase is a Single, so it is rounded at every step.
float nextSwingPhase(float phase) {
    return float(phase + kSwingPhaseStep);
}

} // namespace

void setPower(GameState& g, int16_t value) {
    const int16_t clamped = maxOf(minOf(value, kPowerMax), kPowerMin);
    if (clamped == g.controls.power)
        return;
    g.controls.power = clamped;
    HScroll1_Change(g);
}

void HScroll1_Change(GameState& g) {
    g.controls.powerCaption = "POWER " + signedNumberText(g.controls.power) + "%";
}

void centrePointDot(GameState& g) {
    g.controls.pointLeft = float(kSetPointHalf - kDotHalf);
    g.controls.pointTop = float(kSetPointHalf - kDotHalf);
}

void picSetPoint_MouseDown(GameState& g, float x, float y) {
    const double dx = x - kSetPointHalf;
    const double dy = -(y - kSetPointHalf);
    const double r = std::sqrt(dx * dx + dy * dy);
    BallType& cue = g.Balls[kCueBall];
    if (r <= kCentreClick) {
        centrePointDot(g);
        cue.spinFollow = 0;
        cue.spinSide = 0;
        return;
    }
    // A click beyond the dot's circle counts as one on its rim; the strength goes with the square.
    const double a = getAngle(0, 0, float(dx), float(dy));
    const double offset = minOf(kLargestOffset, r);
    g.controls.pointLeft = float(offset * std::cos(a) - kDotHalf + kSetPointHalf);
    g.controls.pointTop = float(-offset * std::sin(a) - kDotHalf + kSetPointHalf);
    const double strength = (offset / kLargestOffset) * (offset / kLargestOffset);
    cue.spinSide = float(strength * std::cos(a));
    cue.spinFollow = float(strength * std::sin(a));
}

void Timer2_Timer(GameState& g) {
    g.swingPhase = nextSwingPhase(g.swingPhase);
    const double d = kSwingReach * std::sin(g.swingPhase);
    const double jitter = (g.ports.randomSource().next() - 0.5) * kSwingJitter;

    // The marker the player sees stands ten units nearer the head than the point the shot uses.
    g.aimX = float(kFootSpotX - kSwingRadius * std::cos(d) - kSwingMarkerOffset);
    g.aimY = float(kFootSpotY + kSwingRadius * std::sin(d));
    placeTarget(g);
    g.aimX = float(kFootSpotX - kSwingRadius * std::cos(d + jitter));
    g.aimY = float(kFootSpotY + kSwingRadius * std::sin(d + jitter));
}

void carrySwingOn(GameState& g, int64_t missedTicks) {
    for (int64_t tick = 0; tick < missedTicks; ++tick) {
        const float next = nextSwingPhase(g.swingPhase);
        if (next == g.swingPhase)
            return; // so large a phase no longer moves by a step
        g.swingPhase = next;
    }
}

} // namespace morvane
