// A random source that hands out the numbers a test gives it, and counts the
// draws.
#pragma once

#include "game/ports.h"

#include <cstddef>
#include <vector>

namespace morvane::testing {

class ScriptedRandom : public RandomPort {
  public:
    explicit ScriptedRandom(std::vector<double> values) : values_(std::move(values)) {}
    // Past the end of the script every draw gives 0.5; every draw is counted.
    double next() override {
        const double value = draws < values_.size() ? values_[draws] : 0.5;
        ++draws;
        return value;
    }
    std::size_t draws = 0;

  private:
    std::vector<double> values_;
};

} // namespace morvane::testing
