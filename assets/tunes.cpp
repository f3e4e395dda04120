#include "tunes.h"

namespace morvane::assets {

namespace {

// General MIDI programs, counted from 0.
constexpr int kElectricPiano = 4;
constexpr int kElectricPiano2 = 5;
constexpr int kBrightPiano = 1;
constexpr int kMarimba = 12;
constexpr int kNylonGuitar = 24;
constexpr int kCleanGuitar = 27;
constexpr int kAcousticBass = 32;
constexpr int kFingeredBass = 33;
constexpr int kPickedBass = 34;
constexpr int kSynthBass = 38;
constexpr int kStrings = 48;
constexpr int kSlowStrings = 49;
constexpr int kBrass = 61;
constexpr int kFlute = 73;
constexpr int kPanFlute = 75;
constexpr int kSquareLead = 80;
constexpr int kWarmPad = 89;

// The menu: calm, a flute over an electric piano, with brushes.
Song takeToYou() {
    return {"Take to You",
            76,
            {"Fmaj7", "Am7", "Bbmaj7", "C7", "Dm7 Am7", "Bbmaj7 C7", "Am7 Dm7", "Gm7 C7",
             "Bbmaj7 C7", "Fmaj7"},
            "A4:3 C5:1 E5:2 C5:2  E5:3 D5:1 C5:2 A4:2  D5:3 C5:1 Bb4:2 A4:2  G4:4 r:2 C5:2 "
            "F5:3 E5:1 D5:2 C5:2  D5:2 F5:2 E5:3 C5:1  C5:3 A4:1 F5:2 E5:2  D5:3 Bb4:1 G4:2 E5:2 "
            "D5:3 C5:1 Bb4:2 G4:2  C5:2 A4:2 F4:4",
            kFlute,
            kElectricPiano,
            Comping::Arpeggio,
            kSlowStrings,
            kFingeredBass,
            BassLine::RootFifth,
            DrumKit::Brushes};
}

// The record screen: light, marimba and nylon guitar.
Song toYourHoliday() {
    return {"To Your Holiday",
            112,
            {"C", "Am", "F", "G", "C", "Em", "F", "G7", "Am", "Em", "F", "C", "Dm7", "G7", "C"},
            "E5:2 G5:2 E5:1 D5:1 C5:2  A4:2 C5:2 E5:3 r:1  F5:2 E5:1 D5:1 C5:2 A4:2  "
            "B4:2 D5:2 G5:4  E5:2 G5:2 C6:2 G5:2  B5:2 G5:1 E5:1 B4:4  A5:2 F5:2 C5:2 A5:2  "
            "G5:3 F5:1 D5:2 B4:2  C5:2 E5:2 A5:3 G5:1  G5:2 E5:2 B4:4  A4:1 C5:1 F5:2 A5:2 G5:2  "
            "E5:2 C5:2 G4:4  F5:2 E5:1 D5:1 C5:2 D5:2  B4:2 D5:2 F5:2 G5:2  E5:2 G5:2 C6:4",
            kMarimba,
            kNylonGuitar,
            Comping::Arpeggio,
            -1,
            kAcousticBass,
            BassLine::Quarters,
            DrumKit::Pop};
}

// The solo game: airy, a pan flute over strings in D minor.
Song aScentOfWind() {
    return {
        "A Scent of Wind",
        96,
        {"Dm7", "G", "Dm7", "C", "Bbmaj7", "C", "Dm7", "Am7", "Bbmaj7", "C", "Gm7", "A7", "Dm9"},
        "A4:2 D5:2 E5:2 F5:2  G5:3 F5:1 E5:2 D5:2  A5:4 G5:2 F5:2  E5:4 C5:2 E5:2  "
        "F5:3 D5:1 Bb4:2 D5:2  E5:3 C5:1 G4:2 C5:2  D5:2 F5:2 A5:2 C6:2  A5:3 G5:1 E5:4  "
        "D5:2 F5:2 A5:3 G5:1  G5:2 E5:2 C5:2 E5:2  F5:3 D5:1 Bb4:2 G4:2  "
        "A4:2 C#5:2 E5:2 G5:2  F5:2 E5:2 D5:4",
        kPanFlute,
        kCleanGuitar,
        Comping::Arpeggio,
        kStrings,
        kPickedBass,
        BassLine::RootFifth,
        DrumKit::Pop};
}

// The game against zeph: dreamy but restless, a square lead in A minor over synth bass.
Song sweetDreams() {
    return {
        "Sweet Dreams",
        120,
        {"Am", "F", "C", "G", "Am", "F", "E7", "E7", "F", "G", "Em", "Am", "Dm", "G", "E7", "Am"},
        "E5:2 A5:2 B5:1 C6:1 B5:2  A5:3 G5:1 F5:2 C5:2  E5:2 G5:2 C6:2 G5:2  "
        "D6:3 B5:1 G5:4  C6:2 B5:1 A5:1 E5:2 A5:2  F5:2 A5:2 C6:3 A5:1  "
        "G#5:3 E5:1 B4:2 D5:2  E5:6 r:2  C5:1 F5:1 A5:2 G5:2 F5:2  D5:1 G5:1 B5:2 A5:2 G5:2  "
        "E5:2 G5:2 B5:3 G5:1  A5:4 E5:2 C5:2  D5:2 F5:2 A5:2 F5:2  G5:2 B5:2 D6:2 B5:2  "
        "G#5:2 B5:2 E6:2 D6:2  C6:2 B5:1 G#5:1 A5:4",
        kSquareLead,
        kElectricPiano2,
        Comping::Stabs,
        kWarmPad,
        kSynthBass,
        BassLine::Eighths,
        DrumKit::Drive};
}

// The game of two people: bright and friendly, piano and brass in G major.
Song forGood() {
    return {"For Good",
            132,
            {"G", "D", "Em", "C", "G", "D", "C D", "G", "Em", "C", "G", "D", "Em", "C", "Am7", "D7",
             "G"},
            "D5:1 G5:1 B5:2 A5:1 G5:1 D5:2  F#5:2 A5:2 D6:3 r:1  E5:1 G5:1 B5:2 A5:1 G5:1 E5:2  "
            "G5:2 E5:2 C5:3 r:1  B4:1 D5:1 G5:2 B5:2 D6:2  C6:1 B5:1 A5:2 F#5:2 D5:2  "
            "E5:2 G5:2 F#5:2 A5:2  G5:6 r:2  B5:2 A5:1 G5:1 E5:2 G5:2  C6:2 B5:1 A5:1 G5:2 E5:2  "
            "D5:2 G5:2 B5:2 D6:2  D6:3 C6:1 A5:2 F#5:2  G5:2 B5:2 E6:2 D6:2  C6:2 G5:2 E5:2 C6:2  "
            "B5:2 A5:2 G5:2 E5:2  F#5:2 A5:2 C6:2 A5:2  B5:2 D6:2 G6:4",
            kBrightPiano,
            kBrass,
            Comping::Stabs,
            -1,
            kFingeredBass,
            BassLine::Eighths,
            DrumKit::Drive};
}

} // namespace

const std::vector<Tune>& allTunes() {
    static const std::vector<Tune> tunes = {{"menu.mid", takeToYou},
                                            {"record.mid", toYourHoliday},
                                            {"game1.mid", aScentOfWind},
                                            {"game2.mid", sweetDreams},
                                            {"game3.mid", forGood}};
    return tunes;
}

bool writeTune(const Tune& tune, const std::string& path) {
    const std::vector<MidiTrack> tracks = arrange(tune.song());
    return !tracks.empty() && writeMidiFile(tracks, path);
}

} // namespace morvane::assets
