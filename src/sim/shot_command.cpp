#include "sim/shot_command.h"

#include "game/break_run.h"
#include "game/racking.h"
#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/table_queries.h"
#include "sim/command_options.h"
#include "sim/table_checks.h"
#include "sim/table_json.h"

#include <cmath>
#include <ostream>

namespace morvane::sim {

using nlohmann::json;

namespace {

// Every ball stops by friction long before this; the limit only guards the tool.
constexpr int kMaxShotFrames = 20000;
// A hit point a hair beyond the rim still counts, as the selector can give one.
constexpr double kHitPointSlack = 1e-6;
constexpr Box kHitSquare{-1, 1, -1, 1};

// The hit point [spinSide, spinFollow], each -1..1, the pair no longer than 1.
std::string readHitPoint(const json& input, BallType& cue) {
    if (!input.contains("hit"))
        return "";
    PointType hit;
    const std::string error = readPoint(input, "hit", kHitSquare, hit);
    if (!error.empty())
        return error;
    if (std::hypot(double(hit.x), double(hit.y)) > 1 + kHitPointSlack)
        return "hit: the hit point lies beyond the rim of the ball (length above 1)";
    cue.spinSide = hit.x;
    cue.spinFollow = hit.y;
    return "";
}

// Sets up the table and the inputs of the shot as the input says.
std::string readShot(const json& input, GameState& g) {
    rackBalls(g);
    std::string error = readBalls(input, g.Balls);
    if (error.empty() && input.contains("balls") && !input.contains("aim"))
        error = "aim: missing (needed with balls)";
    bool isBreak = false;
    if (error.empty())
        error = readFlag(input, "break", isBreak);
    PointType aim = isBreak ? straightBreakAim() : PointType{g.aimX, g.aimY};
    if (error.empty())
        error = readPoint(input, "aim", kMouseReach, aim);
    int power = kPowerMax;
    if (error.empty())
        error = readWholeNumber(input, "power", kPowerMin, kPowerMax, power);
    if (error.empty())
        error = readHitPoint(input, g.Balls[kCueBall]);
    if (error.empty())
        error = checkBallPlaces(g.Balls);
    if (error.empty() && isBreak)
        error = checkBreak(g.Balls, aim);
    if (!error.empty())
        return error;
    g.aimX = aim.x;
    g.aimY = aim.y;
    setPower(g, int16_t(power));
    g.breakPending = isBreak;
    return "";
}

struct ShotEvent {
    int frame;
    float time;
    int ball;
    int partner;
    int pocket;
};

// Lists every contact of the shot, and traces it on the error stream if asked.
class EventLog : public ContactObserver {
  public:
    EventLog(std::ostream& err, bool trace) : err_(err), trace_(trace) {}
    int frame = 0;
    std::vector<ShotEvent> events;

    void onContact(float time, int ball, int partner, int pocket) override {
        events.push_back({frame, time, ball, partner, pocket});
        if (trace_)
            err_ << "frame " << frame << " t=" << time << " ball " << ball << " partner " << partner
                 << (pocket ? " pocket " + std::to_string(pocket) : "") << "\n";
    }

  private:
    std::ostream& err_;
    bool trace_;
};

json resultOf(const GameState& g, const EventLog& log, int frames) {
    json pocketed = json::array();
    for (int k = 0; k < g.pocketedCount; ++k)
        pocketed.push_back(g.pocketedThisShot[k]);
    json events = json::array();
    for (const ShotEvent& e : log.events) {
        json item = {
            {"frame", e.frame}, {"time", e.time}, {"ball", e.ball}, {"partner", e.partner}};
        if (e.pocket != 0)
            item["pocket"] = e.pocket;
        events.push_back(item);
    }
    return {{"balls", ballsToJson(g.Balls)},  {"pocketed", pocketed},
            {"firstHitBall", g.firstHitBall}, {"frames", frames},
            {"stopped", isAllStopped(g)},     {"events", events}};
}

} // namespace

int runShotCommand(const std::vector<std::string>& options, std::istream& in, std::ostream& out,
                   std::ostream& err) {
    CommandOptions opts;
    uint64_t seed = 0;
    json input;
    std::string error = opts.read(options, {"--seed"}, {"--trace"});
    if (error.empty())
        error = opts.seed(seed);
    if (error.empty())
        error = readInputObject(in, input);
    GameState g;
    if (error.empty())
        error = readShot(input, g);
    if (!error.empty())
        return reportBadInput(err, "shot", error);

    SeededRandom random(seed);
    EventLog log(err, opts.has("--trace"));
    g.ports.random = &random;
    g.ports.contacts = &log;

    // Timer1's ticks, as fast as they come, until the tick that finds every ball at rest.
    cmdShot_Click(g);
    int frames = 0;
    do {
        log.frame = frames;
        runShotTick(g);
        ++frames;
    } while (!isAllStopped(g) && frames < kMaxShotFrames);

    out << resultOf(g, log, frames).dump() << "\n";
    return 0;
}

} // namespace morvane::sim
