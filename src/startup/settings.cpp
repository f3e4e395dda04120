#include "startup/settings.h"

#include "game/text.h"
#include "records/atomic_file.h"
#include "records/data_folder.h"
#include "records/integer16.h"
#include "records/profile_file.h"
#include "records/record_constants.h"
#include "rules/music.h"

namespace morvane {

namespace {

constexpr const char* kSettingsFileName = "MORVANE.INI";
constexpr const char* kSettingsSection = "MORVANE";
constexpr const char* kHiColorKey = "HiColor";
constexpr const char* kSoundKey = "SOUND";
constexpr const char* kBgmKey = "BGM";

constexpr int16_t kInnerPictures = -1; // HiColor: the pictures inside the forms
constexpr int16_t kFilePictures = 0;   // HiColor: the 256-colour picture files
constexpr int16_t kSoundOn = 1;
constexpr int16_t kSoundOff = 0;
constexpr int16_t kDefaultBgm = -1;

// The picture of index 0 shows while a switch is on, so a click on it turns the switch off; a
// click on any other index turns it on.
constexpr int16_t kOnPicture = 0;
// The index that a start-up call passes to bring a switch to the stored state.
constexpr int16_t clickFor(bool on) {
    return on ? 1 : 0;
}

constexpr const char* kTrueColorNotice = "色数をTrue Colorに変更します。次回起動から有効です。";
constexpr const char* k256ColorNotice = "色数を256色に変更します。次回起動から有効です。";

int16_t readSetting(const IniDocument& file, const char* key, int16_t defaultValue) {
    return toInteger16(file.readInt(kSettingsSection, key, defaultValue));
}

void writeSetting(const char* key, int16_t value) {
    WritePrivateProfileStringA(kSettingsSection, key, signedNumberText(value), settingsFilePath());
}

} // namespace

std::string settingsFilePath() {
    return getWindowsPath() + kSettingsFileName;
}

void readHiColorSetting(GameState& g) {
    g.hiColor = readSetting(loadProfile(settingsFilePath()), kHiColorKey, kInnerPictures);
}

void readSoundAndMusicSettings(GameState& g) {
    const IniDocument file = loadProfile(settingsFilePath());
    g.soundOn = readSetting(file, kSoundKey, kSoundOn);
    g.bgmOn = readSetting(file, kBgmKey, kDefaultBgm);
}

void removeUnfinishedSaves() {
    removeUnfinishedSaves(getWindowsPath(), {kScoreFileName, kSettingsFileName});
}

void picSound_Click(GameState& g, int16_t index) {
    const bool turnOn = index != kOnPicture;
    g.controls.soundPicOn = turnOn;
    g.soundOn = turnOn ? kSoundOn : kSoundOff;
    writeSetting(kSoundKey, g.soundOn);
}

void mnuSound_Click(GameState& g) {
    g.soundOn = g.soundOn == kSoundOff ? kSoundOn : kSoundOff;
    g.controls.mnuSoundChecked = g.soundOn != kSoundOff;
    writeSetting(kSoundKey, g.soundOn);
}

void picBGM_Click(GameState& g, int16_t index) {
    const bool turnOn = index != kOnPicture;
    g.controls.bgmPicOn = turnOn;
    if (turnOn)
        switchMusicOn(g);
    else
        switchMusicOff(g);
    writeSetting(kBgmKey, g.bgmOn);
}

void picColor_Click(GameState& g, int16_t index) {
    const int16_t before = g.hiColorPending;
    const bool inner = index != kOnPicture;
    g.controls.colorPicOn = inner;
    g.hiColorPending = inner ? kInnerPictures : kFilePictures;
    writeSetting(kHiColorKey, g.hiColorPending);
    if (g.controls.mainWindowVisible && g.hiColorPending != before)
        g.ports.screen->showPlainMessage(g.hiColorPending != kFilePictures ? kTrueColorNotice
                                                                           : k256ColorNotice);
}

void bringSwitchesIntoLine(GameState& g) {
    picBGM_Click(g, clickFor(g.bgmOn != 0));
    picSound_Click(g, clickFor(g.soundOn == kSoundOn));
    picColor_Click(g, clickFor(g.hiColor != kFilePictures));
    g.controls.mnuSoundChecked = g.soundOn != kSoundOff;
}

} // namespace morvane
