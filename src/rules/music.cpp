#include "rules/music.h"

#include "game/table_queries.h"
#include "game/timers.h"
#include "game/version.h"

namespace morvane {

namespace {

constexpr int16_t kMenuScene = 0;
constexpr int16_t kNoScene = -1;
constexpr int16_t kMusicOn = -1;
constexpr int16_t kMusicOff = 0;

constexpr int32_t kTrackSeconds = 30;
constexpr const char* kComposer = "lirra";
// The tick counter starts again from 0 past an hour, so that it stays small.
constexpr double kTickWrapSeconds = 3600;
constexpr double kMsPerSecond = 1000;

struct TrackEntry {
    const char* title;
    const char* file;
};

// Menu, records, solo, against zeph, two players: the order of the scenes.
constexpr TrackEntry kTracks[kBgmTrackCount] = {
    {"Take to You", "menu.mid"},      {"To Your Holiday", "record.mid"},
    {"A Scent of Wind", "game1.mid"}, {"Sweet Dreams", "game2.mid"},
    {"For Good", "game3.mid"},
};

const BgmTrack& wantedTrack(const GameState& g) {
    return g.bgmTracks[static_cast<size_t>(g.bgmScene)];
}

// Seconds since the track was started, by the ticks counted.
double elapsedSeconds(const GameState& g) {
    return double(g.bgmTicks) * double(g.timers[kTimBGM].interval) / kMsPerSecond;
}

std::string musicCaption(const BgmTrack& track) {
    return versionCaption() + " by zeph --- BGM:\"" + track.title + "\" by " + track.composer;
}

void startAfresh(GameState& g) {
    startBgmTrack(g);
    g.bgmScenePrevious = g.bgmScene;
    g.bgmTicks = 0;
}

// The wanted track is the one playing: count the tick, and once its time is over close it and
// begin again, but only on a still table; while a ball rolls the music stays closed.
void carryOnPlaying(GameState& g) {
    if (elapsedSeconds(g) > wantedTrack(g).seconds) {
        closeAllTracks(g);
        if (isAllStopped(g))
            startAfresh(g);
    }
    ++g.bgmTicks;
}

} // namespace

void initBgmTable(GameState& g) {
    for (BgmTrack& track : g.bgmTracks)
        track.composer = kComposer;
    for (int i = 0; i < kBgmTrackCount; ++i) {
        g.bgmTracks[i].title = kTracks[i].title;
        g.bgmTracks[i].file = kTracks[i].file;
        g.bgmTracks[i].seconds = kTrackSeconds;
    }
    g.bgmScene = kMenuScene;
    g.bgmScenePrevious = kNoScene;
}

void sendMci(GameState& g, const std::string& command) {
    g.ports.sound->sendMusic(command);
}

void startBgmTrack(GameState& g) {
    const BgmTrack& track = wantedTrack(g);
    sendMci(g, "open " + track.file);
    sendMci(g, "play " + track.file);
    g.controls.windowCaption = musicCaption(track);
}

void timBGM_Timer(GameState& g) {
    if (g.bgmScene == kNoScene) {
        closeAllTracks(g);
    } else if (g.bgmScene != g.bgmScenePrevious) {
        if (g.bgmScenePrevious != kNoScene)
            closeAllTracks(g);
        startAfresh(g);
    } else {
        carryOnPlaying(g);
    }
    if (elapsedSeconds(g) > kTickWrapSeconds)
        g.bgmTicks = 0;
}

void closeAllTracks(GameState& g) {
    for (int i = 0; i < kBgmTrackCount; ++i)
        sendMci(g, "close " + g.bgmTracks[i].file);
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
