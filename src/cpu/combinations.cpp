#include "cpu/combinations.h"

#include "cpu/road_tests.h"
#include "cpu/shot_geometry.h"

namespace morvane {

bool isCombinationPocket(const GameState& g, const PointType& pocket) {
    const ShotScene scene = sceneOf(g);
    return isPathBlockedExcept(g, pocket, scene.target, scene.t);
}

PointType ghostForPocket(const GameState& g, int p) {
    const ShotScene scene = sceneOf(g);
    const PointType& pocket = g.pocketTable[p];
    const int16_t k = findBlockingBall(g, pocket, scene.target, scene.t);
    if (k == 0)
        return ghostPoint(scene.target, pocket);
    const PointType second = ghostPoint(centreOf(g.Balls[k]), pocket);
    return ghostPoint(scene.target, second);
}

PocketGhosts plainGhosts(const PocketTable& pockets, const ShotScene& scene, int first, int last) {
    PocketGhosts ghost{};
    for (int p = first; p <= last; ++p)
        ghost[p] = ghostPoint(scene.target, pockets[p]);
    return ghost;
}

PocketGhosts pocketGhosts(const GameState& g, bool withCombinations, PocketFlags& isCombination) {
    if (!withCombinations)
        return plainGhosts(g.pocketTable, sceneOf(g), kFirstPocket, kLastPocket);
    PocketGhosts ghost{};
    for (int p = kFirstPocket; p <= kLastPocket; ++p) {
        isCombination[p] = isCombinationPocket(g, g.pocketTable[p]);
        ghost[p] = ghostForPocket(g, p);
    }
    return ghost;
}

} // namespace morvane
