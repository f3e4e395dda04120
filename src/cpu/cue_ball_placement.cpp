#include "cpu/cue_ball_placement.h"

#include "cpu/cpu_constants.h"
#include "cpu/shot_geometry.h"
#include "cpu/shot_plan.h"
#include "game/controls.h"
#include "game/table_queries.h"
#include "game/view_coords.h"

#include <cmath>

namespace morvane {

namespace {

constexpr Remark kMyTurn{"動かさなきゃ", "My turn."};

// Two balls behind the target on the line from the pocket: one gap behind the ghost point.
PointType spotBehindTarget(const PointType& target, const PointType& pocket) {
    const double a = double(getAngle(target, pocket)) + kPi;
    return {float(target.x + std::cos(a) * kPlacementGap),
            float(target.y + std::sin(a) * kPlacementGap)};
}

// The free spot on the table behind the target for the pocket nearest to it; the cue ball's own
// spot when there is none.
PointType straightShotSpot(const GameState& g, const ShotScene& scene) {
    PointType spot = scene.cue;
    float nearest = kNoShotRun;
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        const PointType& pocket = g.pocketTable[p];
        const float d = getDistance(scene.target, pocket);
        const PointType candidate = spotBehindTarget(scene.target, pocket);
        if (isOnTable(candidate.x, candidate.y) && !isSpotBlocked(g, candidate.x, candidate.y) &&
            d < nearest) {
            nearest = d;
            spot = candidate;
        }
    }
    return spot;
}

} // namespace

void placeCueBall(GameState& g) {
    const ShotScene scene = sceneOf(g);
    PointType spot = scene.cue;
    if (g.ballInHand) {
        sayRemark(g, kMyTurn);
        spot = straightShotSpot(g, scene);
    }
    g.Balls[kCueBall].x = spot.x;
    g.Balls[kCueBall].y = spot.y;
    g.aimX = scene.target.x;
    g.aimY = scene.target.y;
    g.controls.qBall.visible = false;
    g.ports.screen->drawTable();
    g.ports.screen->refreshPool();
    moveAimTo(g, tableToPixelX(g.aimX), tableToPixelY(g.aimY));
}

} // namespace morvane
