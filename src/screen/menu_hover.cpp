#include "screen/menu_hover.h"

#include "game/timers.h"

namespace morvane {

namespace {
void restAllLabels(GameState& g) {
    g.controls.lblMenuHover = {false, false, false};
}
} // namespace

void lblMenu_MouseMove(GameState& g, int index) {
    if (isTimerEnabled(g, kTimer1))
        return;
    restAllLabels(g);
    g.controls.lblMenuHover[index] = true;
}

void Form_MouseMove(GameState& g) {
    restAllLabels(g);
}

void picInfomation_MouseMove(GameState& g) {
    restAllLabels(g);
}

} // namespace morvane
