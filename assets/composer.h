// Turns a song written as chords and a melody into the parts of a band: the melody, the
// chords, an optional pad, the bass and the drums.
#pragma once

#include "midi_writer.h"

#include <string>
#include <vector>

namespace morvane::assets {

enum class Comping { Arpeggio, Pad, Stabs };
enum class BassLine { RootFifth, Quarters, Eighths };
enum class DrumKit { Brushes, Pop, Drive };

struct Song {
    std::string title;
    double beatsPerMinute;
    // One entry a bar in 4/4; two chords in one entry share the bar ("Dm7 G7").
    std::vector<std::string> bars;
    // Notes as NAME OCTAVE : EIGHTHS, e.g. "C#5:2", or "r:2" for a rest; eight eighths a bar.
    std::string melody;
    int melodyProgram;
    int chordProgram;
    Comping comping;
    int padProgram; // -1: no pad
    int bassProgram;
    BassLine bass;
    DrumKit drums;
};

// The tracks of the song, or an empty list with a message on stderr if the song is malformed
// (an unknown chord or note, or a melody that doesn't fill the bars).
std::vector<MidiTrack> arrange(const Song& song);

// The song's length in seconds, from its first beat to the end of the last chord's ring.
double songSeconds(const Song& song);

} // namespace morvane::assets
