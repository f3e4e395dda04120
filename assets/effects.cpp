#include "effects.h"

#include "wav_writer.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace morvane::assets {

namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kAttack = 0.0006;      // seconds: takes the click out of a sudden start
constexpr double kTail = 0.004;         // seconds of fade at the end of every sound
constexpr double kLimiterReach = 0.005; // seconds over which the limiter's gain moves
constexpr int kMasteringPasses = 12;
constexpr double kHearingWindow = 0.1; // seconds the ear sums a sound's energy over

using Signal = std::vector<double>;

Signal silence(double seconds) {
    return Signal(static_cast<size_t>(seconds * kSampleRate), 0.0);
}

// A partial that starts at `start` and dies away with the time constant `decay`, its pitch
// sliding from `fromHz` to `toHz` with the time constant `glide`.
struct Partial {
    double start, fromHz, toHz, glide, amplitude, decay;
};

void addPartial(Signal& s, const Partial& p) {
    double phase = 0.0;
    for (size_t i = static_cast<size_t>(p.start * kSampleRate); i < s.size(); ++i) {
        const double t = static_cast<double>(i) / kSampleRate - p.start;
        const double hz = p.toHz + (p.fromHz - p.toHz) * std::exp(-t / p.glide);
        phase += 2.0 * kPi * hz / kSampleRate;
        const double attack = std::min(1.0, t / kAttack);
        s[i] += p.amplitude * attack * std::exp(-t / p.decay) * std::sin(phase);
    }
}

// Noise that dies away; `smoothing` 0 keeps it bright, near 1 leaves only its low end.
void addNoise(Signal& s, double start, double amplitude, double decay, double smoothing,
              std::mt19937& random) {
    std::uniform_real_distribution<double> white(-1.0, 1.0);
    double low = 0.0;
    const double gain = 1.0 / (1.0 - smoothing + 1e-9);
    for (size_t i = static_cast<size_t>(start * kSampleRate); i < s.size(); ++i) {
        const double t = static_cast<double>(i) / kSampleRate - start;
        low = smoothing * low + (1.0 - smoothing) * white(random);
        const double value = smoothing > 0 ? low * std::sqrt(gain) : white(random);
        s[i] += amplitude * std::exp(-t / decay) * value;
    }
}

// The energy of the loudest stretch the ear sums into one impression of loudness.
double loudnessOf(const Signal& s) {
    const auto window = static_cast<size_t>(kHearingWindow * kSampleRate);
    double sum = 0.0, loudest = 0.0;
    for (size_t i = 0; i < s.size(); ++i) {
        sum += s[i] * s[i];
        if (i >= window)
            sum -= s[i - window] * s[i - window];
        loudest = std::max(loudest, sum);
    }
    return loudest;
}

double peakOf(const Signal& s) {
    double top = 0.0;
    for (double v : s)
        top = std::max(top, std::abs(v));
    return top;
}

void scale(Signal& s, double factor) {
    for (double& v : s)
        v *= factor;
}

// Holds every sample within `ceiling` by turning the sound down where it would pass it. The
// gain is the lowest any sample within two reaches asks for, averaged over one reach: it never
// lets a sample through too loud, and it moves over milliseconds, not from sample to sample, so
// that it bends the envelope without distorting the wave.
void limit(Signal& s, double ceiling) {
    const auto reach = static_cast<std::ptrdiff_t>(kLimiterReach * kSampleRate);
    const auto size = static_cast<std::ptrdiff_t>(s.size());
    std::vector<double> wanted(s.size());
    for (std::ptrdiff_t i = 0; i < size; ++i)
        wanted[i] = std::min(1.0, ceiling / std::max(std::abs(s[i]), 1e-12));
    std::vector<double> lowest(s.size());
    for (std::ptrdiff_t i = 0; i < size; ++i) {
        const auto from = wanted.begin() + std::max<std::ptrdiff_t>(0, i - 2 * reach);
        const auto to = wanted.begin() + std::min(size, i + 2 * reach + 1);
        lowest[i] = *std::min_element(from, to);
    }
    for (std::ptrdiff_t i = 0; i < size; ++i) {
        const std::ptrdiff_t from = std::max<std::ptrdiff_t>(0, i - reach);
        const std::ptrdiff_t to = std::min(size, i + reach + 1);
        double sum = 0.0;
        for (std::ptrdiff_t j = from; j < to; ++j)
            sum += lowest[j];
        s[i] *= sum / static_cast<double>(to - from);
    }
}

