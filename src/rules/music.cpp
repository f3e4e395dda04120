#include "rules/music.h"

#include "table/timers.h"

namespace morvane {

namespace {

constexpr int16_t kMenuScene = 0;
constexpr int16_t kNoScene = -1;
constexpr int16_t kMusicOn = -1;
constexpr int16_t kMusicOff = 0;

} // namespace

void closeAllTracks(GameState& g) {
    for (int i = 0; i < kBgmTrackCount; ++i)
        g.ports.sound->sendMusic("close " + g.bgmTracks[i].file);
}

void switchMusicOn(GameState& g) {
    g.bgmOn = kMusicOn;
    g.bgmScene = kMenuScene;
    g.bgmScenePrevious = kNoScene;
    setTimerEnabled(g, kTimBGM, true);
}

void switchMusicOff(GameState& g) {
    g.bgmOn = kMusicOff;
    g.bgmScenePrevious = g.bgmScene;
    g.bgmScene = kNoScene;
    setTimerEnabled(g, kTimBGM, false);
    closeAllTracks(g);
}

} // namespace morvane
