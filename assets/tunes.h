// The five tunes of the game, one a scene, each a little over thirty seconds.
#pragma once

#include "composer.h"

#include <string>
#include <vector>

namespace morvane::assets {

struct Tune {
    const char* file;
    Song (*song)();
};

const std::vector<Tune>& allTunes();

bool writeTune(const Tune& tune, const std::string& path);

} // namespace morvane::assets
