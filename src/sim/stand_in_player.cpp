#include "sim/stand_in_player.h"

#include "game/table_queries.h"
#include "game/timers.h"

namespace morvane::sim {

bool isWaitingForPerson(const GameState& g) {
    if (isTimerEnabled(g, kTimer1) || isTimerEnabled(g, kTimCom))
        return false;
    return g.gameMode == kModeSolo ||
           (g.gameMode == kModeVersus && getShooterIndex(g, g.turnCount) == 0);
}

void StandInPlayer::look(GameState& g) {
    if (onTurn_) {
        if (isTimerEnabled(g, kTimCom))
            return;
        g.zephLevel = zephsOwnLevel_;
        onTurn_ = false;
    }
    if (!isWaitingForPerson(g))
        return;
    zephsOwnLevel_ = g.zephLevel;
    g.zephLevel = level_;
    setTimerEnabled(g, kTimCom, true);
    onTurn_ = true;
}

} // namespace morvane::sim
