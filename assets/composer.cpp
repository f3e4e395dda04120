#include "composer.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <map>
#include <optional>
#include <sstream>

namespace morvane::assets {

namespace {

constexpr uint32_t kQuarter = kTicksPerQuarter;
constexpr uint32_t kEighth = kQuarter / 2;
constexpr uint32_t kSixteenth = kQuarter / 4;
constexpr uint32_t kBar = 4 * kQuarter;
constexpr int kEighthsPerBar = 8;
constexpr double kRingSeconds = 1.5; // the last chord rings this long after the last bar

constexpr int kMelodyChannel = 0;
constexpr int kChordChannel = 1;
constexpr int kBassChannel = 2;
constexpr int kPadChannel = 3;
constexpr int kDrumChannel = 9;

constexpr int kVolume = 7;
constexpr int kPan = 10;
constexpr int kReverb = 91;

// General MIDI drum keys.
constexpr int kKick = 36;
constexpr int kSideStick = 37;
constexpr int kSnare = 38;
constexpr int kClosedHat = 42;
constexpr int kOpenHat = 46;
constexpr int kLowTom = 45;
constexpr int kMidTom = 47;
constexpr int kHighTom = 50;
constexpr int kCrash = 49;
constexpr int kRide = 51;

struct Chord {
    int root; // pitch class
    std::vector<int> intervals;
};

struct Slot {
    uint32_t start;
    uint32_t length;
    Chord chord;
};

std::optional<int> pitchClass(const std::string& name, size_t& pos) {
    static const std::map<char, int> letters = {{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5},
                                                {'G', 7}, {'A', 9}, {'B', 11}};
    if (pos >= name.size() || !letters.count(name[pos]))
        return std::nullopt;
    int pc = letters.at(name[pos++]);
    if (pos < name.size() && name[pos] == '#')
        ++pc, ++pos;
    else if (pos < name.size() && name[pos] == 'b')
        --pc, ++pos;
    return (pc + 12) % 12;
}

std::optional<Chord> parseChord(const std::string& symbol) {
    static const std::map<std::string, std::vector<int>> qualities = {
        {"", {0, 4, 7}},          {"m", {0, 3, 7}},        {"7", {0, 4, 7, 10}},
        {"m7", {0, 3, 7, 10}},    {"maj7", {0, 4, 7, 11}}, {"sus4", {0, 5, 7}},
        {"m9", {0, 3, 7, 10, 14}}};
    size_t pos = 0;
    const auto root = pitchClass(symbol, pos);
    if (!root)
        return std::nullopt;
    const auto quality = qualities.find(symbol.substr(pos));
    if (quality == qualities.end())
        return std::nullopt;
    return Chord{*root, quality->second};
}

// "C#5" is 73: octave 4 starts at middle C, 60.
std::optional<int> parseNote(const std::string& name) {
    size_t pos = 0;
    const auto pc = pitchClass(name, pos);
    if (!pc || pos >= name.size() || !std::isdigit(static_cast<unsigned char>(name[pos])))
        return std::nullopt;
    return 12 * (name[pos] - '0' + 1) + *pc;
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> out;
    for (std::string w; in >> w;)
        out.push_back(w);
    return out;
}

bool fail(const Song& song, const std::string& what) {
    std::fprintf(stderr, "morvane-assets: %s: %s\n", song.title.c_str(), what.c_str());
    return false;
}

bool chordSlots(const Song& song, std::vector<Slot>& slots) {
    for (size_t bar = 0; bar < song.bars.size(); ++bar) {
        const auto symbols = words(song.bars[bar]);
        if (symbols.empty())
            return fail(song, "an empty bar");
        const uint32_t length = kBar / static_cast<uint32_t>(symbols.size());
        for (size_t i = 0; i < symbols.size(); ++i) {
            const auto chord = parseChord(symbols[i]);
            if (!chord)
                return fail(song, "unknown chord " + symbols[i]);
            slots.push_back({static_cast<uint32_t>(bar) * kBar + static_cast<uint32_t>(i) * length,
                             length, *chord});
        }
    }
    return true;
}

uint32_t ringTicks(const Song& song) {
    return static_cast<uint32_t>(std::lround(kRingSeconds * song.beatsPerMinute / 60.0 * kQuarter));
}

uint32_t songEnd(const Song& song) {
    return static_cast<uint32_t>(song.bars.size()) * kBar + ringTicks(song);
}

// Chord tones from G3 up, close together.
std::vector<int> voicing(const Chord& c) {
    std::vector<int> keys;
    for (int interval : c.intervals) {
        int key = 55 + ((c.root + interval - 55) % 12 + 12) % 12;
        keys.push_back(key);
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

// The root between E1 and G2.
int bassRoot(const Chord& c) {
    return 36 + c.root - (c.root > 7 ? 12 : 0);
}

void setUpChannel(MidiTrack& t, int channel, int program, int volume, int pan, int reverb) {
    if (program >= 0)
        t.program(0, channel, program);
    t.control(0, channel, kVolume, volume);
    t.control(0, channel, kPan, pan);
    t.control(0, channel, kReverb, reverb);
}

bool melodyTrack(const Song& song, MidiTrack& t) {
    setUpChannel(t, kMelodyChannel, song.melodyProgram, 100, 64, 50);
    uint32_t now = 0;
    const auto tokens = words(song.melody);
    for (size_t i = 0; i < tokens.size(); ++i) {
        const std::string& token = tokens[i];
        const size_t colon = token.find(':');
        if (colon == std::string::npos)
            return fail(song, "a note without its length: " + token);
        const auto length = static_cast<uint32_t>(std::stoi(token.substr(colon + 1)) * kEighth);
        const std::string name = token.substr(0, colon);
        const bool last = i + 1 == tokens.size();
        if (name != "r") {
            const auto key = parseNote(name);
            if (!key)
                return fail(song, "unknown note " + name);
            const uint32_t inBar = now % kBar;
            const int velocity = inBar == 0 ? 96 : inBar % kQuarter == 0 ? 84 : 74;
            const uint32_t sounding = last ? length + ringTicks(song) : length * 9 / 10;
            t.note(now, sounding, kMelodyChannel, *key, velocity);
        }
        now += length;
    }
    if (now != static_cast<uint32_t>(song.bars.size()) * kBar)
        return fail(song, "the melody has " + std::to_string(now / kEighth) + " eighths for " +
                              std::to_string(song.bars.size() * kEighthsPerBar));
    return true;
}

void chordTrack(const Song& song, const std::vector<Slot>& slots, MidiTrack& t) {
    setUpChannel(t, kChordChannel, song.chordProgram, 80, 44, 60);
    const uint32_t finalBar = static_cast<uint32_t>(song.bars.size() - 1) * kBar;
    for (const Slot& s : slots) {
        const std::vector<int> keys = voicing(s.chord);
        if (s.start >= finalBar) {
            for (int k : keys)
                t.note(s.start, songEnd(song) - s.start, kChordChannel, k, 60);
            continue;
        }
        switch (song.comping) {
        case Comping::Pad:
            for (int k : keys)
                t.note(s.start, s.length, kChordChannel, k, 52);
            break;
        case Comping::Arpeggio: {
            std::vector<int> up = keys;
            up.push_back(keys.front() + 12);
            for (uint32_t at = 0, i = 0; at < s.length; at += kEighth, ++i) {
                const size_t n = up.size();
                const size_t step = i % (2 * n - 2);
                const int key = up[step < n ? step : 2 * n - 2 - step];
                t.note(s.start + at, kEighth * 3 / 2, kChordChannel, key, i % 2 ? 50 : 60);
            }
            break;
        }
        case Comping::Stabs:
            for (uint32_t at = kEighth; at < s.length; at += kQuarter)
                for (int k : keys)
                    t.note(s.start + at, kSixteenth * 3 / 2, kChordChannel, k, 66);
            break;
        }
    }
}

void padTrack(const Song& song, const std::vector<Slot>& slots, MidiTrack& t) {
    setUpChannel(t, kPadChannel, song.padProgram, 64, 84, 80);
    const uint32_t finalBar = static_cast<uint32_t>(song.bars.size() - 1) * kBar;
    for (const Slot& s : slots) {
        const uint32_t length = s.start >= finalBar ? songEnd(song) - s.start : s.length;
        for (int k : voicing(s.chord))
            t.note(s.start, length, kPadChannel, k + 12, 44);
    }
}

void bassTrack(const Song& song, const std::vector<Slot>& slots, MidiTrack& t) {
    setUpChannel(t, kBassChannel, song.bassProgram, 100, 64, 20);
    const uint32_t finalBar = static_cast<uint32_t>(song.bars.size() - 1) * kBar;
    for (const Slot& s : slots) {
        const int root = bassRoot(s.chord);
        const int fifth = root + 7;
        if (s.start >= finalBar) {
            t.note(s.start, songEnd(song) - s.start, kBassChannel, root, 96);
            continue;
        }
        switch (song.bass) {
        case BassLine::RootFifth:
            t.note(s.start, std::min(s.length, kQuarter * 2) * 9 / 10, kBassChannel, root, 92);
            if (s.length > kQuarter * 2)
                t.note(s.start + 2 * kQuarter, kQuarter * 2 * 9 / 10, kBassChannel, fifth, 82);
            break;
        case BassLine::Quarters: {
            const int line[] = {root, fifth, root + 12, fifth};
            for (uint32_t at = 0, i = 0; at < s.length; at += kQuarter, ++i)
                t.note(s.start + at, kQuarter * 9 / 10, kBassChannel, line[i % 4], i ? 80 : 92);
            break;
        }
        case BassLine::Eighths:
            for (uint32_t at = 0; at < s.length; at += kEighth) {
                const bool lift = at + 2 * kEighth >= s.length && s.length >= kBar;
                t.note(s.start + at, kEighth * 8 / 10, kBassChannel, lift ? root + 12 : root,
                       at % kQuarter == 0 ? 92 : 76);
            }
            break;
        }
    }
}

void drumBar(const Song& song, MidiTrack& t, uint32_t bar, bool fill) {
    const uint32_t start = bar * kBar;
    auto hit = [&t](uint32_t at, int key, int velocity) {
        t.note(at, kSixteenth, kDrumChannel, key, velocity);
    };
    const uint32_t grooveEnd = fill ? 3 * kQuarter : kBar;
    for (uint32_t at = 0; at < grooveEnd; at += kEighth) {
        const bool onBeat = at % kQuarter == 0;
        const uint32_t beat = at / kQuarter;
        switch (song.drums) {
        case DrumKit::Brushes:
            if (onBeat)
                hit(start + at, kRide, 46);
            if (onBeat && beat % 2 == 1)
                hit(start + at, kSideStick, 44);
            if (at == 0)
                hit(start + at, kKick, 52);
            break;
        case DrumKit::Pop:
            hit(start + at, kClosedHat, onBeat ? 62 : 44);
            if (onBeat && beat % 2 == 0)
                hit(start + at, kKick, 86);
            if (onBeat && beat % 2 == 1)
                hit(start + at, kSnare, 80);
            break;
        case DrumKit::Drive:
            hit(start + at, at == kBar - kEighth ? kOpenHat : kClosedHat, onBeat ? 72 : 54);
            if (at == 0 || at == 3 * kEighth || at == 4 * kEighth)
                hit(start + at, kKick, 96);
            if (onBeat && beat % 2 == 1)
                hit(start + at, kSnare, 92);
            break;
        }
    }
    if (fill) {
        const int toms[] = {kHighTom, kHighTom, kMidTom, kLowTom};
        const int soft = song.drums == DrumKit::Brushes ? 20 : 0;
        for (uint32_t i = 0; i < 4; ++i)
            hit(start + 3 * kQuarter + i * kSixteenth,
                song.drums == DrumKit::Brushes ? kSnare : toms[i], 70 + 6 * int(i) - soft);
    }
}

void drumTrack(const Song& song, MidiTrack& t) {
    setUpChannel(t, kDrumChannel, -1, 90, 64, 40);
    const auto bars = static_cast<uint32_t>(song.bars.size());
    constexpr uint32_t kPhrase = 4;
    for (uint32_t bar = 0; bar + 1 < bars; ++bar)
        drumBar(song, t, bar, bar % kPhrase == kPhrase - 1 || bar + 2 == bars);
    t.note(0, kQuarter, kDrumChannel, kCrash, 70);
    const uint32_t last = (bars - 1) * kBar;
    t.note(last, kQuarter, kDrumChannel, kCrash, 90);
    t.note(last, kQuarter, kDrumChannel, kKick, 90);
}

} // namespace

std::vector<MidiTrack> arrange(const Song& song) {
    std::vector<Slot> slots;
    if (song.bars.empty() || !chordSlots(song, slots))
        return {};
    std::vector<MidiTrack> tracks;
    tracks.emplace_back(song.title);
    tracks.back().timeSignature(0, 4, 2);
    tracks.back().tempo(0, song.beatsPerMinute);
    tracks.emplace_back("Melody");
    if (!melodyTrack(song, tracks.back()))
        return {};
    tracks.emplace_back("Chords");
    chordTrack(song, slots, tracks.back());
    if (song.padProgram >= 0) {
        tracks.emplace_back("Pad");
        padTrack(song, slots, tracks.back());
    }
    tracks.emplace_back("Bass");
    bassTrack(song, slots, tracks.back());
    tracks.emplace_back("Drums");
    drumTrack(song, tracks.back());
    return tracks;
}

double songSeconds(const Song& song) {
    return songEnd(song) / static_cast<double>(kQuarter) * 60.0 / song.beatsPerMinute;
}

} // namespace morvane::assets
