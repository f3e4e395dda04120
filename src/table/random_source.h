// The table's one source of chance: the jitter of the break's scatter.
#pragma once

#include <cstdint>
#include <random>

namespace morvane {

// Uniform numbers from 0 up to 1.
class RandomPort {
  public:
    virtual ~RandomPort() = default;
    virtual double next() = 0;
};

// A reproducible source: the same seed gives the same draws.
class SeededRandom : public RandomPort {
  public:
    explicit SeededRandom(uint64_t seed = 1) : engine_(seed) {}
    double next() override { return std::uniform_real_distribution<double>(0.0, 1.0)(engine_); }

  private:
    std::mt19937_64 engine_;
};

} // namespace morvane
