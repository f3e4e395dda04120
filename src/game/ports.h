// The small interfaces through which the logic meets the outside world. The window and the sound
// layer implement them for a person; tests and the headless tool implement them with plain code.
#pragma once

#include "table/contact_observer.h"
#include "table/random_source.h"

#include <string>

namespace morvane {

// What the logic asks of the screen. Every call draws from the game state; none hands data back
// except through the state, as the modal forms do.
class ScreenPort {
  public:
    virtual ~ScreenPort() = default;
    virtual void drawTable() {}
    virtual void drawBallNow(int /*ball*/) {}
    virtual void drawBallDrop(int /*ball*/, int /*pocket*/) {}
    virtual void drawTray() {}
    virtual void refreshPool() {}
    virtual void drawInformation() {}
    // Lets paint events through in the middle of a frame, and nothing else.
    virtual void yieldToPaint() {}
    // Modal forms: each returns when the form has closed.
    virtual void showMessage(const std::string& /*text*/) {}
    virtual void showPlainMessage(const std::string& /*text*/) {}
    virtual void showRecordForm() {}
    virtual void showInputBox() {}
    virtual void showChangeVsMode() {}
    virtual void showVsResult() {}
    virtual void showVersion() {}
    virtual void openHelp() {}
};

// Sound effects by file and flags, and music by command string ("open ", "play ", "close ").
class SoundPort {
  public:
    virtual ~SoundPort() = default;
    virtual void playEffect(const std::string& /*file*/, int /*flags*/) {}
    virtual void sendMusic(const std::string& /*command*/) {}
};

struct CalendarDate {
    int year = 1998;
    int month = 1;
    int day = 1;
};

class ClockPort {
  public:
    virtual ~ClockPort() = default;
    virtual CalendarDate today() { return {}; }
};

// The four outside services, handed in with the game state. Screen, sound and clock start as
// quiet stand-ins that do nothing; the random source starts as a seeded one of the state's own.
struct Ports {
    ScreenPort* screen = &quietScreen;
    SoundPort* sound = &quietSound;
    ClockPort* clock = &fixedClock;
    RandomPort* random = nullptr;
    SeededRandom ownRandom{1};
    ContactObserver* contacts = nullptr; // nobody listens unless set

    RandomPort& randomSource() { return random ? *random : ownRandom; }

    static inline ScreenPort quietScreen;
    static inline SoundPort quietSound;
    static inline ClockPort fixedClock;
};

} // namespace morvane
