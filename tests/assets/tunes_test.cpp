// The five tunes parse as Standard MIDI Files and each plays a little over thirty seconds.
#include "support/asset_files.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

using namespace morvane::testing;

struct Parsed {
    uint32_t format = 0, division = 0;
    size_t declaredTracks = 0, tracks = 0;
    std::map<uint32_t, uint32_t> tempos; // tick -> microseconds a quarter
    uint32_t lastTick = 0;               // of any note-off
    std::set<int> channelsWithProgram;
    std::set<int> channelsWithNotes;
    int unbalancedNotes = 0;
    bool wellFormed = true;
};

uint32_t variableLength(const std::vector<uint8_t>& b, size_t& at) {
    uint32_t v = 0;
    for (int i = 0; i < 4; ++i) {
        const uint8_t byte = b.at(at++);
        v = (v << 7) | (byte & 0x7f);
        if (!(byte & 0x80))
            return v;
    }
    return v;
}

// Reads one track chunk's events; false if they don't end exactly with the end of track.
bool parseTrack(const std::vector<uint8_t>& b, size_t at, size_t end, Parsed& p) {
    uint32_t tick = 0;
    uint8_t running = 0;
    std::map<std::pair<int, int>, int> open;
    while (at < end) {
        tick += variableLength(b, at);
        uint8_t st = b.at(at);
        if (st & 0x80)
            ++at;
        else
            st = running;
        if (st == 0xff) {
            const uint8_t type = b.at(at++);
            const uint32_t len = variableLength(b, at);
            if (type == 0x51)
                p.tempos[tick] = (b.at(at) << 16) | (b.at(at + 1) << 8) | b.at(at + 2);
            at += len;
            if (type == 0x2f) {
                for (const auto& [key, n] : open)
                    p.unbalancedNotes += n;
                return at == end;
            }
            continue;
        }
        running = st;
        const int kind = st & 0xf0, channel = st & 0x0f;
        if (kind == 0xc0) {
            p.channelsWithProgram.insert(channel);
            at += 1;
        } else if (kind == 0x90 || kind == 0x80) {
            const int key = b.at(at), velocity = b.at(at + 1);
            at += 2;
            if (kind == 0x90 && velocity > 0) {
                ++open[{channel, key}];
                p.channelsWithNotes.insert(channel);
            } else {
                --open[{channel, key}];
                p.lastTick = std::max(p.lastTick, tick);
            }
        } else if (kind == 0xb0 || kind == 0xe0 || kind == 0xa0) {
            at += 2;
        } else {
            return false;
        }
    }
    return false;
}

Parsed parseMidi(const std::string& file) {
    const std::vector<uint8_t> b = readBytes(file);
    Parsed p;
    if (b.size() < 14 || tag(b, 0, 4) != "MThd" || be32(b, 4) != 6) {
        p.wellFormed = false;
        return p;
    }
    p.format = be16(b, 8);
    p.declaredTracks = be16(b, 10);
    p.division = be16(b, 12);
    size_t at = 14;
    while (at < b.size()) {
        if (at + 8 > b.size() || tag(b, at, 4) != "MTrk") {
            p.wellFormed = false;
            return p;
        }
        const size_t end = at + 8 + be32(b, at + 4);
        if (end > b.size() || !parseTrack(b, at + 8, end, p)) {
            p.wellFormed = false;
            return p;
        }
        ++p.tracks;
        at = end;
    }
    return p;
}

double secondsAt(const Parsed& p, uint32_t tick) {
    double seconds = 0;
    uint32_t from = 0, tempo = 500000; // the default: 120 beats a minute
    for (const auto& [at, t] : p.tempos) {
        if (at >= tick)
            break;
        seconds += double(at - from) * tempo / 1e6 / p.division;
        from = at;
        tempo = t;
    }
    return seconds + double(tick - from) * tempo / 1e6 / p.division;
}

TEST(Tunes, EachTuneIsAWellFormedMidiFileOfAboutHalfAMinute) {
    for (const char* file : {"menu.mid", "record.mid", "game1.mid", "game2.mid", "game3.mid"}) {
        const Parsed p = parseMidi(file);
        ASSERT_TRUE(p.wellFormed) << file;
        EXPECT_LE(p.format, 1u) << file;
        EXPECT_EQ(p.tracks, p.declaredTracks) << file;
        EXPECT_GE(p.tracks, 4u) << file;
        EXPECT_EQ(p.unbalancedNotes, 0) << file;
        const double seconds = secondsAt(p, p.lastTick);
        EXPECT_GE(seconds, 32.0) << file;
        EXPECT_LE(seconds, 40.0) << file;
    }
}

TEST(Tunes, EveryPartHasAnInstrumentAndTheGameTunesHaveDrums) {
    for (const char* file : {"menu.mid", "record.mid", "game1.mid", "game2.mid", "game3.mid"}) {
        const Parsed p = parseMidi(file);
        for (int channel : p.channelsWithNotes) {
            if (channel != 9) {
                EXPECT_TRUE(p.channelsWithProgram.count(channel)) << file << " channel " << channel;
            }
        }
        EXPECT_GE(p.channelsWithNotes.size(), 3u) << file;
    }
    for (const char* file : {"game1.mid", "game2.mid", "game3.mid"})
        EXPECT_TRUE(parseMidi(file).channelsWithNotes.count(9)) << file;
}

} // namespace
