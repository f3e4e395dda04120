#include "rules/game_tick.h"

#include "game/break_run.h"
#include "game/table_queries.h"
#include "game/timers.h"
#include "rules/demo.h"
#include "rules/game_over.h"
#include "rules/next_shot.h"
#include "rules/shot_judging.h"

namespace morvane {

namespace {

void answerFoul(GameState& g, ShotOutcome foul) {
    if (g.gameMode != kModeDemo) {
        const std::string message = foulMessage(g, foul);
        if (!message.empty())
            g.ports.screen->showMessage(message);
    }
    respotBalls(g);
    g.foulCount = int16_t(g.foulCount + 1);
    g.turnCount = int16_t(g.turnCount + 1);
    g.ballInHand = true;
}

void finishShot(GameState& g) {
    setTimerEnabled(g, kTimer1, false);
    clearMotion(g);
    g.controls.poolKeepsPicture = true;
    g.ports.screen->drawTable();

    const ShotOutcome outcome = judgeShot(g);
    switch (outcome) {
    case ShotOutcome::CueBallFoul:
        answerFoul(g, ShotOutcome::CueBallFoul);
        break;
    case ShotOutcome::MissFoul:
        answerFoul(g, ShotOutcome::MissFoul);
        break;
    case ShotOutcome::GameOver:
        endGame(g);
        return;
    case ShotOutcome::Legal:
        if (g.pocketedCount == 0)
            g.turnCount = int16_t(g.turnCount + 1);
        break;
    }
    setUpNextShot(g);
    // A legal shot that pockets a ball pockets an object ball, and it stays down.
    if (g.gameMode == kModeDemo)
        moveDemoOn(g, outcome == ShotOutcome::Legal && g.pocketedCount > 0);
}

} // namespace

void Timer1_Timer(GameState& g) {
    runShotTick(g);
    g.ports.screen->drawTable();
    if (isAllStopped(g))
        finishShot(g);
}

} // namespace morvane
