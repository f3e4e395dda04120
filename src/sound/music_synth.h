// The synthesiser of the tunes: FluidSynth with a General MIDI soundfont, feeding the mixer's
// music stream. One synthesiser lives for the run and reads its soundfont once; each tune
// brings only its own small MIDI file.
//
// SDL2_mixer's own MIDI player builds a new synthesiser, and reads the 6 MB soundfont again,
// for every tune it loads, on the thread that asks: tens of milliseconds each time a tune
// opens, hundreds on a busy machine. Driving FluidSynth here keeps that to one read a run, done
// on the loading thread.
#pragma once

#include <SDL_stdinc.h>

#include <atomic>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

typedef struct _fluid_hashtable_t fluid_settings_t;
typedef struct _fluid_synth_t fluid_synth_t;
typedef struct _fluid_player_t fluid_player_t;

namespace morvane {

// How loud the tunes play: FluidSynth's gain, 2.2 dB below the 1.2 that SDL_mixer's own MIDI
// player gives at full volume, as the effects are below their nominal level. The tunes' loudest
// moments then reach 0.54 of full scale, and leave the effects the rest (see their headroom
// in the generator).
constexpr float kMusicGain = 0.93f;
// The most notes that sound at once; the busiest tune needs 75, so none is ever cut short.
constexpr int kMusicPolyphony = 128;

class MusicSynth {
  public:
    explicit MusicSynth(int sampleRate);
    ~MusicSynth();
    MusicSynth(const MusicSynth&) = delete;
    MusicSynth& operator=(const MusicSynth&) = delete;

    // Reads the soundfont; false if it can't. Called once, before any tune starts.
    bool loadSoundFont(const std::string& path);
    bool hasSoundFont() const { return hasSoundFont_.load(); }

    // Plays the tune in `midi` from its start, in place of any other. Without a soundfont it
    // plays nothing. Like stop(), it only leaves word for the mixer's thread, which acts on it
    // with the next stretch it renders: the caller never waits for the rendering.
    void start(const std::vector<unsigned char>& midi);
    // Stops the tune; the notes it held die away as released keys do.
    void stop();
    // Whether a tune plays: from the moment it is asked to until it is stopped or has ended.
    bool isPlaying() const { return playing_.load(); }

    // The mixer's music hook: fills the stream with the next stretch of the tune.
    static void SDLCALL mix(void* synth, Uint8* stream, int bytes);

  private:
    // A tune to start, or none to stop.
    struct Request {
        std::vector<unsigned char> midi;
    };
    void render(Sint16* frames, int count);
    void carryOut(const Request& request);
    void dropPlayer();

    std::mutex requestMutex_;        // held for a moment to leave or take the request
    std::optional<Request> request_; // the latest word, not yet acted on
    std::atomic<bool> playing_{false};
    fluid_settings_t* settings_ = nullptr;
    fluid_synth_t* synth_ = nullptr;
    fluid_player_t* player_ = nullptr; // the mixer's thread only, once the mixer runs
    std::atomic<bool> hasSoundFont_{false};
    int ringingFrames_ = 0; // still to render after the last note, for the reverb to fade
    int ringOutFrames_ = 0;
};

// The General MIDI soundfont for the tunes: what SDL_SOUNDFONTS names if set, else the first of
// Debian's usual places that exists; empty if none does.
std::string findSoundFont();

} // namespace morvane
