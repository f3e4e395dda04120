// A ball between the target and a pocket, seen as the second ball of a combination.
#pragma once

#include "cpu/cpu_constants.h"
#include "cpu/pocket_table.h"
#include "cpu/shot_plan.h"
#include "game/game_state.h"

#include <array>

namespace morvane {

// Some other ball lies on the road from the pocket (or its image) to the target ball.
bool isCombinationPocket(const GameState& g, const PointType& pocket);
// The ghost point for pocket entry p. With a ball k on the road from the pocket to the target
// (the lowest numbered of them), the target is sent onto k's own ghost point instead.
PointType ghostForPocket(const GameState& g, int p);

// Ghost points and combination flags by pocket table entry, as the strategies keep them.
using PocketGhosts = std::array<PointType, kLastImage + 1>;
using PocketFlags = std::array<bool, kLastImage + 1>;

// The plain ghost point of the target for entries first to last of a pocket table.
PocketGhosts plainGhosts(const PocketTable& pockets, const ShotScene& scene, int first, int last);

// The ghost points for the six pockets. With combinations, a ball before a pocket is worked in as
// the second ball, and isCombination learns which pockets those are; without, every ghost is
// plain.
PocketGhosts pocketGhosts(const GameState& g, bool withCombinations, PocketFlags& isCombination);

} // namespace morvane
