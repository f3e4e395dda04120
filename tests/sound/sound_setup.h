// What the sound tests share: the folder of the generated files, a driver chosen for one test,
// and a bounded wait for the mixer's own thread.
#pragma once

#include "support/asset_files.h"
#include "support/temp_home.h"

#include <SDL.h>

namespace morvane::testing {

// The mixer works on its own thread; this waits for what it is to do, up to a generous limit,
// and says whether it came.
template <typename Done> bool waitForMixer(Done done, int limitMs = 20000) {
    for (int waited = 0; waited < limitMs; ++waited) {
        if (done())
            return true;
        SDL_Delay(1);
    }
    return done();
}

} // namespace morvane::testing
