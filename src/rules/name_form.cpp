#include "rules/name_form.h"

#include "game/text.h"

namespace morvane {

std::string nameFormGreeting(const GameState& g) {
    return g.turnCount <= 1 ? "Perfect Game !" : "Good Game !";
}

void takeRecordName(GameState& g, const std::string& text) {
    g.players[0].name = fitToWidth(text, kRecordNameLength);
}

} // namespace morvane
