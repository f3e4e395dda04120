// The one game state that lives for the whole run: the balls, the counters, the players, the
// record tables, the settings, the timers and every control value that the logic reads or writes.
// The window draws from it and keeps no copy of its own.
#pragma once

#include "game/ports.h"
#include "table/ball.h"
#include "table/constants.h"

#include <array>
#include <cstdint>
#include <string>

namespace morvane {

struct PlayerType {
    std::string name;      // up to 12 characters, compared and shown trimmed
    bool hasBreak = false; // this player shoots on even turns
    int16_t gamesWon = 0;
};

struct SoloRecordType {
    std::string Name = "zeph"; // 20 characters, padded
    int16_t Shots = 0;
    int16_t Turn = 10;
    int16_t Time = 3600;
    std::string Balls = "000000000";
    int16_t numOfBalls = 0;
    std::string Date = "98/01/01";
    int16_t place = 0;
};

struct VsCpuRecordType {
    std::string Name = "zeph";
    int16_t YouWon = 0;
    int16_t CPUWon = 0;
    float winRate = 0;
    std::string Date = "98/01/01";
    int16_t Time = 3600;
    int16_t LevelOfZeph = 0;
    int16_t place = 0;
};

struct BgmTrack {
    std::string title;
    std::string file;
    int32_t seconds = 0;
    std::string composer;
};

// gameMode values.
enum GameMode : int16_t {
    kModeSolo = 0,
    kModeVersus = 1,
    kModeDemo = 2,
    kModeMenu = 3,
    kModeRecords = 4,
};

// The six timers of the window, each an interval and an on switch.
enum TimerId { kTimer1, kTimer2, kTimCom, kTimDemo, kTimTimeCounter, kTimBGM, kTimerCount };

struct TimerState {
    int32_t interval = 0; // milliseconds
    bool enabled = false;
    int64_t dueAt = 0;    // virtual milliseconds of the next tick
    bool running = false; // its handler is under way
};

// A marker shape on the table view, placed by its top left corner in pixels.
struct MarkerState {
    float left = 0;
    float top = 0;
    bool visible = false;
    bool operator==(const MarkerState&) const = default;
};

// A caption with its font, as the shot button and the labels carry them.
struct FontState {
    std::string name = "Arial";
    float size = 24;
    bool bold = true;
    bool operator==(const FontState&) const = default;
};

// What the logic reads and writes of the window's controls.
struct ControlsState {
    // Power bar HScroll1 and its label.
    int16_t power = kPowerMax;
    bool powerEnabled = true;
    std::string powerCaption = "POWER 100%";

    // Hit point selector: shpPoint's top left corner in pixels of picSetPoint.
    bool setPointEnabled = true;
    float pointLeft = 20;
    float pointTop = 20;

    // Shot button.
    bool shotEnabled = true;
    std::string shotCaption = "SHOT!";
    FontState shotFont;

    // Table view picPool(0).
    bool poolEnabled = true;
    bool poolKeepsPicture = true; // AutoRedraw: at rest it keeps its picture, during a shot not
    MarkerState target;           // shpTarget, the aim point
    MarkerState qBall;            // shpQBall, the cue ball in hand

    // The CPU's remark.
    std::string zephsMessage;
    bool zephsMessageVisible = false;

    // Hidden menu entries.
    bool mnuRetryEnabled = false;
    bool mnuStartEnabled = true;
    bool mnuSoundChecked = true;
    std::string mnuChangeModeCaption;

    // Layers and labels.
    bool menuVisible = false;                                // picMenu
    bool scoreVisible = false;                               // picScore
    std::array<bool, 3> lblMenuVisible{false, false, false}; // "Menu", "Start", "Back"
    std::array<bool, 3> lblMenuHover{false, false, false};
    bool lblHelpHover = false;
    std::array<bool, 5> menuPicLit{}; // Solo Play, VS. CPU, VS. Play, Record, Exit
    bool bgmPicOn = true;             // picBGM index 0 shows
    bool soundPicOn = true;           // picSound index 0 shows
    bool colorPicOn = true;           // picColor index 0 shows

    std::string windowCaption;
    bool mainWindowVisible = false;
    bool mainWindowMinimised = false; // down in the task bar, nothing of it on the screen

    bool operator==(const ControlsState&) const = default;
};

struct GameState {
    // Outside world: screen, sound, clock, randomness.
    Ports ports;

    // Language and the run's switches.
    bool isJapanese = false;
    bool debugStart = false;
    bool noMidi = false;
    int16_t hiColor = -1;
    int16_t hiColorPending = -1;
    int16_t soundOn = 1;
    int16_t bgmOn = -1;

    // The table.
    BallArray Balls{};
    BallArray BallsSaved{};
    float aimX = 0;
    float aimY = 0;
    std::array<PointType, 11> pocketTable{};

    // The shot under way.
    std::array<int16_t, kBallCount> pocketedThisShot{};
    int16_t pocketedCount = 0;
    int16_t firstHitBall = 0;
    int16_t targetBall = 0;
    bool firstHitPending = false;
    bool ballInHand = false;
    bool ballInHandSaved = false;
    bool breakPending = true;
    bool draggingCueBall = false;
    float swingPhase = 0; // the break swing's phase, never reset

    // Counters of the game.
    int32_t gameSeconds = 0;
    int16_t shotCount = 0;
    int16_t turnCount = 0;
    int16_t foulCount = 0;

    // Modes, players and matches.
    int16_t gameMode = kModeMenu;
    int16_t demoCounter = 0;
    int16_t demoShotsWithoutPot = 0; // shots in a row of the demo game with no ball potted
    std::array<PlayerType, 2> players{};
    int16_t matchTarget = 3;
    bool versusCpu = true;

    // zeph.
    int16_t zephLevel = 1;
    int16_t zephProgress = 0;
    int16_t cpuTickCounter = 0;

    // Records: rows 1 to 10 are the tables, 11 the working row, 0 unused.
    std::array<SoloRecordType, 12> soloRecords{};
    std::array<VsCpuRecordType, 12> vsCpuRecords{};
    // Saves of the score file in this run, and how many of them failed.
    int32_t scoreFileSaves = 0;
    int32_t failedScoreFileSaves = 0;

    // Music.
    int16_t bgmScene = -1;
    int16_t bgmScenePrevious = -1;
    int16_t bgmTicks = 0;
    std::array<BgmTrack, 11> bgmTracks{};

    // Timers and the virtual clock that drives them.
    std::array<TimerState, kTimerCount> timers{};
    int64_t nowMs = 0;

    ControlsState controls;
};

} // namespace morvane
