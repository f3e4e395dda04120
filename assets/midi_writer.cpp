#include "midi_writer.h"

#include "byte_writer.h"

#include <algorithm>
#include <cmath>

namespace morvane::assets {

namespace {

constexpr int kOrderNoteOff = 0;
constexpr int kOrderSetting = 1;
constexpr int kOrderNoteOn = 2;
constexpr uint8_t kMeta = 0xff;
constexpr uint8_t kMetaTrackName = 0x03;
constexpr uint8_t kMetaTempo = 0x51;
constexpr uint8_t kMetaTimeSignature = 0x58;
constexpr uint8_t kMetaEndOfTrack = 0x2f;
constexpr double kMicrosecondsPerMinute = 60e6;

uint8_t low7(int v) {
    return static_cast<uint8_t>(std::clamp(v, 0, 127));
}
uint8_t status(int kind, int channel) {
    return static_cast<uint8_t>(kind | (channel & 0x0f));
}

void variableLength(ByteWriter& out, uint32_t value) {
    uint8_t groups[5];
    int n = 0;
    do {
        groups[n++] = static_cast<uint8_t>(value & 0x7f);
        value >>= 7;
    } while (value != 0);
    while (n > 1)
        out.byte(static_cast<uint8_t>(groups[--n] | 0x80));
    out.byte(groups[0]);
}

} // namespace

MidiTrack::MidiTrack(const std::string& name) {
    std::vector<uint8_t> meta = {kMeta, kMetaTrackName, static_cast<uint8_t>(name.size())};
    meta.insert(meta.end(), name.begin(), name.end());
    add(0, kOrderSetting, meta);
}

void MidiTrack::add(uint32_t tick, int order, std::vector<uint8_t> bytes) {
    events_.push_back({tick, order, std::move(bytes)});
}

void MidiTrack::tempo(uint32_t tick, double beatsPerMinute) {
    const auto micro = static_cast<uint32_t>(std::lround(kMicrosecondsPerMinute / beatsPerMinute));
    add(tick, kOrderSetting,
        {kMeta, kMetaTempo, 3, static_cast<uint8_t>(micro >> 16),
         static_cast<uint8_t>((micro >> 8) & 0xff), static_cast<uint8_t>(micro & 0xff)});
}

void MidiTrack::timeSignature(uint32_t tick, int beatsPerBar, int beatUnitPower) {
    add(tick, kOrderSetting,
        {kMeta, kMetaTimeSignature, 4, static_cast<uint8_t>(beatsPerBar),
         static_cast<uint8_t>(beatUnitPower), 24, 8});
}

void MidiTrack::program(uint32_t tick, int channel, int program) {
    add(tick, kOrderSetting, {status(0xc0, channel), low7(program)});
}

void MidiTrack::control(uint32_t tick, int channel, int controller, int value) {
    add(tick, kOrderSetting, {status(0xb0, channel), low7(controller), low7(value)});
}

void MidiTrack::note(uint32_t tick, uint32_t length, int channel, int key, int velocity) {
    add(tick, kOrderNoteOn, {status(0x90, channel), low7(key), low7(std::max(1, velocity))});
    add(tick + length, kOrderNoteOff, {status(0x80, channel), low7(key), 0});
}

std::vector<uint8_t> MidiTrack::chunk() const {
    std::vector<Event> sorted = events_;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Event& a, const Event& b) {
        return a.tick != b.tick ? a.tick < b.tick : a.order < b.order;
    });
    ByteWriter body;
    uint32_t now = 0;
    for (const Event& e : sorted) {
        variableLength(body, e.tick - now);
        now = e.tick;
        body.append(e.bytes);
    }
    variableLength(body, 0);
    body.append({kMeta, kMetaEndOfTrack, 0});
    ByteWriter out;
    out.text("MTrk");
    out.be32(static_cast<uint32_t>(body.size()));
    out.append(body.bytes());
    return out.bytes();
}

bool writeMidiFile(const std::vector<MidiTrack>& tracks, const std::string& path) {
    ByteWriter out;
    out.text("MThd");
    out.be32(6);
    out.be16(1); // format 1: tracks played together
    out.be16(static_cast<uint16_t>(tracks.size()));
    out.be16(kTicksPerQuarter);
    for (const MidiTrack& t : tracks)
        out.append(t.chunk());
    return out.save(path);
}

} // namespace morvane::assets
