// The tunes read on the loading thread: the window's commands never wait for a file, a tune
// asked to play before it is read starts once it is, a close always wins over a read still
// under way, a closed tune is let go, and a broken file is found out by its reader.
#include "sound/mixer_device.h"
#include "sound/music_tracks.h"
#include "sound/tune_file.h"
#include "sound_setup.h"

#include <gtest/gtest.h>

#include <future>
#include <sstream>
#include <utility>

using namespace morvane;
using namespace morvane::testing;

namespace {

class Tunes : public ::testing::Test {
  protected:
    ScopedEnv driver{"SDL_AUDIODRIVER", "dummy"};
    std::ostringstream said;
    WarnOnce warnings{said};
    MixerDevice device{warnings, kMixBufferSamples};
    LoadingWorker loader;
    std::optional<MusicTracks> tracks;
    std::promise<void> gate;
    bool released = false;

    void SetUp() override {
        ASSERT_TRUE(device.isOpen()) << said.str();
        tracks.emplace(runtimeFolder(), warnings, loader, device.rate());
    }
    void TearDown() override {
        release(); // whatever a failed check left held
        tracks.reset();
    }

    // Keeps the loading thread busy until `release`, as a slow disk would.
    void holdTheLoader() {
        loader.post([future = gate.get_future().share()] { future.wait(); });
    }
    void release() {
        if (!std::exchange(released, true))
            gate.set_value();
    }
};

TEST_F(Tunes, ATunePlayedBeforeItIsReadStartsOnceItIsAndAnotherReadOneAtOnce) {
    holdTheLoader();
    tracks->command("open menu.mid");
    tracks->command("play menu.mid");
    EXPECT_TRUE(tracks->isOpen("menu.mid")) << "the commands returned while the file waits";
    EXPECT_EQ(tracks->playing(), "menu.mid") << "asked to play, and on its way";
    tracks->command("open game1.mid");
    release();
    loader.waitUntilIdle();
    EXPECT_EQ(tracks->playing(), "menu.mid");
    EXPECT_TRUE(tracks->isSounding()) << "now the synthesiser plays it";
    tracks->command("close menu.mid");
    EXPECT_EQ(tracks->tunesInMemory(), 1) << "the closed tune is freed, the other kept";
    tracks->command("play game1.mid");
    EXPECT_TRUE(tracks->isSounding()) << "read already: it starts at once";
    tracks->command("close game1.mid");
    EXPECT_EQ(tracks->tunesInMemory(), 0);
    EXPECT_EQ(said.str(), "");
}

TEST_F(Tunes, ACloseWinsOverAReadStillUnderWayAndTheTuneIsLetGo) {
    holdTheLoader();
    tracks->command("open menu.mid");
    tracks->command("play menu.mid");
    tracks->command("close menu.mid");
    EXPECT_EQ(tracks->playing(), "");
    EXPECT_EQ(tracks->tunesInMemory(), 1) << "the loading thread still has it";
    release();
    loader.waitUntilIdle();
    EXPECT_FALSE(tracks->isSounding()) << "the read that ended after the close doesn't start it";
    EXPECT_EQ(tracks->tunesInMemory(), 0);
}

TEST(TuneFile, AMidiFileNeedsItsHeaderAndATrackThatEndsInsideIt) {
    std::vector<unsigned char> header = {'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 1, 0, 1, 1, 224};
    EXPECT_EQ(midiProblem(header), "a MIDI file without tracks");
    std::vector<unsigned char> withTrack = header;
    withTrack.insert(withTrack.end(), {'M', 'T', 'r', 'k', 0, 0, 0, 4, 0, 0xFF, 0x2F, 0});
    EXPECT_EQ(midiProblem(withTrack), "");
    withTrack[withTrack.size() - 5] = 5; // claims one byte more than there is
    EXPECT_EQ(midiProblem(withTrack), "a MIDI file cut short");
    header[7] = 2;
    EXPECT_EQ(midiProblem(header), "a broken MIDI header");
}

} // namespace
