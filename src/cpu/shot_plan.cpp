#include "cpu/shot_plan.h"

#include "cpu/road_tests.h"
#include "cpu/shot_geometry.h"
#include "game/table_queries.h"
#include "game/text.h"
#include "table/geometry.h"

namespace morvane {

ShotPlan startPlan(const GameState& g) {
    ShotPlan plan;
    plan.planX = g.aimX;
    plan.planY = g.aimY;
    return plan;
}

ShotScene sceneOf(const GameState& g) {
    ShotScene scene;
    scene.t = getLowestBall(g);
    scene.target = centreOf(g.Balls[scene.t]);
    scene.cue = centreOf(g.Balls[kCueBall]);
    return scene;
}

namespace {

// The cut is that of the cue ball's last leg, from legStart to the ghost point.
ShotCandidate candidateVia(const ShotScene& scene, const PointType& legStart,
                           const PointType& ghost, const PointType& pocket) {
    ShotCandidate candidate;
    candidate.run =
        float(double(getDistance(legStart, ghost)) + double(getDistance(scene.cue, legStart)));
    candidate.ballLength = getDistance(scene.target, pocket);
    candidate.cut = angleBetween(vectorFrom(legStart, ghost), vectorFrom(scene.target, pocket));
    return candidate;
}

} // namespace

ShotCandidate directCandidate(const ShotScene& scene, const PointType& ghost,
                              const PointType& pocket) {
    ShotCandidate candidate = candidateVia(scene, scene.cue, ghost, pocket);
    candidate.aim = ghost;
    return candidate;
}

ShotCandidate bankCandidate(const ShotScene& scene, const PointType& bank, const PointType& ghost,
                            const PointType& pocket) {
    ShotCandidate candidate = candidateVia(scene, bank, ghost, pocket);
    candidate.aim = bank;
    return candidate;
}

bool isGhostReachable(const GameState& g, const ShotScene& scene, const PointType& ghost) {
    return !isPathBlocked(g, scene.cue, ghost) &&
           !isSpotBlockedExcept(g, ghost.x, ghost.y, scene.t);
}

void takeCandidate(ShotPlan& plan, const ShotCandidate& candidate, Strategy strategy,
                   bool roadHoldsBall) {
    plan.found = true;
    plan.strategy = strategy;
    plan.roadHoldsBall = roadHoldsBall;
    plan.cueRun = candidate.run;
    plan.ballRun = candidate.ballLength;
    plan.cutAngle = candidate.cut;
    plan.planX = candidate.aim.x;
    plan.planY = candidate.aim.y;
}

void sayRemark(GameState& g, const Remark& remark) {
    g.controls.zephsMessage = chooseText(g, remark.japanese, remark.english);
}

} // namespace morvane
