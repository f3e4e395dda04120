// Standard MIDI Files, format 1: one track of tempo and metre, then one track a part.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace morvane::assets {

inline constexpr uint16_t kTicksPerQuarter = 480;

class MidiTrack {
  public:
    explicit MidiTrack(const std::string& name);
    void tempo(uint32_t tick, double beatsPerMinute);
    void timeSignature(uint32_t tick, int beatsPerBar, int beatUnitPower);
    void program(uint32_t tick, int channel, int program);
    void control(uint32_t tick, int channel, int controller, int value);
    void note(uint32_t tick, uint32_t length, int channel, int key, int velocity);
    // The "MTrk" chunk: events in time order with their delta times, and the end of track.
    std::vector<uint8_t> chunk() const;

  private:
    struct Event {
        uint32_t tick;
        int order; // at one tick: notes end first, then settings, then notes start
        std::vector<uint8_t> bytes;
    };
    void add(uint32_t tick, int order, std::vector<uint8_t> bytes);
    std::vector<Event> events_;
};

bool writeMidiFile(const std::vector<MidiTrack>& tracks, const std::string& path);

} // namespace morvane::assets
