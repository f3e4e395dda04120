// A ball between the target and a pocket, seen as the second ball of a combination.
#pragma once

#include "cpu/cpu_constants.h"
#include "cpu/shot_plan.h"
#include "game/game_state.h"

#include <array>

namespace morvane {

// Some other ball lies on the road from pocket entry p to the target ball.
bool isCombinationPocket(const GameState& g, int p);
// The ghost point for pocket entry p. With a ball k on the road from the pocket to the target
// (the lowest numbered of them), the target is sent onto k's own ghost point instead.
PointType ghostForPocket(const GameState& g, int p);

// Ghost points and combination flags by pocket table entry, as the strategies keep them.
using PocketGhosts = std::array<PointType, kLastImage + 1>;
using PocketFlags = std::array<bool, kLastImage + 1>;

// The plain ghost point of the target for entries first to last.
PocketGhosts plainGhosts(const GameState& g, const ShotScene& scene, int first, int last);

// What zeph says of a shot at a pocket: one remark for a combination, another for a plain pot.
struct PocketRemarks {
    PocketFlags isCombination{};
    Remark combination;
    Remark plain;

    const Remark& forPocket(int p) const { return isCombination[p] ? combination : plain; }
};

// The ghost points for the six pockets. With combinations, a ball before a pocket is worked in as
// the second ball, and the remarks learn which pockets those are; without, every ghost is plain.
PocketGhosts pocketGhosts(const GameState& g, bool withCombinations, PocketRemarks& remarks);

} // namespace morvane
