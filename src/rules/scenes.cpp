#include "rules/scenes.h"

namespace morvane {

void setMusicScene(GameState& g, int16_t scene) {
    g.bgmScenePrevious = g.bgmScene;
    g.bgmScene = scene;
}

} // namespace morvane