// Masters the sound as loud as it sounds at `loudPeak` times the effects' level, its peak held
// under its ceiling, and fades its last milliseconds. The ear hears a short
// sound by its energy over a tenth of a second or so, so the limiter's losses are made up until
// the loudest such stretch holds the energy it held before.
Signal finished(Signal s, double loudPeak) {
    scale(s, loudPeak * kEffectLevel / peakOf(s));
    const double loudness = loudnessOf(s);
    const double ceiling = kEffectCeiling * std::sqrt(loudPeak / kLoudestNominalPeak);
    for (int pass = 0; pass < kMasteringPasses; ++pass) {
        limit(s, ceiling);
        scale(s, std::sqrt(loudness / loudnessOf(s)));
    }
    limit(s, ceiling);
    const size_t fade = static_cast<size_t>(kTail * kSampleRate);
    for (size_t i = s.size() > fade ? s.size() - fade : 0; i < s.size(); ++i)
        s[i] *= static_cast<double>(s.size() - i) / fade;
    return s;
}

Signal softClick() {
    return ballClick(0.3);
}
Signal mediumClick() {
    return ballClick(0.6);
}
Signal hardClick() {
    return ballClick(1.0);
}

} // namespace

Signal ballClick(double strength) {
    Signal s = silence(0.14);
    std::mt19937 random(1234);
    // Hard resin balls ring high and briefly; a harder hit brings out the upper partials.
    addPartial(s, {0.0, 3300, 3150, 0.01, 1.0, 0.0105});
    addPartial(s, {0.0, 4950, 4700, 0.01, 0.55, 0.0075});
    addPartial(s, {0.0, 7300, 7150, 0.01, 0.35 * strength, 0.005});
    addPartial(s, {0.0, 2100, 2050, 0.01, 0.3, 0.014});
    addNoise(s, 0.0, 0.8 * strength, 0.0012, 0.0, random);
    return finished(s, 0.2 + 0.7 * strength);
}

Signal pocketDrop() {
    Signal s = silence(0.8);
    std::mt19937 random(5678);
    // The knock on the jaw of the pocket.
    addPartial(s, {0.0, 1300, 1180, 0.02, 0.7, 0.016});
    addPartial(s, {0.0, 1900, 1850, 0.02, 0.35, 0.01});
    addNoise(s, 0.0, 0.5, 0.003, 0.3, random);
    // The ball rattling down, each knock lower and softer.
    const double rattle[] = {0.07, 0.12, 0.163, 0.198, 0.228, 0.252, 0.272};
    std::uniform_real_distribution<double> pitch(190.0, 330.0);
    double loudness = 0.55;
    for (double t : rattle) {
        addPartial(s, {t, pitch(random) * 1.1, pitch(random), 0.01, loudness, 0.022});
        addNoise(s, t, loudness * 0.5, 0.004, 0.8, random);
        loudness *= 0.8;
    }
    // The thud at the bottom.
    addPartial(s, {0.31, 95, 58, 0.05, 0.9, 0.11});
    addNoise(s, 0.31, 0.45, 0.03, 0.97, random);
    return finished(s, 0.85);
}

Signal cushionThump() {
    Signal s = silence(0.28);
    std::mt19937 random(9012);
    addPartial(s, {0.0, 170, 85, 0.03, 1.0, 0.05});
    addPartial(s, {0.0, 330, 240, 0.02, 0.3, 0.02});
    addNoise(s, 0.0, 0.7, 0.015, 0.93, random);
    return finished(s, 0.75);
}

const std::vector<Effect>& allEffects() {
    static const std::vector<Effect> effects = {{"vmin.wav", softClick},
                                                {"vmid.wav", mediumClick},
                                                {"vmax.wav", hardClick},
                                                {"drop.wav", pocketDrop},
                                                {"meetwall.wav", cushionThump}};
    return effects;
}

} // namespace morvane::assets
