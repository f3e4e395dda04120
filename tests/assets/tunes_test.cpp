// The five tunes parse as Standard MIDI Files and each plays a little over thirty seconds, every
// part with an instrument and the game tunes with drums.
#include "support/asset_files.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using namespace morvane::testing;

// What a tune's tracks hold; each tune keeps one tempo throughout.
struct Tune {
    bool wellFormed = false;
    size_t tracks = 0;
    uint32_t division = 0, tempo = 500000, lastTick = 0; // lastTick: of any note-off
    std::set<int> programmed, played;                    // channels

    double seconds() const { return double(lastTick) * tempo / 1e6 / division; }
};

uint32_t varLen(const std::vector<uint8_t>& b, size_t& at) {
    uint32_t v = 0;
    for (uint8_t byte = 0x80; byte & 0x80;) {
        byte = b.at(at++);
        v = (v << 7) | (byte & 0x7f);
    }
    return v;
}

// One track's events, each with its own status byte: false unless they end with the end of track
// exactly at the chunk's end.
bool readTrack(const std::vector<uint8_t>& b, size_t at, size_t end, Tune& t) {
    uint32_t tick = 0;
    while (at < end) {
        tick += varLen(b, at);
        const uint8_t st = b.at(at++);
        if (st == 0xff) {
            const uint8_t type = b.at(at++);
            const uint32_t len = varLen(b, at);
            if (type == 0x51)
                t.tempo = (b.at(at) << 16) | (b.at(at + 1) << 8) | b.at(at + 2);
            at += len;
            if (type == 0x2f)
                return at == end;
            continue;
        }
        const int kind = st & 0xf0, channel = st & 0x0f;
        if (kind == 0xc0)
            t.programmed.insert(channel);
        else if (kind == 0x90 && b.at(at + 1) > 0)
            t.played.insert(channel);
        else if (kind == 0x90 || kind == 0x80)
            t.lastTick = std::max(t.lastTick, tick);
        else if (kind != 0xb0)
            return false;
        at += kind == 0xc0 ? 1 : 2;
    }
    return false;
}

Tune readTune(const std::string& file) {
    const std::vector<uint8_t> b = readBytes(file);
    Tune t;
    if (b.size() < 14 || tag(b, 0, 4) != "MThd" || be32(b, 4) != 6 || be16(b, 8) > 1)
        return t;
    t.division = be16(b, 12);
    for (size_t at = 14; at < b.size(); ++t.tracks) {
        const size_t end = at + 8 + (at + 8 <= b.size() ? be32(b, at + 4) : 0);
        if (end > b.size() || tag(b, at, 4) != "MTrk" || !readTrack(b, at + 8, end, t))
            return t;
        at = end;
    }
    t.wellFormed = true;
    return t;
}

TEST(Tunes, EachIsAWellFormedMidiFileOfAboutHalfAMinuteWithAnInstrumentForEveryPart) {
    for (const char* file : {"menu.mid", "record.mid", "game1.mid", "game2.mid", "game3.mid"}) {
        SCOPED_TRACE(file);
        const Tune t = readTune(file);
        ASSERT_TRUE(t.wellFormed);
        EXPECT_GE(t.tracks, 4u);
        EXPECT_GE(t.seconds(), 32.0);
        EXPECT_LE(t.seconds(), 40.0);
        EXPECT_GE(t.played.size(), 3u);
        for (int channel : t.played)
            EXPECT_TRUE(channel == 9 || t.programmed.count(channel)) << "channel " << channel;
        EXPECT_TRUE(!std::string(file).starts_with("game") || t.played.count(9)) << "drums";
    }
}

} // namespace
