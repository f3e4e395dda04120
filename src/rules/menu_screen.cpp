#include "rules/menu_screen.h"

#include "records/ranking.h"
#include "records/score_file.h"
#include "rules/modes.h"
#include "rules/scenes.h"

namespace morvane {

namespace {

// Solo Play and VS. Play also hide their index 0 when lit; the others leave it under index 1.
bool hidesRestingPictureWhenLit(MenuPicture picture) {
    return picture == kPicSoloPlay || picture == kPicVsPlay;
}

} // namespace

void setAllMenuPicOff(GameState& g) {
    g.controls.menuPicLit = {};
}

void menuPicture_MouseMove(GameState& g, MenuPicture picture, int index) {
    if (index != 0)
        return;
    setAllMenuPicOff(g);
    g.controls.menuPicLit[picture] = true;
}

bool isMenuPictureShown(const GameState& g, MenuPicture picture, int index) {
    const bool lit = g.controls.menuPicLit[picture];
    if (index != 0)
        return lit;
    return !(lit && hidesRestingPictureWhenLit(picture));
}

void picMenu_MouseMove(GameState& g) {
    setAllMenuPicOff(g);
    g.controls.lblHelpHover = false;
    g.gameMode = kModeMenu;
}

void lblHelp_MouseMove(GameState& g) {
    g.controls.lblHelpHover = true;
}

void picMenu_DblClick(GameState& g) {
    loadSoloRecord(g);
}

void lblHelp_Click(GameState& g) {
    g.ports.screen->openHelp();
}

void picRecord_Click(GameState& g, int /*index*/) {
    unmarkNewRows(g);
    g.gameMode = kModeRecords;
    g.controls.scoreVisible = true;
    setMusicScene(g, kSceneRecords);
}

void lblExitScore_Click(GameState& g) {
    g.controls.scoreVisible = false;
    backToMenu(g);
    setMusicScene(g, kSceneMenu);
}

void picScore_Click(GameState& g) {
    g.controls.scoreVisible = false;
    g.bgmScenePrevious = g.bgmScene;
    if (g.bgmScene == kSceneRecords)
        g.bgmScene = kSceneMenu;
}

void mnuVS_Click(GameState& /*g*/) {}

} // namespace morvane
