#include "cpu/cpu_think.h"

#include "cpu/plan_remarks.h"
#include "cpu/shot_choice.h"
#include "game/controls.h"
#include "game/shot_input.h"
#include "game/table_queries.h"

namespace morvane {

namespace {

constexpr double kNineBallMissFactor = 2;

// The aim on the plan, or with the chance of this level up to a sixth of a ball off either way.
void aimWithChanceOfMiss(GameState& g, int16_t level, const ShotPlan& plan) {
    RandomPort& random = g.ports.randomSource();
    const double r = random.next();
    double miss = getMissChance(level);
    if (getLowestBall(g) == kNineBall)
        miss *= kNineBallMissFactor;
    if (miss > r) {
        const double u = random.next();
        const double v = random.next();
        g.aimX = float(plan.planX + (u - 0.5) * kMissSpread);
        g.aimY = float(plan.planY + (v - 0.5) * kMissSpread);
    } else {
        g.aimX = plan.planX;
        g.aimY = plan.planY;
    }
}

} // namespace

void cpuThink(GameState& g) {
    const int16_t level = g.zephLevel;
    const ShotPlan plan = choosePlan(g, level);
    sayRemark(g, remarkOf(plan));
    setPower(g, powerForPlan(level, plan));
    aimWithChanceOfMiss(g, level, plan);
    placeTarget(g);
}

} // namespace morvane
