#include "game/table_queries.h"

#include "game/text.h"
#include "table/geometry.h"
#include "table/motion.h"

namespace morvane {

int16_t getLowestBall(const GameState& g) {
    for (int16_t n = 1; n <= kNineBall; ++n) {
        if (g.Balls[n].onTable)
            return n;
    }
    return 0;
}

float getCueAngle(const GameState& g) {
    return getAngle(g.Balls[kCueBall].x, g.Balls[kCueBall].y, g.aimX, g.aimY);
}

std::string getPocketedString(const GameState& g) {
    std::string result;
    for (int k = 1; k <= kNineBall; ++k)
        result += g.Balls[k].onTable ? '0' : char('0' + k);
    return result;
}

bool isSpotBlocked(const GameState& g, float x, float y) {
    for (const BallType& ball : g.Balls) {
        if (ball.onTable && isWithinContact(ball, x, y))
            return true;
    }
    return false;
}

bool isAllStopped(const GameState& g) {
    return isAllStopped(g.Balls);
}

int16_t getShooterIndex(const GameState& g, int16_t turn) {
    const int k = g.players[0].hasBreak ? 0 : 1;
    return int16_t(((turn + k) % 2 + 2) % 2);
}

std::string getShooterName(const GameState& g, int16_t turn) {
    return trimBlanks(g.players[getShooterIndex(g, turn)].name);
}

} // namespace morvane
