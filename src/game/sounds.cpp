#include "game/sounds.h"

namespace morvane {

namespace {

// Speeds as a share of full power, compared as floats.
constexpr float kSoftClickTop = 0.3f;
constexpr float kMediumClickTop = 0.6f;
constexpr float kHardClickTop = 5.0f;
constexpr float kQuietestDropOrCushion = 0.01f;
constexpr float kLoudestDrop = 1.0f;
constexpr float kLoudestCushion = 10.0f;

float shareOfFullPower(float speed) {
    return float(double(speed) / kFullPower);
}

const char* clickFor(float v) {
    if (v >= 0 && v <= kSoftClickTop)
        return kSoundSoftClick;
    if (v > kSoftClickTop && v <= kMediumClickTop)
        return kSoundMediumClick;
    if (v > kMediumClickTop && v <= kHardClickTop)
        return kSoundHardClick;
    return nullptr;
}

} // namespace

void playContactSound(GameState& g, float speed) {
    if (g.soundOn == 0)
        return;
    // On the break a click lets the one before it finish; later the newest always sounds.
    const int flags = g.shotCount > 1 ? kSoundCutOff : kSoundNoStop;
    if (const char* file = clickFor(shareOfFullPower(speed)))
        g.ports.sound->playEffect(file, flags);
}

void playPocketSound(GameState& g, float speed) {
    const float v = shareOfFullPower(speed);
    if (g.soundOn != 0 && v >= kQuietestDropOrCushion && v <= kLoudestDrop)
        g.ports.sound->playEffect(kSoundDrop, kSoundCutOff);
}

void playCushionSound(GameState& g, float speed) {
    const float v = shareOfFullPower(speed);
    if (g.soundOn != 0 && v >= kQuietestDropOrCushion && v <= kLoudestCushion)
        g.ports.sound->playEffect(kSoundCushion, kSoundCutOff);
}

} // namespace morvane
