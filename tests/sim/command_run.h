// Running a command of morvane-sim in the test's own process, with its streams captured.
#pragma once

#include "sim/commands.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

#include <sstream>
#include <string>
#include <vector>

namespace morvane::testing {

struct CommandRun {
    int status;
    std::string out;
    std::string err;

    std::vector<nlohmann::json> lines() const {
        std::vector<nlohmann::json> parsed;
        std::istringstream in(out);
        for (std::string line; std::getline(in, line);)
            parsed.push_back(nlohmann::json::parse(line));
        return parsed;
    }
};

inline CommandRun runTool(const std::vector<std::string>& args, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = morvane::sim::runCommand(args, in, out, err);
    return {status, out.str(), err.str()};
}

// A refusal: status 2, nothing on stdout, and one line on stderr that says what was wrong.
inline void expectRefused(const CommandRun& run, const std::string& saying) {
    EXPECT_EQ(run.status, 2) << run.err;
    EXPECT_TRUE(run.out.empty()) << run.out;
    EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << run.err;
    EXPECT_NE(run.err.find(saying), std::string::npos) << run.err;
}

// The cue ball on the head spot and ball 1 at (x1, y1), the rest off the table; `rest` adds
// fields to the input object.
inline std::string twoBalls(double x1, double y1, const std::string& rest) {
    nlohmann::json balls = nlohmann::json::array();
    balls.push_back({{"x", 600}, {"y", 600}});
    balls.push_back({{"x", x1}, {"y", y1}});
    for (int n = 2; n < 10; ++n)
        balls.push_back({{"x", 100 + n * 100}, {"y", 1000}, {"onTable", false}});
    return "{\"balls\":" + balls.dump() + (rest.empty() ? "" : "," + rest) + "}";
}

} // namespace morvane::testing
